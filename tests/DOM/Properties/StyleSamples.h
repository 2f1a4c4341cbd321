#pragma once

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <utility>

#include "DOM/DOM_TrackedObject.h"
#include "DOM/Properties/DOM_FontProps.h"
#include "DOM/Properties/DOM_ParaProps.h"
#include "DOM/Properties/DOM_RegularLineProps.h"
#include "DOM/Properties/DOM_RunProps.h"
#include "DOM/Properties/PaintSamples.h"
#include "DOM/Tables/Properties/DOM_BordersProps.h"

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
