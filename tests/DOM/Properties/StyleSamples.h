#pragma once

#include <gtest/gtest.h>

#include <cstddef>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "DOM/DOM_TrackedObject.h"
#include "DOM/Properties/DOM_FontProps.h"
#include "DOM/Properties/DOM_ParaProps.h"
#include "DOM/Properties/DOM_RegularLineProps.h"
#include "DOM/Properties/DOM_RunProps.h"
#include "DOM/Properties/DOM_SharedObjectFactory.h"
#include "DOM/Properties/PaintSamples.h"
#include "DOM/Tables/Properties/CellFormatModel/DOM_CellFormat.h"
#include "DOM/Tables/Properties/DOM_BordersProps.h"
#include "DOM/Tables/Properties/DOM_CellProps.h"
#include "DOM/Tables/Properties/DOM_ColumnProps.h"
#include "DOM/Tables/Properties/DOM_RowProps.h"
#include "DOM/Tables/Properties/DOM_TableProps.h"

/// Property sets for the tests of what holds them.

/// For optionals and variants, which cannot be printed.
#define EXPECT_SAME(left, right) EXPECT_TRUE((left) == (right))

namespace QN::Test {

/// A value with one change made to it.
template <class T, class Change>
T with(Change change)
{
    T value;
    change(value);
    return value;
}

template <class T, class Change>
std::shared_ptr<const T> sharedWith(Change change)
{
    return std::make_shared<const T>(with<T>(change));
}

inline const UUID SomeUUID("00000000-0000-0000-0000-000000000001");
inline const UUID OtherUUID("00000000-0000-0000-0000-000000000002");

inline std::shared_ptr<const DOM::FontProps> makeFont(std::string family, float size)
{
    return sharedWith<DOM::FontProps>([&](DOM::FontProps& props) {
        props.setFont(std::move(family));
        props.setSize(size);
    });
}

inline std::shared_ptr<const DOM::RunProps> makeRunProps(float spacing)
{
    return sharedWith<DOM::RunProps>([&](DOM::RunProps& props) { props.setSpacing(spacing); });
}

inline std::shared_ptr<const DOM::ParaProps> makeParaProps(float leftIndent)
{
    return sharedWith<DOM::ParaProps>([&](DOM::ParaProps& props) { props.setLeftIndent(leftIndent); });
}

inline std::shared_ptr<const DOM::RegularLineProps> makeLine(float width)
{
    return sharedWith<DOM::RegularLineProps>([&](DOM::RegularLineProps& line) { line.setWidth(width); });
}

inline std::shared_ptr<const DOM::BordersProps> makeBorders(float width)
{
    return sharedWith<DOM::BordersProps>(
        [&](DOM::BordersProps& borders) { borders.setBottom(makeLine(width)); });
}

/// Run properties of which no member is absent.
inline DOM::RunProps makeFullRunProps()
{
    return with<DOM::RunProps>([](DOM::RunProps& props) {
        props.setBackgroundColor(makeColor(1, 2, 3, 4));
        props.setCaps(true);
        props.setColor(makeSlotColor(DOM::ThemeColorId::Accent1));
        props.setFontProps(makeFont("Quillon Serif", 11.5F));
        props.setSmallCaps(false);
        props.setSpacing(-0.5F);
        props.setStrikeThrough(true);
        props.setEmbossed(false);
        props.setEngraved(true);
        props.setUnderline(makeLine(1.5F));
        props.setShadow(false);
    });
}

/// Paragraph properties of which no member is absent.
inline DOM::ParaProps makeFullParaProps()
{
    return with<DOM::ParaProps>([](DOM::ParaProps& props) {
        props.setBeforeSpacing(DOM::SpacingValue(6.0F));
        props.setAfterSpacing(DOM::SpacingValue::createAutoValue());
        props.setLineSpacing(DOM::LineSpacing(12.5F, DOM::LineSpacingRule::AtLeast));
        props.setBorders(makeBorders(2.0F));
        props.setAlignment(DOM::Alignment::Justify);
        props.setLeftIndent(36.0F);
        props.setRightIndent(-18.0F);
        props.setFirstLineIndent(9.0F);
        props.setIgnoreInternalParagraphSpacing(true);
        props.setKeepNext(false);
        props.setKeepLines(true);
        props.setPageBreakBefore(false);
        props.setOrphanLines(static_cast<unsigned char>(2));
        props.setWidowLines(static_cast<unsigned char>(255));
        DOM::TabStops stops;
        stops[72.0F].setType(DOM::TabStopType::Decimal);
        stops[72.0F].setTabStopChar(std::string(","));
        stops[-10.0F].setLeader(DOM::TabStopLeader::Dot);
        props.setTabStops(std::move(stops));
        props.setOutlineLevel(8UL);
    });
}

inline std::shared_ptr<const DOM::CellProps> makeCellProps(float width)
{
    return sharedWith<DOM::CellProps>([&](DOM::CellProps& props) { props.setWidth(width); });
}

inline std::shared_ptr<const DOM::TableProps> makeTableProps(float indent)
{
    return sharedWith<DOM::TableProps>([&](DOM::TableProps& props) { props.setLeadingIndent(indent); });
}

inline std::shared_ptr<const DOM::RowProps> makeRowProps(bool isHidden)
{
    return sharedWith<DOM::RowProps>([&](DOM::RowProps& props) { props.setHidden(isHidden); });
}

inline std::shared_ptr<const DOM::ColumnProps> makeColumnProps(float width)
{
    return sharedWith<DOM::ColumnProps>([&](DOM::ColumnProps& props) { props.setWidth(width); });
}

/// A format of so many empty rules.
inline std::shared_ptr<const DOM::CellFormat> makeCellFormat(std::size_t ruleCount)
{
    DOM::CellFormatModel::Expression expression;
    expression.setRules(std::vector<DOM::CellFormatModel::Rule>(ruleCount));
    return std::make_shared<const DOM::CellFormat>(std::move(expression));
}

/// A handle of its own, whatever other handles there are to an equal style.
template <class T>
DOM::SharedStylePtr<T> share(T style)
{
    return DOM::SharedObjectFactory().create(std::move(style));
}

/// A handle that holds an empty style, as a file can state one.
template <class T>
DOM::SharedStylePtr<T> shareEmpty()
{
    return DOM::SharedStylePtr<T>(new DOM::SharedStyle<T>());
}

template <class T>
T withParent(const UUID& uuid)
{
    return with<T>([&](T& style) { style.setParentUUID(uuid); });
}

/// An author without a date.
inline DOM::TrackChangesInfo makeInfo(std::string author)
{
    return DOM::TrackChangesInfo(DOM::UserInfo(std::move(author), ""), boost::none);
}

template <class V>
std::shared_ptr<const DOM::TrackedObject<V>> makeTracked(V value)
{
    return std::make_shared<const DOM::TrackedObject<V>>(makeInfo("Ada"), std::move(value));
}

} // namespace QN::Test
