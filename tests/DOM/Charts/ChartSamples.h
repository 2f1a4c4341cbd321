#pragma once

#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "DOM/Charts/DOM_ChartGraphicProps.h"
#include "DOM/Charts/DOM_Series.h"
#include "DOM/FamilyChecks.h"
#include "DOM/Properties/DOM_NoFill.h"
#include "DOM/Properties/DOM_RunProps.h"
#include "DOM/Properties/DOM_ThemeLineProps.h"
#include "DOM/Tables/DOM_Formula.h"

/// Small parts of charts for the tests of what holds them, and the texts of what is absent.

namespace QN::Test {

inline constexpr const char* UnsetJson = R"({"value":-1})";
inline constexpr const char* NullPlainJson = R"({"ptr_wrapper":{"valid":0}})";
inline constexpr const char* NullSharedJson = R"({"ptr_wrapper":{"id":0}})";

inline std::string makePresentJson(const std::string& value)
{
    return R"({"hasValue":true,"value":)" + value + "}";
}

inline std::string makePlainJson(const std::string& data)
{
    return R"({"ptr_wrapper":{"valid":1,"data":)" + data + "}}";
}

/// Paint of which neither part is stated, and its text.
inline constexpr const char* EmptyPaintJson =
    R"({"_fill":{"polymorphic_id":0},"_lineProps":{"polymorphic_id":0}})";

inline DOM::ChartGraphicProps makePaint()
{
    DOM::ChartGraphicProps paint;
    paint.setFill(std::make_unique<DOM::NoFill>());
    return paint;
}

/// A formula without a tree, told from another one by its flag, and its text.
inline DOM::Formula makeFormula(bool forceFormula = true)
{
    return {nullptr, forceFormula};
}

inline std::string makeFormulaJson(bool forceFormula = true)
{
    return std::string(R"({"_arrayFormulaSize":{"hasValue":false},"_forceFormula":)") +
           (forceFormula ? "true" : "false") +
           R"json(,"_formulaSyntaxTree":{"this->getPtr()":{"polymorphic_id":0}}})json";
}

inline std::shared_ptr<const DOM::RunProps> makeRunProps(bool caps)
{
    DOM::RunProps props;
    props.setCaps(caps);
    return std::make_shared<const DOM::RunProps>(std::move(props));
}

/// Each change makes a copy of the value unequal to it, and the copy still persists.
template <class T, class... Changes>
void expectEachChangeMatters(const T& value, Changes... changes)
{
    int index = 0;
    const auto check = [&](auto change) {
        SCOPED_TRACE(index++);
        T changed(value);
        EXPECT_TRUE(changed == value);
        change(changed);
        EXPECT_FALSE(changed == value);
        EXPECT_FALSE(value == changed);
        expectRoundTrip(changed);
        expectCopiesAndMoves(changed);
    };
    (check(changes), ...);
}

/// Run properties compare by their contents, and a copy shares them.
template <class T>
void expectSharesRunProps(T value)
{
    value.setRunProps(makeRunProps(true));
    T other(value);
    EXPECT_EQ(other.getRunProps(), value.getRunProps());
    other.setRunProps(makeRunProps(true));
    EXPECT_NE(other.getRunProps(), value.getRunProps());
    EXPECT_TRUE(other == value);
    other.setRunProps(makeRunProps(false));
    EXPECT_FALSE(other == value);
    other.setRunProps(nullptr);
    EXPECT_FALSE(other == value);
}

} // namespace QN::Test
