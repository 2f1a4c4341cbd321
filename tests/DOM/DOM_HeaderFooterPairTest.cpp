#include "DOM/DOM_HeaderFooterPair.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <type_traits>
#include <utility>

#include "DOM/DOM_Paragraph.h"
#include "DOM/Properties/StyleSamples.h"
#include "DOM/ValueChecks.h"
#include "Support/RoundTrip.h"

namespace QN::DOM::HeaderFooterPairTest {

using namespace Test;

static_assert(std::is_base_of_v<UUIDable, HeaderFooterPair>);
static_assert(static_cast<int>(HeaderFooterType::Header) == 0);
static_assert(static_cast<int>(HeaderFooterType::Footer) == 1);

namespace {

constexpr auto Header = HeaderFooterType::Header;
constexpr auto Footer = HeaderFooterType::Footer;
constexpr auto NoSide = static_cast<HeaderFooterType>(2);

constexpr const char* NilUUID = R"({"_id":"00000000-0000-0000-0000-000000000000"})";
constexpr const char* EmptyText =
    R"({"ptr_wrapper":{"valid":1,"data":{"_blocks":[],"_tombstones":{"_tombstones":[]}}}})";

TextWithTombstones makeText(std::size_t blocks)
{
    TextWithTombstones text;
    for (std::size_t block = 0; block < blocks; ++block) {
        text.getBlocks().push_back(std::make_unique<Paragraph>());
    }
    return text;
}

PageNumber makeNumber(HeaderFooterAlignment alignment)
{
    return PageNumber(alignment, RunStyle(), NumberFormatType::Decimal);
}

HeaderFooterPair makeFullPair()
{
    HeaderFooterPair pair(SomeUUID);
    pair.setHeader(makeText(1));
    pair.setFooter(makeText(2));
    pair.setHeaderPageNumber(makeNumber(HeaderFooterAlignment::Left));
    pair.setFooterPageNumber(makeNumber(HeaderFooterAlignment::Right));
    pair.setNextHeaderFooterUUID(OtherUUID);
    pair.getPageProps().setWidth(595.0F);
    return pair;
}

} // namespace

TEST(HeaderFooterPairTest, ANewPairHasAnIdentityAndTwoEmptyTexts)
{
    const HeaderFooterPair pair;
    EXPECT_TRUE(pair.getUUID());
    EXPECT_TRUE(pair.getHeader().getBlocks().empty());
    EXPECT_TRUE(pair.getFooter().getBlocks().empty());
    EXPECT_NE(&pair.getHeader(), &pair.getFooter());
    EXPECT_FALSE(pair.getHeaderPageNumber());
    EXPECT_FALSE(pair.getFooterPageNumber());
    EXPECT_FALSE(pair.getNextHeaderFooterUUID());
    EXPECT_EQ(pair.getPageProps(), PageProps());
    EXPECT_TRUE(pair.isEmpty());
    EXPECT_TRUE(pair.isEmpty(Header));
    EXPECT_TRUE(pair.isEmpty(Footer));
}

TEST(HeaderFooterPairTest, TheBaseIsWrittenFirstAndThenEachKeyInOrder)
{
    EXPECT_EQ(toJson(HeaderFooterPair(SomeUUID)),
              R"({"value0":{"_uuid":{"_id":")" + SomeUUID.toString() + R"("}},"_header":)" + EmptyText +
                  R"(,"_footer":)" + EmptyText +
                  R"(,"_headerPageNumber":{"hasValue":false},"_footerPageNumber":{"hasValue":false},)"
                  R"("_nextHeaderFooterUUID":)" +
                  NilUUID + R"(,"_pageProps":)" + toJson(PageProps()) + "}");
}

TEST(HeaderFooterPairTest, ASetMemberIsReadBackAndPersists)
{
    const HeaderFooterPair pair = makeFullPair();
    EXPECT_EQ(pair.getHeader().getBlocks().size(), 1U);
    EXPECT_EQ(pair.getFooter().getBlocks().size(), 2U);
    EXPECT_SAME(pair.getHeaderPageNumber(), makeNumber(HeaderFooterAlignment::Left));
    EXPECT_SAME(pair.getFooterPageNumber(), makeNumber(HeaderFooterAlignment::Right));
    EXPECT_EQ(pair.getNextHeaderFooterUUID(), OtherUUID);
    EXPECT_SAME(pair.getPageProps().getWidth(), 595.0F);
    expectPersists(pair);
    expectPersists(HeaderFooterPair());
    expectCopiesAndMoves(pair);
}

TEST(HeaderFooterPairTest, ASidePicksTheTextAndThePageNumber)
{
    HeaderFooterPair pair;
    const HeaderFooterPair& constPair = pair;
    pair.setHeaderOrFooter(makeText(1), Header);
    pair.setHeaderOrFooter(makeText(2), Footer);
    pair.setHeaderOrFooterPageNumber(makeNumber(HeaderFooterAlignment::Center), Header);
    EXPECT_EQ(&pair.getHeaderOrFooter(Header), &pair.getHeader());
    EXPECT_EQ(&pair.getHeaderOrFooter(Footer), &pair.getFooter());
    EXPECT_EQ(&constPair.getHeaderOrFooter(Header), &constPair.getHeader());
    EXPECT_EQ(&constPair.getHeaderOrFooter(Footer), &constPair.getFooter());
    EXPECT_EQ(pair.getHeader().getBlocks().size(), 1U);
    EXPECT_EQ(pair.getFooter().getBlocks().size(), 2U);
    EXPECT_SAME(pair.getHeaderPageNumber(), makeNumber(HeaderFooterAlignment::Center));
    EXPECT_SAME(pair.getHeaderOrFooterPageNumber(Header), makeNumber(HeaderFooterAlignment::Center));
    EXPECT_FALSE(pair.getHeaderOrFooterPageNumber(Footer));
    pair.setHeaderOrFooterPageNumber(makeNumber(HeaderFooterAlignment::Right), Footer);
    pair.setHeaderOrFooterPageNumber(boost::none, Header);
    EXPECT_FALSE(pair.getHeaderPageNumber());
    EXPECT_SAME(pair.getFooterPageNumber(), makeNumber(HeaderFooterAlignment::Right));
}

TEST(HeaderFooterPairTest, ASideWithBlocksIsNotEmpty)
{
    HeaderFooterPair pair;
    pair.getFooter().getBlocks().push_back(std::make_unique<Paragraph>());
    EXPECT_TRUE(pair.isEmpty(Header));
    EXPECT_FALSE(pair.isEmpty(Footer));
    EXPECT_FALSE(pair.isEmpty());
    pair.setFooter(TextWithTombstones());
    pair.setHeader(makeText(1));
    EXPECT_FALSE(pair.isEmpty(Header));
    EXPECT_TRUE(pair.isEmpty(Footer));
    EXPECT_FALSE(pair.isEmpty());
}

TEST(HeaderFooterPairTest, PageNumbersAndTombstonesDoNotCountAsContent)
{
    HeaderFooterPair pair;
    pair.setHeaderPageNumber(PageNumber());
    pair.getHeader().getTombstones().insertElement(CollaborationUtils::IndexIncludingTombstones(0));
    pair.getHeader().getTombstones().replaceWithTombstone(CollaborationUtils::IndexIncludingTombstones(0));
    EXPECT_EQ(pair.getHeader().getTombstones().getTombstonesCount(), 1U);
    EXPECT_TRUE(pair.isEmpty());
}

TEST(HeaderFooterPairDeathTest, ThereIsNoThirdSide)
{
    constexpr const char* Expected = "DOM/DOM_HeaderFooterPair:[0-9]+: Unknown header footer type";
    HeaderFooterPair pair;
    const HeaderFooterPair& constPair = pair;
    EXPECT_DEATH(pair.getHeaderOrFooter(NoSide), Expected);
    EXPECT_DEATH(constPair.getHeaderOrFooter(NoSide), Expected);
    EXPECT_DEATH(pair.setHeaderOrFooter(TextWithTombstones(), NoSide), Expected);
    EXPECT_DEATH(pair.getHeaderOrFooterPageNumber(NoSide), Expected);
    EXPECT_DEATH(pair.setHeaderOrFooterPageNumber(boost::none, NoSide), Expected);
    EXPECT_DEATH(pair.isEmpty(NoSide), Expected);
}

TEST(HeaderFooterPairTest, TheIdentitiesOfTheTextsAreMadeOfThePairAndTheSide)
{
    const HeaderFooterPair pair(SomeUUID);
    const HeaderFooterPair other(OtherUUID);
    EXPECT_TRUE(pair.getHeaderUUID());
    EXPECT_EQ(pair.getHeaderUUID(), HeaderFooterPair(SomeUUID).getHeaderUUID());
    EXPECT_EQ(pair.getFooterUUID(), HeaderFooterPair(SomeUUID).getFooterUUID());
    EXPECT_NE(pair.getHeaderUUID(), pair.getFooterUUID());
    EXPECT_NE(pair.getHeaderUUID(), other.getHeaderUUID());
    EXPECT_NE(pair.getFooterUUID(), other.getFooterUUID());
    EXPECT_NE(pair.getHeaderUUID(), pair.getUUID());
}

TEST(HeaderFooterPairTest, ACopyIsDeepAndHasTheIdentityOfItsSource)
{
    const HeaderFooterPair pair = makeFullPair();
    HeaderFooterPair copy(pair);
    EXPECT_EQ(copy, pair);
    EXPECT_EQ(copy.getUUID(), pair.getUUID());
    EXPECT_NE(&std::as_const(copy).getHeader(), &pair.getHeader());
    copy.getHeader().getBlocks().clear();
    copy.getFooter().getBlocks().clear();
    copy.getPageProps().setWidth(boost::none);
    EXPECT_EQ(pair, makeFullPair());
}

TEST(HeaderFooterPairTest, EachMemberAndTheIdentityTakePartInEquality)
{
    const auto changed = [](auto change) {
        HeaderFooterPair pair = makeFullPair();
        change(pair);
        return pair;
    };
    EXPECT_NE(makeFullPair(), changed([](HeaderFooterPair& p) { p.setUUID(OtherUUID); }));
    EXPECT_NE(makeFullPair(), changed([](HeaderFooterPair& p) { p.getHeader().getBlocks().clear(); }));
    EXPECT_NE(makeFullPair(), changed([](HeaderFooterPair& p) { p.getFooter().getBlocks().clear(); }));
    EXPECT_NE(makeFullPair(), changed([](HeaderFooterPair& p) { p.setHeaderPageNumber(boost::none); }));
    EXPECT_NE(makeFullPair(), changed([](HeaderFooterPair& p) { p.setFooterPageNumber(PageNumber()); }));
    EXPECT_NE(makeFullPair(), changed([](HeaderFooterPair& p) { p.setNextHeaderFooterUUID(UUID()); }));
    EXPECT_NE(makeFullPair(), changed([](HeaderFooterPair& p) { p.getPageProps().setHeight(1.0F); }));
}

TEST(HeaderFooterPairDeathTest, TheTextsOfAPairThatWasMovedFromAreNotRead)
{
    HeaderFooterPair pair = makeFullPair();
    const HeaderFooterPair moved(std::move(pair));
    const HeaderFooterPair& constPair = pair;
    EXPECT_DEATH(pair.getHeader(), "Utils/Public/Ptr/PtrUtils:246: plainPtr");
    EXPECT_DEATH(pair.getFooter(), "Utils/Public/Ptr/PtrUtils:246: plainPtr");
    EXPECT_DEATH(constPair.getHeader(), "Utils/Public/Ptr/PtrUtils:254: plainPtr");
    EXPECT_DEATH(constPair.getFooter(), "Utils/Public/Ptr/PtrUtils:254: plainPtr");
    EXPECT_DEATH(pair.getHeaderOrFooter(Header), "Utils/Public/Ptr/PtrUtils:246: plainPtr");
    EXPECT_DEATH(constPair.getHeaderOrFooter(Footer), "Utils/Public/Ptr/PtrUtils:254: plainPtr");
    EXPECT_DEATH(constPair.isEmpty(), "Utils/Public/Ptr/PtrUtils:254: plainPtr");

    pair.setHeader(makeText(1));
    pair.setHeaderOrFooter(makeText(1), Footer);
    EXPECT_EQ(pair.getHeader().getBlocks().size(), 1U);
    EXPECT_EQ(pair.getFooter().getBlocks().size(), 1U);
}

TEST(HeaderFooterPairTest, AMissingTextCanBeSeenBeforeItIsRead)
{
    HeaderFooterPair pair = makeFullPair();
    EXPECT_EQ(pair.findHeaderOrFooter(Header), &pair.getHeader());
    EXPECT_EQ(pair.findHeaderOrFooter(Footer), &pair.getFooter());
    const HeaderFooterPair moved(std::move(pair));
    EXPECT_EQ(pair.findHeaderOrFooter(Header), nullptr);
    EXPECT_EQ(pair.findHeaderOrFooter(Footer), nullptr);
}

TEST(HeaderFooterPairTest, AMissingTextFromAFileStaysAndIsCopiedComparedAndSaved)
{
    std::string json = toJson(HeaderFooterPair(SomeUUID));
    json.replace(json.find(EmptyText), std::string(EmptyText).size(), R"({"ptr_wrapper":{"valid":0}})");
    const auto pair = fromJson<HeaderFooterPair>(json);
    EXPECT_EQ(toJson(pair), json);
    EXPECT_EQ(HeaderFooterPair(pair), pair);
    EXPECT_NE(pair, HeaderFooterPair(SomeUUID));
}

} // namespace QN::DOM::HeaderFooterPairTest
