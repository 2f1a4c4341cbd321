#include "SheetFormats.h"

#include <utility>
#include <vector>

#include "Formulas.h"

namespace Demo {

namespace {

using namespace QN::DOM;
using CellFormatModel::CurrencyItem;
using CellFormatModel::DateTimeItem;
using CellFormatModel::ExtraItem;
using CellFormatModel::NumberItem;
using CellFormatModel::Rule;
using CellFormatModel::TextItem;

CellFormatPtr makeFormat(std::vector<Rule::Item> items)
{
    return std::make_shared<const CellFormat>(
        CellFormatModel::Expression(Rule(std::move(items), boost::none)));
}

std::shared_ptr<const CellProps> makeCellProps(const boost::optional<Color>& fill)
{
    CellProps props;
    props.setVerticalAlignment(VerticalAlignment::Center);
    if (fill) {
        props.setFill(makeSolidFill(*fill));
    }
    return std::make_shared<const CellProps>(std::move(props));
}

std::shared_ptr<const ParaProps> makeParaProps(Alignment alignment)
{
    ParaProps props;
    props.setAlignment(alignment);
    return std::make_shared<const ParaProps>(std::move(props));
}

} // namespace

CellFormatPtr makeNumberFormat(const NumberFormat& format)
{
    const auto decimals = static_cast<std::size_t>(format.decimals);
    NumberItem number;
    number.setPattern(decimals == 0 ? "0" : "0." + std::string(decimals, '0'));
    number.setGrouping(true);
    number.setDisplayFactor(1);

    std::vector<Rule::Item> items;
    if (!format.currency.empty()) {
        items.emplace_back(CurrencyItem(format.currency));
    }
    items.emplace_back(std::move(number));
    if (format.isPercentage) {
        items.emplace_back(ExtraItem(ExtraItem::Type::PercentSign));
    }
    return makeFormat(std::move(items));
}

CellFormatPtr makeDateFormat()
{
    const TextItem blank(TextItem::Type::Literal, " ");
    return makeFormat({DateTimeItem(DateTimeItem::Type::Day, boost::none), blank,
                       DateTimeItem(DateTimeItem::Type::MonthShort, boost::none), blank,
                       DateTimeItem(DateTimeItem::Type::Year, boost::none)});
}

CellStyle makeTitleStyle()
{
    CellStyle style;
    style.setCellProps(makeCellProps(boost::none));
    style.setParaProps(makeParaProps(Alignment::Left));
    style.setRunProps(makeRunProps(true, 14.0F, Color(ThemeColorId::Dark2)));
    return style;
}

CellStyle makeSumStyle()
{
    CellStyle style;
    style.setCellProps(makeCellProps(boost::none));
    style.setParaProps(makeParaProps(Alignment::Right));
    style.setRunProps(makeRunProps(true, 0.0F, Color(ThemeColorId::Dark2)));
    return style;
}

CellStyle makeHeaderStyle(Alignment alignment)
{
    CellStyle style;
    style.setCellProps(makeCellProps(Color(ThemeColorId::Dark2)));
    style.setParaProps(makeParaProps(alignment));
    style.setRunProps(makeRunProps(true, 0.0F, Color(ThemeColorId::Light1)));
    return style;
}

CellStyle makeColumnStyle(Alignment alignment, CellFormatPtr format)
{
    CellStyle style;
    style.setParaProps(makeParaProps(alignment));
    style.setCellFormat(std::move(format));
    return style;
}

void highlightAboveAverage(Document& document, Table& table, const QN::CellIndex& first,
                           const QN::CellIndex& last)
{
    NamedTableStyle style(QN::UUID::generate());
    style.setName(std::string("Above average"));
    style.setCellProps(makeCellProps(Color(ThemeColorId::Accent6, {Tint(0.35)})));

    // The condition is a formula, too: greater than AVERAGE(of the column).
    using Operator = UnaryConditionalFormatOperator;
    auto average = makeCall(Function::Average, makeReference(table, first, last));
    auto format = std::make_unique<ConditionalFormat>();
    format->setStyleUUID(style.getUUID());
    format->setOperator(Operator(Operator::Type::GreaterThan, std::move(average.getPtr())));
    format->setRanges({convertToTableRangeByID(
        table, QN::TableRange(first.getRow(), last.getRow() + 1, first.getColumn(), last.getColumn() + 1))});

    table.getConditionalFormats().getElements().push_back(std::move(format));
    document.getStyles().getTableStyles().insert(std::move(style));
}

std::shared_ptr<const RunProps> makeRunProps(bool isBold, float size, Color color)
{
    FontProps font;
    if (isBold) {
        font.setBold(true);
    }
    if (size != 0.0F) {
        font.setSize(size);
    }
    RunProps props;
    props.setFontProps(std::make_shared<const FontProps>(std::move(font)));
    props.setColor(std::move(color));
    return std::make_shared<const RunProps>(std::move(props));
}

std::unique_ptr<SolidFill> makeSolidFill(Color color)
{
    auto fill = std::make_unique<SolidFill>();
    fill->setColor(std::move(color));
    return fill;
}

} // namespace Demo
