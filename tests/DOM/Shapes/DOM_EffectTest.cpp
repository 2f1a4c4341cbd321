#include "DOM/Shapes/DOM_Effect.h"

#include <gtest/gtest.h>

#include <memory>
#include <type_traits>

#include "DOM/ValueChecks.h"
#include "Support/RoundTrip.h"

namespace QN::DOM::EffectTest {

using namespace Test;

TEST(EffectTest, PersistsAsAnEmptyObject)
{
    static_assert(std::is_empty_v<Effect>);
    EXPECT_EQ(toJson(Effect()), "{}");
    EXPECT_EQ(toJson(std::make_unique<Effect>()), R"({"object":{"ptr_wrapper":{"valid":1,"data":{}}}})");
    expectPersists(Effect());
}

TEST(EffectTest, AllAreEqual)
{
    EXPECT_EQ(Effect(), Effect());
    expectAscending<Effect>({Effect()});
}

TEST(EffectTest, IsCopiedAndMoved)
{
    expectCopiesAndMoves(Effect());
}

} // namespace QN::DOM::EffectTest
