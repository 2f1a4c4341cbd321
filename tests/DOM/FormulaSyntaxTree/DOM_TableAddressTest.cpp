#include "DOM/FormulaSyntaxTree/DOM_TableAddress.h"

#include <gtest/gtest.h>

#include "DOM/FormulaSyntaxTree/ExprBuilders.h"

namespace QN::DOM::FormulaSyntaxTree::TableAddressTest {

TEST(TableAddressTest, IsAnEmptyNameByDefault)
{
    const TableAddress address;
    ASSERT_EQ(address.which(), 0);
    EXPECT_EQ(boost::get<std::string>(address), "");
}

TEST(TableAddressTest, ANameAndAUuidAreDifferentEvenForOneTable)
{
    const UUID uuid("219be34f-66e7-4590-8db5-375443207e49");
    EXPECT_TRUE(TableAddress(uuid) != TableAddress(uuid.toString()));
    EXPECT_TRUE(TableAddress(uuid) == TableAddress(uuid));
    EXPECT_TRUE(TableAddress(uuid) != TableAddress(UUID()));
    EXPECT_TRUE(TableAddress(std::string("Sheet1")) != TableAddress(std::string("Sheet2")));
}

TEST(TableAddressTest, PersistsAsAVariantWithTheNameFirst)
{
    EXPECT_EQ(toJson(TableAddress(std::string("Sheet1"))), R"({"object":{"which":0,"data":"Sheet1"}})");
    EXPECT_EQ(toJson(TableAddress(UUID("219be34f-66e7-4590-8db5-375443207e49"))),
              R"({"object":{"which":1,"data":{"_id":"219be34f-66e7-4590-8db5-375443207e49"}}})");
    expectPersists(TableAddress(std::string("Sheet1")));
    expectPersists(TableAddress(UUID("219be34f-66e7-4590-8db5-375443207e49")));
    EXPECT_EQ(loadError<TableAddress>(R"({"object":{"which":2,"data":""}})"),
              "Invalid 'which' selector when deserializing boost::variant");
}

} // namespace QN::DOM::FormulaSyntaxTree::TableAddressTest
