#include "DOM/DOM_FieldRun.h"

#include <gtest/gtest.h>

#include <type_traits>
#include <utility>
#include <vector>

#include "DOM/TextSamples.h"
#include "DOM/ValueChecks.h"
#include "Support/RoundTrip.h"

namespace QN::DOM::FieldRunTest {
namespace {

using namespace QN::Test;

static_assert(
    std::is_same_v<FieldRun::FieldInfo,
                   boost::variant<PageReferenceInfo,
                                  TaggedValue<boost::optional<NumberFormatType>, FieldRun::PageNumberTag>,
                                  PagesCountInfo, TaggedValue<CellFormat, FieldRun::DateTag>,
                                  TaggedValue<CellFormat, FieldRun::TimeTag>,
                                  TaggedEmpty<FieldRun::FilePathTag>, TaggedEmpty<FieldRun::FileNameTag>,
                                  TaggedEmpty<FieldRun::TableNameTag>, TaggedEmpty<FieldRun::TitleTag>>>);

/// A format that is not the default one.
CellFormat makeFormat()
{
    CellFormatModel::Expression expression;
    expression.setDefaultNumberRule(CellFormatModel::Rule());
    return CellFormat(expression);
}

/// Each alternative in order, with what it holds in a file.
std::vector<std::pair<FieldRun::FieldInfo, std::string>> makeFields()
{
    const boost::optional<NumberFormatType> roman = NumberFormatType::UpperRoman;
    const std::string formatJson = R"({"_value":)" + toJson(makeFormat()) + "}";
    return {
        {PageReferenceInfo("name"), R"({"_referredBookmarkName":"name"})"},
        {FieldRun::PageNumberInfo(roman), R"({"_value":{"hasValue":true,"value":1}})"},
        {PagesCountInfo(boost::optional<NumberFormatType>(roman)),
         R"({"_numberFormatType":{"hasValue":true,"value":1}})"},
        {FieldRun::DateInfo(makeFormat()), formatJson},
        {FieldRun::TimeInfo(makeFormat()), formatJson},
        {FieldRun::FilePathInfo(), "{}"},
        {FieldRun::FileNameInfo(), "{}"},
        {FieldRun::TableNameInfo(), "{}"},
        {FieldRun::TitleInfo(), "{}"},
    };
}

TEST(DOM_FieldRun, IsAReferenceToAPageByDefault)
{
    const FieldRun run;
    EXPECT_EQ(run.getFieldInfo().which(), 0);
    EXPECT_EQ(boost::get<PageReferenceInfo>(run.getFieldInfo()), PageReferenceInfo());
}

TEST(DOM_FieldRun, ReadsAsTheFieldCharacterWhateverItShows)
{
    for (const auto& [info, json] : makeFields()) {
        EXPECT_EQ(FieldRun(info).getText(), "\xEE\x80\x82");
    }
}

TEST(DOM_FieldRun, WritesTheNumberAndTheDataOfItsKind)
{
    int which = 0;
    for (const auto& [info, json] : makeFields()) {
        EXPECT_EQ(toJson(FieldRun(info)), std::string("{") + PlainRunJson + R"(,"_data":{"which":)" +
                                              std::to_string(which++) + R"(,"data":)" + json + "}}");
    }
}

TEST(DOM_FieldRun, PersistsEachKind)
{
    expectPersists(FieldRun());
    for (const auto& [info, json] : makeFields()) {
        expectPersists(FieldRun(info));
    }
}

TEST(DOM_FieldRun, AKindThatDoesNotExistIsRefused)
{
    const std::string start = std::string("{") + PlainRunJson + R"(,"_data":{"which":)";
    EXPECT_EQ(loadError<FieldRun>(start + R"(9,"data":{}}})"),
              "Invalid 'which' selector when deserializing boost::variant");
    EXPECT_EQ(loadError<FieldRun>(start + R"(-1,"data":{}}})"), "Error traversing variant during load");
}

TEST(DOM_FieldRun, ComparesKindAndData)
{
    const auto fields = makeFields();
    for (std::size_t left = 0; left < fields.size(); ++left) {
        for (std::size_t right = 0; right < fields.size(); ++right) {
            EXPECT_EQ(FieldRun(fields[left].first) == FieldRun(fields[right].first), left == right)
                << left << ' ' << right;
        }
    }
    EXPECT_NE(FieldRun(PageReferenceInfo("a")), FieldRun(PageReferenceInfo("b")));
    EXPECT_NE(FieldRun(FieldRun::DateInfo(makeFormat())), FieldRun(FieldRun::DateInfo()));
    EXPECT_NE(FieldRun(FieldRun::PageNumberInfo(NumberFormatType::UpperRoman)),
              FieldRun(FieldRun::PageNumberInfo()));
    FieldRun styled;
    styled.getSharedStyle() = makeSharedStyle<RunStyle>('1');
    EXPECT_NE(styled, FieldRun());
}

TEST(DOM_FieldRun, ItsDataCanBeChangedInPlace)
{
    FieldRun run;
    run.getFieldInfo() = FieldRun::TitleInfo();
    EXPECT_EQ(run, FieldRun(FieldRun::TitleInfo()));
}

TEST(DOM_FieldRun, ACopySharesTheToken)
{
    const FieldRun run;
    EXPECT_EQ(FieldRun(run).getID(), run.getID());
    EXPECT_EQ(dynamic_cast<const FieldRun&>(*cloneUnique<DOM::Run>(run)).getID(), run.getID());
}

TEST(DOM_FieldRun, AnAssignedOrMovedRunSharesTheToken)
{
    FieldRun run;
    FieldRun assigned;
    assigned = run;
    EXPECT_EQ(assigned.getID(), run.getID());
    const auto token = run.getID();
    EXPECT_EQ(FieldRun(std::move(run)).getID(), token);
}

TEST(DOM_FieldRun, TheTokenIsNoPartOfEquality)
{
    const FieldRun run;
    const FieldRun other;
    EXPECT_NE(run.getID(), other.getID());
    EXPECT_EQ(run, other);
}

TEST(DOM_FieldRun, ALoadedRunHasATokenOfItsOwn)
{
    const FieldRun run;
    EXPECT_NE(fromJson<FieldRun>(toJson(run)).getID(), run.getID());
}

TEST(DOM_FieldRun, CopiesAndMoves)
{
    for (const auto& [info, json] : makeFields()) {
        expectCopiesAndMoves(FieldRun(info));
    }
}

} // namespace
} // namespace QN::DOM::FieldRunTest
