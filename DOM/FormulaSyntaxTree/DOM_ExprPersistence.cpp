#include <array>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>
#include <vector>

#include "DOM/FormulaSyntaxTree/DOM_ExprNodes.h"
#include "Utils/Public/Archive/PolymorphicRegistry.h"
#include "Utils/Public/ClassScheme/Define.h"

/// Saves and loads trees along an explicit stack of lists of nodes. The shape of a node still comes from its list of
/// members; only where its children stand, the walk takes over.

namespace QN {

namespace DOM::FormulaSyntaxTree {

namespace {

/// Whether a member holds the children of a node. In each class that has such a member, it is the last one.
template <class Member>
inline constexpr bool isChildren = false;
template <std::size_t Size>
inline constexpr bool isChildren<std::array<ExprPtr, Size>> = true;
template <>
inline constexpr bool isChildren<std::vector<ExprPtr>> = true;
template <>
inline constexpr bool isChildren<Array::Items> = true;

template <class Node>
inline constexpr bool hasChildren = std::is_same_v<Node, Array> ||
                                    (std::is_base_of_v<BaseCompoundExpr, Node> &&
                                     !std::is_same_v<Node, BaseCompoundExpr>);

/// The objects of a polymorphic pointer around the keys of a node.
constexpr std::size_t PointerObjects = 3;

/// A list whose elements are being saved or loaded: arguments, the rows of an array, or one row.
template <class Exprs, class Rows>
struct OpenList {
    explicit OpenList(Exprs list) : exprs(list) {}
    explicit OpenList(Rows list) : rows(list) {}

    /// What is left of it.
    Exprs exprs;
    Rows rows;
    /// How many objects end where it ends.
    std::size_t objects = 0;
};

template <class List>
auto takeFront(List& list)
{
    auto* const front = &list.front();
    list = list.subspan(1);
    return front;
}

class ExprSaver {
public:
    explicit ExprSaver(cereal::JSONOutputArchive& archive) : _archive(archive) {}

    void save(const std::unique_ptr<Expr>& root)
    {
        const std::size_t nesting = _archive.getNesting();
        savePointer(root, 0);
        while (!_open.empty()) {
            _archive.setNesting(nesting + 1);
            saveNext();
        }
        _archive.setNesting(nesting);
    }

private:
    using List = OpenList<std::span<const ExprPtr>, std::span<const std::vector<ExprPtr>>>;

    void saveNext()
    {
        List& list = _open.back();
        if (!list.exprs.empty()) {
            const ExprPtr* const expr = takeFront(list.exprs);
            _archive.separate();
            _archive.startObject();
            _archive.writeKey("this->getPtr()");
            savePointer(expr->getPtr(), 1);
        } else if (!list.rows.empty()) {
            const std::vector<ExprPtr>* const row = takeFront(list.rows);
            _archive.separate();
            _archive.startArray();
            _open.emplace_back(std::span<const ExprPtr>(*row));
        } else {
            _archive.endArray();
            endObjects(list.objects);
            _open.pop_back();
        }
    }

    /// @param objects how many objects around the pointer end with it.
    void savePointer(const std::unique_ptr<Expr>& pointer, std::size_t objects)
    {
        _archive.startObject();
        if (!pointer) {
            PersistDetails::saveNullPolymorphic(_archive);
            endObjects(objects + 1);
            return;
        }
        const Expr& expr = *pointer;
        _archive.writePolymorphicType(typeid(expr), typeid(Expr));
        _archive.writeKey("ptr_wrapper");
        _archive.startObject();
        _archive.member("valid", 1);
        _archive.writeKey("data");
        _archive.startObject();
        ::QN::visit<void>(expr, [&](const auto& node) {
            using Node = std::remove_cvref_t<decltype(node)>;
            if constexpr (hasChildren<Node>) {
                beginChildren<Node>(node);
                _open.back().objects += objects + PointerObjects;
            } else {
                node.serialize(_archive);
                endObjects(objects + PointerObjects);
            }
        });
    }

    /// Saves what stands before the children of a node and opens their list.
    template <class Node>
    void beginChildren(const Node& node)
    {
        forEachBase<Node>([&](auto base) {
            using Base = typename decltype(base)::type;
            if constexpr (hasChildren<Base>) {
                _archive.writeKey("value0");
                _archive.startObject();
                beginChildren<Base>(node);
                ++_open.back().objects;
            } else {
                _archive.unnamed(static_cast<const Base&>(node));
            }
        });
        forEachKey<Node>([&](auto member) {
            constexpr std::string_view key = decltype(member)::name;
            const auto& value = node.*member.pointer;
            if constexpr (isChildren<std::remove_cvref_t<decltype(value)>>) {
                _archive.writeKey(key);
                _archive.startArray();
                _open.emplace_back(std::span(value));
            } else {
                _archive.member(key, value);
            }
        });
    }

    void endObjects(std::size_t count)
    {
        for (; count != 0; --count) {
            _archive.endObject();
        }
    }

    cereal::JSONOutputArchive& _archive;
    std::vector<List> _open;
};

/// Makes room for the children of a new node.
template <class Children>
void resizeChildren(Children& children, std::size_t size)
{
    children.resize(size);
}

template <std::size_t Size>
void resizeChildren(std::array<ExprPtr, Size>& /*children*/, std::size_t size)
{
    if (size != Size) {
        throw cereal::Exception("An array of " + std::to_string(Size) + " elements has another size");
    }
}

class ExprLoader {
public:
    explicit ExprLoader(cereal::JSONInputArchive& archive) : _archive(archive) {}

    std::unique_ptr<Expr> load()
    {
        const std::size_t nesting = _archive.getNesting();
        std::unique_ptr<Expr> root;
        loadPointer(root, 0);
        while (!_open.empty()) {
            _archive.setNesting(nesting + 1);
            loadNext();
        }
        _archive.setNesting(nesting);
        return root;
    }

private:
    using List = OpenList<std::span<ExprPtr>, std::span<std::vector<ExprPtr>>>;

    void loadNext()
    {
        List& list = _open.back();
        if (!list.exprs.empty()) {
            ExprPtr* const expr = takeFront(list.exprs);
            _archive.seekUnnamed();
            _archive.enterObject();
            _archive.seek("this->getPtr()");
            loadPointer(expr->getPtr(), 1);
        } else if (!list.rows.empty()) {
            std::vector<ExprPtr>* const row = takeFront(list.rows);
            _archive.seekUnnamed();
            resizeChildren(*row, _archive.enterArray());
            _open.emplace_back(std::span<ExprPtr>(*row));
        } else {
            leave(list.objects + 1);
            _open.pop_back();
        }
    }

    /// @param objects how many objects around the pointer are left with it.
    void loadPointer(std::unique_ptr<Expr>& pointer, std::size_t objects)
    {
        _archive.enterObject();
        const auto type = _archive.readPolymorphicType(typeid(Expr));
        if (type.binding == nullptr) {
            leave(objects + 1);
            return;
        }
        std::uint32_t isValid = 0;
        _archive.seek("ptr_wrapper");
        _archive.enterObject();
        _archive.member("valid", isValid);
        if (isValid == 0) {
            leave(objects + 2);
            return;
        }
        void* const object = type.binding->create();
        pointer.reset(
            static_cast<Expr*>(cereal::detail::PolymorphicCasters::upcastImpl(*type.chain, object)));
        _archive.seek("data");
        _archive.enterObject();
        ::QN::visit<void>(*pointer, [&](auto& node) {
            using Node = std::remove_cvref_t<decltype(node)>;
            if constexpr (hasChildren<Node>) {
                beginChildren<Node>(node);
                _open.back().objects += objects + PointerObjects;
            } else {
                node.serialize(_archive);
                leave(objects + PointerObjects);
            }
        });
    }

    /// Loads what stands before the children of a node, makes room for them and opens their list.
    template <class Node>
    void beginChildren(Node& node)
    {
        forEachBase<Node>([&](auto base) {
            using Base = typename decltype(base)::type;
            if constexpr (hasChildren<Base>) {
                _archive.seekUnnamed();
                _archive.enterObject();
                beginChildren<Base>(node);
                ++_open.back().objects;
            } else {
                _archive.unnamed(static_cast<Base&>(node));
            }
        });
        forEachKey<Node>([&](auto member) {
            constexpr std::string_view key = decltype(member)::name;
            auto& value = node.*member.pointer;
            if constexpr (isChildren<std::remove_cvref_t<decltype(value)>>) {
                _archive.seek(key);
                resizeChildren(value, _archive.enterArray());
                _open.emplace_back(std::span(value));
            } else {
                _archive.member(key, value);
            }
        });
    }

    void leave(std::size_t count)
    {
        for (; count != 0; --count) {
            _archive.leave();
        }
    }

    cereal::JSONInputArchive& _archive;
    std::vector<List> _open;
};

} // namespace

} // namespace DOM::FormulaSyntaxTree

void Persist<std::unique_ptr<DOM::FormulaSyntaxTree::Expr>>::save(cereal::JSONOutputArchive& archive,
                                                                  const Pointer& value)
{
    DOM::FormulaSyntaxTree::ExprSaver(archive).save(value);
}

void Persist<std::unique_ptr<DOM::FormulaSyntaxTree::Expr>>::load(cereal::JSONInputArchive& archive,
                                                                  Pointer& value)
{
    value = DOM::FormulaSyntaxTree::ExprLoader(archive).load();
}

} // namespace QN
