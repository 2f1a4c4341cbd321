#include "DOM/FormulaSyntaxTree/DOM_BaseReferenceExpr.h"

#include <gtest/gtest.h>

#include "DOM/FormulaSyntaxTree/ExprBuilders.h"

namespace QN::DOM::FormulaSyntaxTree::BaseReferenceExprTest {

TEST(BaseReferenceExprTest, IsToTheSameDocumentByDefault)
{
    EXPECT_EQ(CellAddress().getDocURL(), "");
    EXPECT_EQ(CellRange().getDocURL(), "");
    EXPECT_EQ(Label().getDocURL(), "");
}

TEST(BaseReferenceExprTest, TheDocumentCanBeChangedAndTakesPartInEquality)
{
    CellAddress address;
    BaseReferenceExpr& reference = address;
    reference.setDocURL("file:///other");
    EXPECT_EQ(reference.getDocURL(), "file:///other");
    EXPECT_NE(address, CellAddress());
    EXPECT_FALSE(reference == CellAddress());
}

TEST(BaseReferenceExprTest, PersistsTheDocumentBehindItsEmptyBase)
{
    CellAddress address;
    address.setDocURL("file:///other");
    EXPECT_EQ(toJson(static_cast<const BaseReferenceExpr&>(address)),
              R"({"value0":{},"_docURL":"file:///other"})");
}

} // namespace QN::DOM::FormulaSyntaxTree::BaseReferenceExprTest
