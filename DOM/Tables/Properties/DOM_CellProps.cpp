#include "DOM/Tables/Properties/DOM_CellProps.h"

#include "DOM/Properties/DOM_Fill.h"
#include "DOM/Properties/DOM_PropertiesResolveUtils.h"
#include "DOM/Shapes/DOM_Insets.h"
#include "DOM/Tables/Properties/DOM_BordersProps.h"
#include "Utils/Public/ClassScheme/Define.h"

namespace QN::DOM {

QN_DEFINE_ORDERED_VALUE(CellProps)
QN_DEFINE_ALGEBRA(CellProps)

namespace {

std::shared_ptr<const CellProps> makeDefaultProps(float sideMargin, VerticalAlignment alignment,
                                                  TextLayout layout)
{
    auto margins = std::make_shared<Insets>();
    margins->setLeft(sideMargin);
    margins->setRight(sideMargin);

    auto props = std::make_shared<CellProps>();
    props->setMargins(std::move(margins));
    props->setVerticalAlignment(alignment);
    props->setTextLayout(layout);
    return props;
}

} // namespace

const std::shared_ptr<const CellProps>& getWordDefaultCellProps()
{
    static const auto props = makeDefaultProps(5.4F, VerticalAlignment::Top, TextLayout::Wrap);
    return props;
}

const std::shared_ptr<const CellProps>& getWorksheetDefaultCellProps()
{
    static const auto props = makeDefaultProps(2.0F, VerticalAlignment::Bottom, TextLayout::SingleLine);
    return props;
}

} // namespace QN::DOM
