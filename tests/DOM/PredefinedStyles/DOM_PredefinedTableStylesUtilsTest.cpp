#include "DOM/PredefinedStyles/DOM_PredefinedTableStylesUtils.h"

#include <gtest/gtest.h>

#include "DOM/PredefinedStyles/NotImplemented.h"
#include "DOM/Properties/DOM_NamedTableStyle.h"
#include "DOM/Properties/DOM_Styles.h"

namespace QN::DOM::PredefinedTableStylesUtilsTest {

using namespace Test;

TEST(PredefinedTableStylesUtilsDeathTest, EachFunctionFailsWithItsFullSignature)
{
    const auto type = PredefinedStyleName::Normal;
    Styles styles;
    EXPECT_DEATH(makePredefinedTableStyleName(type),
                 makeNotImplementedPattern(
                     "std::string QN::DOM::makePredefinedTableStyleName\\(.*PredefinedStyleName\\)"));
    EXPECT_DEATH(makePredefinedTableStyleUUID(type),
                 makeNotImplementedPattern(
                     "QN::UUID QN::DOM::makePredefinedTableStyleUUID\\(.*PredefinedStyleName\\)"));
    EXPECT_DEATH(makePredefinedTableStyle(type),
                 makeNotImplementedPattern("QN::DOM::NamedTableStyle "
                                           "QN::DOM::makePredefinedTableStyle\\(.*PredefinedStyleName\\)"));
    EXPECT_DEATH(getPredefinedTableStyleUUID(styles, type),
                 makeNotImplementedPattern("QN::UUID QN::DOM::getPredefinedTableStyleUUID"
                                           "\\(const .*Styles ?&, .*PredefinedStyleName\\)"));
    EXPECT_DEATH(appendPredefinedTableStyles(styles),
                 makeNotImplementedPattern("void QN::DOM::appendPredefinedTableStyles\\(.*Styles ?&\\)"));
}

} // namespace QN::DOM::PredefinedTableStylesUtilsTest
