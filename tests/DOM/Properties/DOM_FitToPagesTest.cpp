#include "DOM/Properties/DOM_FitToPages.h"

#include <gtest/gtest.h>

#include "DOM/Properties/StyleSamples.h"
#include "DOM/ValueChecks.h"
#include "Support/RoundTrip.h"

namespace QN::DOM::FitToPagesTest {

using namespace Test;

TEST(FitToPagesTest, BothCountsAreAbsentByDefault)
{
    EXPECT_FALSE(FitToPages().getValueByWide());
    EXPECT_FALSE(FitToPages().getValueByTall());
    EXPECT_EQ(toJson(FitToPages()),
              R"({"_valueByWide":{"hasValue":false},"_valueByTall":{"hasValue":false}})");
}

TEST(FitToPagesTest, ASetCountIsReadBackAndPersists)
{
    const auto fit = with<FitToPages>([](FitToPages& f) {
        f.setValueByWide(1UL);
        f.setValueByTall(0UL);
    });
    EXPECT_SAME(fit.getValueByWide(), 1UL);
    EXPECT_SAME(fit.getValueByTall(), 0UL);
    EXPECT_NE(fit, FitToPages());
    EXPECT_NE(fit, with<FitToPages>([](FitToPages& f) { f.setValueByWide(1UL); }));
    EXPECT_NE(fit, with<FitToPages>([](FitToPages& f) { f.setValueByTall(0UL); }));
    EXPECT_NE(fit, with<FitToPages>([](FitToPages& f) {
                  f.setValueByWide(2UL);
                  f.setValueByTall(0UL);
              }));
    expectPersists(fit);
    expectCopiesAndMoves(fit);
}

} // namespace QN::DOM::FitToPagesTest
