#pragma once

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <type_traits>
#include <typeinfo>

#include "DOM/ValueChecks.h"
#include "Support/ValueText.h"
#include "Utils/Public/Visitor.h"

/// What every concrete class of a polymorphic family goes through in its tests.

namespace QN::Test {

inline constexpr const char* NullPolymorphicJson = R"({"polymorphic_id":0})";

/// The text of a polymorphic pointer, where its class occurs for the first time.
inline std::string makePolymorphicJson(const std::string& name, const std::string& data, unsigned id = 1)
{
    return R"({"polymorphic_id":)" + std::to_string(0x80000000U + id) + R"(,"polymorphic_name":")" + name +
           R"(","ptr_wrapper":{"valid":1,"data":)" + data + "}}";
}

/// The same where an object of that class stands earlier in the text.
inline std::string makeLaterPolymorphicJson(const std::string& data, unsigned id = 1)
{
    return R"({"polymorphic_id":)" + std::to_string(id) + R"(,"ptr_wrapper":{"valid":1,"data":)" + data +
           "}}";
}

template <class Root, class T>
void expectVisitedAs(Root& object)
{
    const bool isSame = visit<bool>(
        object, [](auto& visited) { return std::is_same_v<std::remove_cvref_t<decltype(visited)>, T>; });
    EXPECT_TRUE(isSame) << typeid(T).name();
}

/// The object has the given keys and values, is written under the given name through a pointer to its family's root, and
/// copies, moves, clones and is visited as itself.
template <class Root, class T>
void expectInFamily(const T& object, const std::string& name, const std::string& data)
{
    static_assert(std::is_final_v<T>);
    static_assert(!Ordered<T>);
    expectText(object, data);
    expectCopiesAndMoves(object);

    std::unique_ptr<Root> owned;
    object.cloneTo(owned);
    expectText(owned, makePolymorphicJson(name, data));
    expectVisitedAs<Root, T>(*owned);
    expectVisitedAs<const Root, T>(*owned);
    EXPECT_TRUE(areDeeplyEqual(*owned, object));
    EXPECT_NE(owned.get(), &object);

    std::shared_ptr<Root> shared;
    object.cloneTo(shared);
    EXPECT_EQ(typeid(*shared), typeid(T));
    EXPECT_TRUE(areDeeplyEqual(*shared, object));
    EXPECT_EQ(shared.use_count(), 1);
}

} // namespace QN::Test
