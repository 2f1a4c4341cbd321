#pragma once

#include <memory>
#include <string>

#include "DOM/DOM.h"

/// Number formats and the looks of a sheet, as data. A format is not a string such as "0.00": it is the list of items that
/// such a string means.

namespace Demo {

using CellFormatPtr = std::shared_ptr<const QN::DOM::CellFormat>;

/// A number with so many decimals, in groups of thousands, between a currency before it and a percent sign behind it.
struct NumberFormat {
    int decimals = 0;
    bool isPercentage = false;
    std::string currency;
};
CellFormatPtr makeNumberFormat(const NumberFormat& format);

/// "1 Mar 1931".
CellFormatPtr makeDateFormat();

// Styles of cells.

QN::DOM::CellStyle makeTitleStyle();
QN::DOM::CellStyle makeSumStyle();
QN::DOM::CellStyle makeHeaderStyle(QN::DOM::Alignment alignment);
QN::DOM::CellStyle makeColumnStyle(QN::DOM::Alignment alignment, CellFormatPtr format);

/// Highlights the cells of a column whose value is above the column's average.
void highlightAboveAverage(QN::DOM::Document& document, QN::DOM::Table& table, const QN::CellIndex& first,
                           const QN::CellIndex& last);

/// A style for characters with nothing but what is told; a size of 0 is none told.
std::shared_ptr<const QN::DOM::RunProps> makeRunProps(bool isBold, float size, QN::DOM::Color color);

/// A fill of one colour.
std::unique_ptr<QN::DOM::SolidFill> makeSolidFill(QN::DOM::Color color);

} // namespace Demo
