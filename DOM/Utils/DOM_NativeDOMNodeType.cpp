#include "DOM/Utils/DOM_NativeDOMNodeType.h"

#include <array>
#include <cstddef>

namespace QN::DOM {

namespace {

struct NodeTypeInfo {
    const char* name;
    bool isCollection = false;
};

constexpr bool Collection = true;

/// By number.
constexpr std::array<NodeTypeInfo, 36> NodeTypes{{
    {"document"},
    {"documentProperties"},
    {"scripts"},
    {"defaultSection"},
    {"runs", Collection},
    {"blocks", Collection},
    {"paragraphProperties"},
    {"paragraphMark"},
    {"numberingReference"},
    {"rows", Collection},
    {"rowProperties"},
    {"columns", Collection},
    {"columnProperties"},
    {"frames", Collection},
    {"tableProperties"},
    {"cellProperties"},
    {"tableFilter"},
    {"textStyles", Collection},
    {"runProperties"},
    {"tableStyles", Collection},
    {"sectionProperties"},
    {"pageProperties"},
    {"headersFooters", Collection},
    {"headerFooterPair"},
    {"header"},
    {"footer"},
    {"theme"},
    {"colorMap"},
    {"comments", Collection},
    {"notes", Collection},
    {"field"},
    {"numberedLists", Collection},
    {"numberingLevel"},
    {"shapeStyles", Collection},
    {"graphicalObject"},
    {"definedNames", Collection},
}};

const NodeTypeInfo* findNodeTypeInfo(NativeDOMNodeType nodeType)
{
    const auto index = static_cast<std::size_t>(nodeType);
    return index < NodeTypes.size() ? &NodeTypes[index] : nullptr;
}

} // namespace

bool isCollectionAddressType(NativeDOMNodeType nodeType)
{
    const NodeTypeInfo* const info = findNodeTypeInfo(nodeType);
    return info != nullptr && info->isCollection;
}

bool isHeaderFooterAddressType(NativeDOMNodeType nodeType)
{
    return nodeType == NativeDOMNodeType::HeaderFooterPair || nodeType == NativeDOMNodeType::Header ||
           nodeType == NativeDOMNodeType::Footer;
}

std::string getNodeTypeName(NativeDOMNodeType nodeType)
{
    if (const NodeTypeInfo* const info = findNodeTypeInfo(nodeType)) {
        return info->name;
    }
    return "node(" + std::to_string(static_cast<unsigned int>(nodeType)) + ")";
}

} // namespace QN::DOM
