#include "DOM/DOM.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <set>
#include <sstream>
#include <string>

namespace QN::DOM::DOMTest {
namespace {

/// What only the sources of the library include.
const std::set<std::string>& getSourceOnlyHeaders()
{
    static const std::set<std::string> Headers{
        "DOM/PredefinedStyles/DOM_FailNotImplemented.h",
        "DOM/Properties/DOM_PropertiesResolveUtils.h",
        "DOM/Tables/DOM_TableRangeMoves.h",
        "DOM/Validator/DOM_RangeSweep.h",
        "DOM/Validator/DOM_ValidatorRules.h",
        "DOM/Validator/DOM_ValidatorTableLevel.h",
        "DOM/Validator/DOM_ValidatorWalk.h",
        "DOM/Validator/DOM_WalkAddress.h",
    };
    return Headers;
}

TEST(DOM, OneIncludeGivesAllThatADocumentNeeds)
{
    Document document;
    document.getBlocks().push_back(std::make_unique<Paragraph>());
    std::stringstream stream;
    {
        cereal::JSONOutputArchive archive(stream);
        document.serialize(archive);
    }
    Document loaded;
    cereal::JSONInputArchive archive(stream);
    loaded.serialize(archive);
    EXPECT_EQ(loaded, document);
}

TEST(DOM, IncludesEachPublicHeader)
{
    const auto root = std::filesystem::path(__FILE__).parent_path().parent_path().parent_path();
    std::ifstream file(root / "DOM/DOM.h");
    if (!file) {
        GTEST_SKIP() << "the sources are not where they were compiled";
    }
    const std::string text((std::istreambuf_iterator<char>(file)), std::istreambuf_iterator<char>());
    for (const char* const folder : {"CollaborationUtils/Public", "DOM"}) {
        for (const auto& entry : std::filesystem::recursive_directory_iterator(root / folder)) {
            const std::string header = entry.path().lexically_relative(root).generic_string();
            if (entry.path().extension() == ".h" && header != "DOM/DOM.h") {
                const bool isIncluded = text.find("#include \"" + header + "\"\n") != std::string::npos;
                EXPECT_NE(isIncluded, getSourceOnlyHeaders().count(header) != 0) << header;
            }
        }
    }
}

} // namespace
} // namespace QN::DOM::DOMTest
