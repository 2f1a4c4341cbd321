#include "DOM/FormulaSyntaxTree/DOM_Label.h"

#include <gtest/gtest.h>

#include <boost/functional/hash.hpp>
#include <boost/unordered/unordered_map.hpp>

#include "DOM/FormulaSyntaxTree/ExprBuilders.h"

namespace QN::DOM::FormulaSyntaxTree::LabelTest {

namespace {

const UUID Sheet("219be34f-66e7-4590-8db5-375443207e49");

} // namespace

TEST(LabelTest, KeepsWhatItIsMadeOf)
{
    Label label("Total", "file:///other", std::string("Sheet1"));
    EXPECT_EQ(label.getLabel(), "Total");
    EXPECT_EQ(label.getDocURL(), "file:///other");
    EXPECT_TRUE(label.getTableAddress() == TableAddress(std::string("Sheet1")));
    label.setTableAddress(Sheet);
    EXPECT_TRUE(label.getTableAddress() == TableAddress(Sheet));
    EXPECT_EQ(Label().getLabel(), "");
    EXPECT_TRUE(Label().getTableAddress() == TableAddress());
}

TEST(LabelTest, ComparesAllThree)
{
    const Label label("Total", "doc", Sheet);
    EXPECT_EQ(label, Label("Total", "doc", Sheet));
    EXPECT_NE(label, Label("Sum", "doc", Sheet));
    EXPECT_NE(label, Label("Total", "", Sheet));
    EXPECT_NE(label, Label("Total", "doc", UUID()));
    EXPECT_NE(label, Label("Total", "doc", Sheet.toString()));
}

TEST(LabelTest, PersistsTheDocumentTheSheetAndTheName)
{
    EXPECT_EQ(toJson(Label("Total", "doc", std::string("Sheet1"))),
              R"({"value0":{"value0":{},"_docURL":"doc"},"_tableAddress":{"which":0,"data":"Sheet1"},)"
              R"("_label":"Total"})");
    expectNode(std::make_unique<Label>("Total", "doc", Sheet));
    expectCopiesAndMoves(Label("Total", "doc", Sheet));
}

TEST(LabelTest, HashesTheNameThenTheDocumentThenTheSheet)
{
    const Label label("Total", "doc", Sheet);
    std::size_t expected = 0;
    boost::hash_combine(expected, std::string("Total"));
    boost::hash_combine(expected, std::string("doc"));
    boost::hash_combine(expected, TableAddress(Sheet));
    EXPECT_EQ(hash_value(label), expected);
    EXPECT_NE(hash_value(label), hash_value(Label("doc", "Total", Sheet)));
    EXPECT_NE(hash_value(label), hash_value(Label("Total", "doc", UUID())));
}

TEST(LabelTest, CanKeyAHashMap)
{
    boost::unordered_map<Label, int> map;
    map[Label("Total", "", Sheet)] = 1;
    map[Label("Total", "", std::string("Sheet1"))] = 2;
    EXPECT_EQ(map.at(Label("Total", "", Sheet)), 1);
    EXPECT_EQ(map.at(Label("Total", "", std::string("Sheet1"))), 2);
    EXPECT_EQ(map.count(Label("Total", "doc", Sheet)), 0U);
}

} // namespace QN::DOM::FormulaSyntaxTree::LabelTest
