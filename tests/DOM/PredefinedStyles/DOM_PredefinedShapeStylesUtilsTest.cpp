#include "DOM/PredefinedStyles/DOM_PredefinedShapeStylesUtils.h"

#include <gtest/gtest.h>

#include "DOM/PredefinedStyles/NotImplemented.h"
#include "DOM/Properties/DOM_NamedShapeStyle.h"
#include "DOM/Properties/DOM_Styles.h"

namespace QN::DOM::PredefinedShapeStylesUtilsTest {

using namespace Test;

TEST(PredefinedShapeStylesUtilsDeathTest, EachFunctionFailsWithItsFullSignature)
{
    const auto type = PredefinedStyleName::Normal;
    Styles styles;
    EXPECT_DEATH(makePredefinedShapeStyleName(type),
                 makeNotImplementedPattern(
                     "std::string QN::DOM::makePredefinedShapeStyleName\\(.*PredefinedStyleName\\)"));
    EXPECT_DEATH(makePredefinedShapeStyleUUID(type),
                 makeNotImplementedPattern(
                     "QN::UUID QN::DOM::makePredefinedShapeStyleUUID\\(.*PredefinedStyleName\\)"));
    EXPECT_DEATH(makePredefinedShapeStyle(type),
                 makeNotImplementedPattern("QN::DOM::NamedShapeStyle "
                                           "QN::DOM::makePredefinedShapeStyle\\(.*PredefinedStyleName\\)"));
    EXPECT_DEATH(getPredefinedShapeStyleUUID(styles, type),
                 makeNotImplementedPattern("QN::UUID QN::DOM::getPredefinedShapeStyleUUID"
                                           "\\(const .*Styles ?&, .*PredefinedStyleName\\)"));
    EXPECT_DEATH(appendPredefinedShapeStyles(styles),
                 makeNotImplementedPattern("void QN::DOM::appendPredefinedShapeStyles\\(.*Styles ?&\\)"));
}

} // namespace QN::DOM::PredefinedShapeStylesUtilsTest
