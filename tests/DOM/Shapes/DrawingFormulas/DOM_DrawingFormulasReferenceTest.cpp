#include "DOM/Shapes/DrawingFormulas/DOM_DrawingFormulasReference.h"

#include <gtest/gtest.h>

#include <limits>

#include "DOM/Shapes/DrawingFormulas/ExpressionSamples.h"

namespace QN::DOM::DrawingFormulas::DrawingFormulasReferenceTest {
namespace {

TEST(DrawingFormulasReference, IsATemplateOverWhatItsIndexCounts)
{
    static_assert(std::is_same_v<AdjustValueReference, Reference<static_cast<ReferenceType>(0)>>);
    static_assert(std::is_same_v<FormulaReference, Reference<static_cast<ReferenceType>(1)>>);
}

TEST(DrawingFormulasReference, RefersToTheFirstByDefault)
{
    EXPECT_EQ(AdjustValueReference().getIndex(), 0U);
    EXPECT_EQ(FormulaReference().getIndex(), 0U);
    expectInFamily<Expression>(AdjustValueReference(), "QN::DOM::DrawingFormulas::AdjustValueReference",
                               R"({"value0":{},"_index":0})");
    expectInFamily<Expression>(FormulaReference(), "QN::DOM::DrawingFormulas::FormulaReference",
                               R"({"value0":{},"_index":0})");
}

TEST(DrawingFormulasReference, HoldsAnyIndex)
{
    constexpr unsigned long Largest = std::numeric_limits<unsigned long>::max();
    EXPECT_EQ(AdjustValueReference(Largest).getIndex(), Largest);
    expectInFamily<Expression>(AdjustValueReference(Largest),
                               "QN::DOM::DrawingFormulas::AdjustValueReference",
                               R"({"value0":{},"_index":18446744073709551615})");
    expectInFamily<Expression>(FormulaReference(7), "QN::DOM::DrawingFormulas::FormulaReference",
                               R"({"value0":{},"_index":7})");
}

TEST(DrawingFormulasReference, ComparesByIndexWithinItsClass)
{
    EXPECT_EQ(FormulaReference(3), FormulaReference(3));
    EXPECT_NE(FormulaReference(3), FormulaReference(4));
    EXPECT_FALSE(
        areDeeplyEqual(static_cast<const Expression&>(FormulaReference(3)), AdjustValueReference(3)));
}

} // namespace
} // namespace QN::DOM::DrawingFormulas::DrawingFormulasReferenceTest
