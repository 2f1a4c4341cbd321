#include "DOM/PredefinedStyles/DOM_PredefinedShapeStylesUtils.h"

#include <gtest/gtest.h>

#include "DOM/Properties/DOM_NamedShapeStyle.h"
#include "DOM/Properties/DOM_Styles.h"

namespace QN::DOM::PredefinedShapeStylesUtilsTest {

TEST(PredefinedShapeStylesUtilsDeathTest, NoneOfTheFunctionsIsImplemented)
{
    const auto type = PredefinedStyleName::Normal;
    Styles styles;
    EXPECT_DEATH(makePredefinedShapeStyleName(type),
                 "makePredefinedShapeStyleName\\(.*\\) is not implemented\n$");
    EXPECT_DEATH(makePredefinedShapeStyleUUID(type),
                 "makePredefinedShapeStyleUUID\\(.*\\) is not implemented\n$");
    EXPECT_DEATH(makePredefinedShapeStyle(type), "makePredefinedShapeStyle\\(.*\\) is not implemented\n$");
    EXPECT_DEATH(
        getPredefinedShapeStyleUUID(styles, type),
        "getPredefinedShapeStyleUUID\\(const .*Styles ?&, .*PredefinedStyleName\\) is not implemented\n$");
    EXPECT_DEATH(appendPredefinedShapeStyles(styles),
                 "void .*appendPredefinedShapeStyles\\(.*Styles ?&\\) is not implemented\n$");
}

} // namespace QN::DOM::PredefinedShapeStylesUtilsTest
