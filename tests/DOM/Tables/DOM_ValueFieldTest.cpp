#include "DOM/Tables/DOM_ValueField.h"

#include <gtest/gtest.h>

#include "DOM/Tables/TablePrinters.h"
#include "DOM/ValueChecks.h"
#include "Support/ValueText.h"

namespace QN::DOM::ValueFieldTest {
namespace {

using namespace QN::Test;

TEST(DOM_ValueField, HasAnIdentityOfItsOwn)
{
    EXPECT_NE(ValueField().getUUID(), ValueField().getUUID());
    EXPECT_NE(ValueField(), ValueField());
    const ValueField field(ColumnID(7), PivotTableFunction::Sum);
    EXPECT_EQ(ValueField(field), field);
    expectCopiesAndMoves(field);
}

TEST(DOM_ValueField, WritesItsIdentityFirst)
{
    ValueField field;
    field.setUUID(UUID());
    expectText(field, R"({"value0":{"_uuid":{"_id":"00000000-0000-0000-0000-000000000000"}},)"
                      R"("_fieldID":{"_value":0},"_function":0})");
    field.setFieldID(ColumnID(7));
    field.setFunction(PivotTableFunction::VarP);
    EXPECT_EQ(field.getFieldID(), ColumnID(7));
    EXPECT_EQ(field.getFunction(), PivotTableFunction::VarP);
    expectText(field, R"({"value0":{"_uuid":{"_id":"00000000-0000-0000-0000-000000000000"}},)"
                      R"("_fieldID":{"_value":7},"_function":10})");
}

TEST(DOM_ValueField, DiffersByEachOfItsMembers)
{
    const ValueField field(ColumnID(7), PivotTableFunction::Sum);
    ValueField other(field);
    other.setUUID(UUID());
    EXPECT_NE(other, field);
    other = field;
    other.setFieldID(ColumnID(8));
    EXPECT_NE(other, field);
    other = field;
    other.setFunction(PivotTableFunction::Max);
    EXPECT_NE(other, field);
}

TEST(DOM_ValueField, PassesUnknownFunctionsThrough)
{
    ValueField field(ColumnID(7), static_cast<PivotTableFunction>(2147483647));
    field.setUUID(UUID());
    expectText(field, R"({"value0":{"_uuid":{"_id":"00000000-0000-0000-0000-000000000000"}},)"
                      R"("_fieldID":{"_value":7},"_function":2147483647})");
}

} // namespace
} // namespace QN::DOM::ValueFieldTest
