#include "DOM/PredefinedStyles/DOM_PredefinedTableStylesUtils.h"

#include <gtest/gtest.h>

#include "DOM/Properties/DOM_NamedTableStyle.h"
#include "DOM/Properties/DOM_Styles.h"

namespace QN::DOM::PredefinedTableStylesUtilsTest {

TEST(PredefinedTableStylesUtilsDeathTest, NoneOfTheFunctionsIsImplemented)
{
    const auto type = PredefinedStyleName::Normal;
    Styles styles;
    EXPECT_DEATH(makePredefinedTableStyleName(type),
                 "makePredefinedTableStyleName\\(.*\\) is not implemented\n$");
    EXPECT_DEATH(makePredefinedTableStyleUUID(type),
                 "makePredefinedTableStyleUUID\\(.*\\) is not implemented\n$");
    EXPECT_DEATH(makePredefinedTableStyle(type), "makePredefinedTableStyle\\(.*\\) is not implemented\n$");
    EXPECT_DEATH(
        getPredefinedTableStyleUUID(styles, type),
        "getPredefinedTableStyleUUID\\(const .*Styles ?&, .*PredefinedStyleName\\) is not implemented\n$");
    EXPECT_DEATH(appendPredefinedTableStyles(styles),
                 "void .*appendPredefinedTableStyles\\(.*Styles ?&\\) is not implemented\n$");
}

} // namespace QN::DOM::PredefinedTableStylesUtilsTest
