#include "DOM/Tables/Properties/DOM_BordersUtils.h"

#include <boost/variant/get.hpp>

#include "DOM/Properties/DOM_RegularLineProps.h"
#include "DOM/Tables/Properties/DOM_BordersProps.h"

namespace QN::DOM {

namespace {

using Line = std::shared_ptr<const LineProps>;
using EdgeSetter = void (BordersProps::*)(Line);

const Line& getNoBorderLine()
{
    static const Line line = [] {
        auto noBorder = std::make_shared<RegularLineProps>();
        noBorder->setDashStyle(DashStyle::None);
        return noBorder;
    }();
    return line;
}

void resetAll(BordersProps& borders)
{
    for (const EdgeSetter setEdge :
         {&BordersProps::setBottom, &BordersProps::setLeft, &BordersProps::setRight, &BordersProps::setTop,
          &BordersProps::setDiagonalDown, &BordersProps::setDiagonalUp, &BordersProps::setVertical,
          &BordersProps::setHorizontal}) {
        (borders.*setEdge)(getNoBorderLine());
    }
}

void setEdgeAndResetOther(BordersProps& borders, EdgeSetter setEdge, const Line& line)
{
    const Line kept = line;
    resetAll(borders);
    (borders.*setEdge)(kept);
}

/// Null for a reference to the theme and for a line without dash style.
const RegularLineProps* getStyledLine(const Line& line)
{
    const auto* const regular = dynamic_cast<const RegularLineProps*>(line.get());
    return regular != nullptr && regular->getDashStyle() ? regular : nullptr;
}

const cinder::ColorAT<unsigned char>* getLiteralColor(const RegularLineProps& line)
{
    const auto& color = line.getColor();
    return color ? boost::get<cinder::ColorAT<unsigned char>>(&color->getValue()) : nullptr;
}

/// The luma weights of ITU-R BT.601, in thousandths.
int getBrightness(const cinder::ColorAT<unsigned char>& color)
{
    return 299 * color.r + 587 * color.g + 114 * color.b;
}

bool isSecondPreferred(const RegularLineProps& first, const RegularLineProps& second)
{
    if (second.getDashStyle() == DashStyle::None) {
        return false;
    }
    if (first.getDashStyle() == DashStyle::None) {
        return true;
    }
    const float firstWidth = first.getWidth().value_or(0.0F);
    const float secondWidth = second.getWidth().value_or(0.0F);
    if (firstWidth > secondWidth || secondWidth > firstWidth) {
        return secondWidth > firstWidth;
    }
    const auto* const firstColor = getLiteralColor(first);
    const auto* const secondColor = getLiteralColor(second);
    if (firstColor == nullptr || secondColor == nullptr) {
        return firstColor == nullptr && secondColor != nullptr;
    }
    return getBrightness(*secondColor) < getBrightness(*firstColor);
}

} // namespace

void setBorderPerimeter(BordersProps& borders, const std::shared_ptr<const LineProps>& line)
{
    const Line kept = line;
    borders.setBottom(kept);
    borders.setLeft(kept);
    borders.setRight(kept);
    borders.setTop(kept);
}

void setBorderPerimeterAndResetOther(BordersProps& borders, const std::shared_ptr<const LineProps>& line)
{
    const Line kept = line;
    resetAll(borders);
    setBorderPerimeter(borders, kept);
}

void setBorderBottomAndResetOther(BordersProps& borders, const std::shared_ptr<const LineProps>& line)
{
    setEdgeAndResetOther(borders, &BordersProps::setBottom, line);
}

void setBorderLeftAndResetOther(BordersProps& borders, const std::shared_ptr<const LineProps>& line)
{
    setEdgeAndResetOther(borders, &BordersProps::setLeft, line);
}

void setBorderRightAndResetOther(BordersProps& borders, const std::shared_ptr<const LineProps>& line)
{
    setEdgeAndResetOther(borders, &BordersProps::setRight, line);
}

void setBorderTopAndResetOther(BordersProps& borders, const std::shared_ptr<const LineProps>& line)
{
    setEdgeAndResetOther(borders, &BordersProps::setTop, line);
}

std::shared_ptr<const LineProps> getPreferedBorder(const std::shared_ptr<const LineProps>& a,
                                                   const std::shared_ptr<const LineProps>& b)
{
    if (!a || !b) {
        return a ? a : b;
    }
    const RegularLineProps* const first = getStyledLine(a);
    const RegularLineProps* const second = getStyledLine(b);
    if (first == nullptr || second == nullptr) {
        return first == nullptr && second != nullptr ? b : a;
    }
    return isSecondPreferred(*first, *second) ? b : a;
}

} // namespace QN::DOM
