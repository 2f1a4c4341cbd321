#pragma once

#include <cstdint>
#include <memory>
#include <string_view>

#include "DOM/Properties/DOM_CellStyle.h"
#include "DOM/Properties/DOM_LineEndingProps.h"
#include "DOM/Properties/DOM_NoFill.h"
#include "DOM/Properties/DOM_NumberingLevelStyle.h"
#include "DOM/Properties/DOM_NumberingRef.h"
#include "DOM/Properties/DOM_PageProps.h"
#include "DOM/Properties/DOM_ParagraphStyle.h"
#include "DOM/Properties/DOM_ThemeLineProps.h"
#include "DOM/Properties/StyleSamples.h"
#include "DOM/Shapes/DOM_Crop.h"
#include "DOM/Shapes/DOM_Insets.h"
#include "DOM/Shapes/DOM_TextAnchor.h"

/// An example of each class whose properties can be combined.

namespace QN::DOM::AlgebraExamples {

using namespace Test;

using TrackedAction = TrackedObject<TrackChangesType>;
using TrackedParent = TrackedObject<UUID>;
using TrackedRunProps = TrackedObject<std::shared_ptr<const RunProps>>;
using TrackedParaProps = TrackedObject<std::shared_ptr<const ParaProps>>;

/// `said` says all that takes part and can be absent, `sayPlain` sets what always has a value, and `cleared` is what a
/// rebase to nothing leaves.
template <class T>
struct SampleOf {
    static void sayPlain(T&) {}
    static T cleared() { return T(); }
    static bool takesPart(std::string_view) { return true; }
};

template <class T>
struct Example;

template <>
struct Example<FontProps> : SampleOf<FontProps> {
    static FontProps said()
    {
        return with<FontProps>([](FontProps& props) {
            props.setFont(ThemeFontId{});
            props.setSize(11.5F);
            props.setScriptPosition(static_cast<ScriptPosition>(1));
            props.setBold(false);
            props.setItalic(true);
        });
    }
};

template <>
struct Example<RunProps> : SampleOf<RunProps> {
    static RunProps said() { return makeFullRunProps(); }
    static RunProps cleared()
    {
        return with<RunProps>([](RunProps& props) {
            props.setFontProps(std::make_shared<const FontProps>());
            props.setUnderline(std::make_shared<const RegularLineProps>());
        });
    }
};

template <>
struct Example<ParaProps> : SampleOf<ParaProps> {
    static ParaProps said() { return makeFullParaProps(); }
    static ParaProps cleared()
    {
        return with<ParaProps>([](ParaProps& p) { p.setBorders(std::make_shared<const BordersProps>()); });
    }
};

template <>
struct Example<NumberingRef> : SampleOf<NumberingRef> {
    static NumberingRef said()
    {
        return with<NumberingRef>([](NumberingRef& ref) {
            ref.setListTagUUID(ListTagUUID(SomeUUID));
            ref.setNumListUUID(NumListUUID(OtherUUID));
            ref.setLevel(3UL);
        });
    }
};

/// Each side at another distance.
template <class T>
struct SidesExample : SampleOf<T> {
    static T said()
    {
        return with<T>([](T& sides) {
            sides.setLeft(1);
            sides.setRight(2);
            sides.setTop(3);
            sides.setBottom(4);
        });
    }
};

template <>
struct Example<Insets> : SidesExample<Insets> {
};
template <>
struct Example<Crop> : SidesExample<Crop> {
};

template <>
struct Example<LineEndingProps> : SampleOf<LineEndingProps> {
    static LineEndingProps said()
    {
        return with<LineEndingProps>([](LineEndingProps& props) {
            props.setWidth(2.0F);
            props.setEndingStyle(EndingStyle::Oval);
        });
    }
};

template <>
struct Example<PageProps> : SampleOf<PageProps> {
    static PageProps said()
    {
        return with<PageProps>([](PageProps& props) {
            props.setMargins(std::make_shared<const Insets>(Example<Insets>::said()));
            props.setWidth(595.0F);
            props.setHeight(842.0F);
            props.setHeaderHeight(36.0F);
            props.setFooterHeight(18.0F);
            props.setFitSettings(0.5F);
            props.setPageNumberFormat(NumberFormatType::LowerRoman);
        });
    }
    static PageProps cleared()
    {
        return with<PageProps>([](PageProps& p) { p.setMargins(std::make_shared<const Insets>()); });
    }
};

template <>
struct Example<BordersProps> : SampleOf<BordersProps> {
    static BordersProps said()
    {
        return with<BordersProps>([](BordersProps& borders) {
            borders.setBottom(makeLine(1.0F));
            borders.setLeft(makeLine(2.0F));
            borders.setRight(makeLine(3.0F));
            borders.setTop(makeLine(4.0F));
            borders.setDiagonalDown(makeLine(5.0F));
            borders.setDiagonalUp(makeLine(6.0F));
            borders.setVertical(makeLine(7.0F));
            borders.setHorizontal(std::make_shared<const ThemeLineProps>());
        });
    }
};

template <>
struct Example<CellProps> : SampleOf<CellProps> {
    static CellProps said()
    {
        return with<CellProps>([](CellProps& props) {
            props.setBorders(makeBorders(1.0F));
            props.setMargins(std::make_shared<const Insets>(Example<Insets>::said()));
            props.setFill(std::make_shared<const NoFill>());
            props.setVerticalAlignment(VerticalAlignment::Top);
            props.setWidth(80.0F);
            props.setTextLayout(TextLayout::Wrap);
            props.setTextOrientation(-45.0);
        });
    }
    static CellProps cleared()
    {
        return with<CellProps>([](CellProps& props) {
            props.setBorders(std::make_shared<const BordersProps>());
            props.setMargins(std::make_shared<const Insets>());
        });
    }
};

template <>
struct Example<TableProps> : SampleOf<TableProps> {
    static TableProps said() { return *makeTableProps(3.0F); }
    static void sayPlain(TableProps& props) { props.setVisible(false); }
};

template <>
struct Example<RowProps> : SampleOf<RowProps> {
    static RowProps said()
    {
        return with<RowProps>([](RowProps& props) {
            props.setHidden(false);
            props.setHeight(RowHeight(12.0F, RowHeightRule::AtLeast));
            props.setGroupingLevel(std::uint8_t{2});
            props.setPageBreakBefore(true);
        });
    }
};

template <>
struct Example<ColumnProps> : SampleOf<ColumnProps> {
    static ColumnProps said()
    {
        return with<ColumnProps>([](ColumnProps& props) {
            props.setHidden(false);
            props.setBestFit(true);
            props.setWidth(12.0F);
            props.setGroupingLevel(std::uint8_t{2});
            props.setPageBreakBefore(true);
        });
    }
};

template <>
struct Example<TextAnchor> : SampleOf<TextAnchor> {
    static TextAnchor said()
    {
        return with<TextAnchor>([](TextAnchor& anchor) {
            anchor.setType(AnchorWrapType::Tight);
            anchor.setHorizontalPosition(AnchorHorizontalPosition());
            anchor.setVerticalPosition(AnchorVerticalPosition());
            anchor.getDistance() = Example<Insets>::said();
            anchor.setWrapAround(TextAnchor::WrapAround::Largest);
            anchor.setAllowOverlap(false);
            anchor.setBehindDoc(true);
        });
    }
    static void sayPlain(TextAnchor& anchor)
    {
        anchor.getPolygon() = cinder::PolyLine<cinder::Vec2<float>>({{0.0F, 0.0F}, {1.0F, 2.0F}}, true);
    }
};

/// What is behind the pointers of the styles.
template <class T>
std::shared_ptr<const T> sharedSaid()
{
    return std::make_shared<const T>(Example<T>::said());
}

template <class T>
std::shared_ptr<const T> sharedCleared()
{
    return std::make_shared<const T>(Example<T>::cleared());
}

template <>
struct Example<CellStyle> : SampleOf<CellStyle> {
    static CellStyle said()
    {
        return with<CellStyle>([](CellStyle& style) {
            style.setCellProps(sharedSaid<CellProps>());
            style.setCellFormat(makeCellFormat(1));
            style.setParaProps(sharedSaid<ParaProps>());
            style.setRunProps(sharedSaid<RunProps>());
        });
    }
    static void sayPlain(CellStyle& style)
    {
        style.setParentUUID(SomeUUID);
        style.setNoteUUID(OtherUUID);
    }
    static CellStyle cleared()
    {
        return with<CellStyle>([](CellStyle& style) {
            style.setCellProps(sharedCleared<CellProps>());
            style.setParaProps(sharedCleared<ParaProps>());
            style.setRunProps(sharedCleared<RunProps>());
        });
    }
};

template <>
struct Example<ParagraphStyle> : SampleOf<ParagraphStyle> {
    static ParagraphStyle said()
    {
        return with<ParagraphStyle>([](ParagraphStyle& style) {
            style.setParaProps(sharedSaid<ParaProps>());
            style.setRunProps(sharedSaid<RunProps>());
        });
    }
    static void sayPlain(ParagraphStyle& style) { style.setParentUUID(SomeUUID); }
    static bool takesPart(std::string_view name) { return !name.starts_with("_tracked"); }
};

template <>
struct Example<NumberingLevelStyle> : SampleOf<NumberingLevelStyle> {
    static NumberingLevelStyle said() { return {sharedSaid<ParaProps>(), sharedSaid<RunProps>()}; }
};

/// The value alone takes part.
template <class Tracked>
struct TrackedExample : SampleOf<Tracked> {
    static bool takesPart(std::string_view name) { return name != "_info"; }
};

template <>
struct Example<TrackedAction> : TrackedExample<TrackedAction> {
    static TrackedAction said() { return {}; }
    static void sayPlain(TrackedAction& action) { action.setValue(static_cast<TrackChangesType>(7)); }
};

template <>
struct Example<TrackedParent> : TrackedExample<TrackedParent> {
    static TrackedParent said() { return {}; }
    static void sayPlain(TrackedParent& parent) { parent.setValue(SomeUUID); }
};

template <class P>
struct Example<TrackedObject<std::shared_ptr<const P>>>
    : TrackedExample<TrackedObject<std::shared_ptr<const P>>> {
    static TrackedObject<std::shared_ptr<const P>> said() { return {boost::none, sharedSaid<P>()}; }
    static TrackedObject<std::shared_ptr<const P>> cleared() { return {boost::none, sharedCleared<P>()}; }
};

} // namespace QN::DOM::AlgebraExamples
