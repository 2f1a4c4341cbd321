#include "SheetHtml.h"

#include <algorithm>
#include <ostream>
#include <string>
#include <vector>

#include "CellText.h"
#include "ChartSvg.h"
#include "Css.h"
#include "SheetLayout.h"
#include "SheetValues.h"
#include "Text.h"

namespace Demo {

const char* const SheetCss =
    R"(.sheet{overflow-x:auto;font-family:'Helvetica Neue',Arial,sans-serif;font-size:8pt}
.sheet table{border-collapse:collapse;font-variant-numeric:tabular-nums}
.sheet td,.sheet th{border:1px solid #dcdcd6;padding:2.5px 5px;white-space:nowrap}
.sheet td{max-width:13em;overflow:hidden;text-overflow:ellipsis}
.sheet th{background:#f3f3ef;color:#8a8a82;font-weight:normal;text-align:center}
.sheet .kept{color:#2a6fb0}
.sheet .title{padding:7px 5px}
.sheet .name{white-space:normal;vertical-align:bottom}
.note{font:9pt 'Helvetica Neue',Arial,sans-serif;color:#77776f;margin:.8em 0 1.4em}
.chart{width:100%;font-family:'Helvetica Neue',Arial,sans-serif;margin-bottom:1em}
.chart-title{font-size:13px;font-weight:bold;fill:#1f497d}
.chart-label{font-size:9px;fill:#666}
.chart-axis{font-size:10px;fill:#444}
)";

namespace {

using namespace QN::DOM;
using QN::CellIndex;
using QN::ColumnIndex;
using QN::RowIndex;

constexpr std::size_t MaxRowsOfData = 24;

class SheetWriter {
public:
    SheetWriter(const Table& table, const Document& document, std::ostream& out)
        : _table(table), _document(document), _out(out), _values(table), _layout(getLayout(table))
    {
    }

    void write()
    {
        for (const Frame& frame : _table.getLiveFrames()) {
            if (const auto* const chart = dynamic_cast<const ChartSpace*>(frame.getGraphicalObject())) {
                _out << drawChart(*chart, _values, _document);
            }
        }
        findHighlights();
        const std::vector<RowIndex> rows = findRows();
        _out << "<div class=\"sheet\"><table>\n<tr><th></th>";
        for (ColumnIndex column; column < _table.getLiveColsCount(); ++column) {
            _out << "<th>" << toColumnName(column) << "</th>";
        }
        _out << "</tr>\n";
        for (const RowIndex row : rows) {
            writeRow(row);
        }
        _out << "</table></div>\n";
        writeNote();
    }

private:
    /// The rows to be written: those above the data, and the first ones that the filter shows.
    std::vector<RowIndex> findRows()
    {
        std::vector<RowIndex> rows;
        for (RowIndex row; row < _table.getLiveRowsCount(); ++row) {
            const bool isData = !_layout || (row >= _layout->firstRow && row <= _layout->lastRow);
            if (!isData) {
                rows.push_back(row);
            } else if (isShown(row)) {
                ++_shownCount;
                if (_shownCount <= MaxRowsOfData) {
                    rows.push_back(row);
                }
            }
        }
        return rows;
    }

    const ValuesTableFilter* findFilter() const
    {
        const auto& info = _table.getFilterInfo();
        return info ? dynamic_cast<const ValuesTableFilter*>(info->getFilter().get()) : nullptr;
    }

    bool isShown(RowIndex row)
    {
        const ValuesTableFilter* const filter = findFilter();
        return filter == nullptr ||
               filter->getValuesToShow().count(getText(CellIndex(row, filter->getColumnIndex()))) != 0;
    }

    /// A conditional format whose style is put on the cells of its ranges that are greater than a number.
    struct Highlight {
        const ConditionalFormat* format;
        double threshold;
        std::string css;
    };

    void findHighlights()
    {
        using Operator = UnaryConditionalFormatOperator;
        for (const ConditionalFormat& format : _table.getLiveConditionalFormats()) {
            const auto* const condition = boost::get<Operator>(&format.getOperator());
            const NamedTableStyle* const style =
                _document.getStyles().getTableStyles().find(format.getStyleUUID());
            if (condition != nullptr && condition->getType() == Operator::Type::GreaterThan &&
                condition->getArgument() != nullptr && style != nullptr) {
                const Value threshold = _values.evaluate(*condition->getArgument());
                if (const double* const number = std::get_if<double>(&threshold)) {
                    _highlights.push_back({&format, *number,
                                           toCss(style->getCellProps().get(), _document) +
                                               toCss(style->getRunProps().get(), _document)});
                }
            }
        }
    }

    std::string getText(const CellIndex& cell)
    {
        return toText(_values.get(cell.getRow(), cell.getColumn()), findFormat(_table, cell));
    }

    void writeRow(RowIndex row)
    {
        const bool isFiltered = _layout && row >= _layout->firstRow && findFilter() != nullptr;
        _out << "<tr><th" << (isFiltered ? " class=\"kept\"" : "") << '>' << row.get() + 1 << "</th>";
        for (ColumnIndex column; column < _table.getLiveColsCount(); ++column) {
            if (!_table.getMergedCellRoot(row, column)) {
                writeCell(CellIndex(row, column));
            }
        }
        _out << "</tr>\n";
    }

    void writeCell(const CellIndex& cell)
    {
        const Cell* const stored = _table.getCell(cell);
        const CellMergeProps& merged = getCellMergeProps(stored);
        _out << "<td";
        if (merged.getCapturedColsCount() != 0) {
            _out << " colspan=\"" << merged.getCapturedColsCount() + 1 << '"';
        }
        if (merged.getCapturedRowsCount() != 0) {
            _out << " rowspan=\"" << merged.getCapturedRowsCount() + 1 << '"';
        }
        if (cell == CellIndex()) {
            _out << " class=\"title\"";
        } else if (_layout && cell.getRow() == _layout->header) {
            _out << " class=\"name\"";
        }
        const std::string css = getCss(stored, cell);
        if (!css.empty()) {
            _out << " style=\"" << escapeHtml(css) << '"';
        }
        _out << '>' << escapeHtml(getText(cell)) << (isFilterColumn(cell) ? " &#9662;" : "") << "</td>";
    }

    bool isFilterColumn(const CellIndex& cell) const
    {
        const ValuesTableFilter* const filter = findFilter();
        return filter != nullptr && _layout && cell == CellIndex(_layout->header, filter->getColumnIndex());
    }

    /// What the column says, overridden by what the cell says, overridden by conditional formats.
    std::string getCss(const Cell* stored, const CellIndex& cell)
    {
        std::string css = getCss(_table.getStyle(cell.getColumn()).getDefaultCellStyle());
        if (stored != nullptr) {
            css += getCss(stored->getStyle());
        }
        for (const Highlight& highlight : _highlights) {
            const Value value = _values.get(cell.getRow(), cell.getColumn());
            const double* const number = std::get_if<double>(&value);
            if (number != nullptr && *number > highlight.threshold &&
                _table.isInRanges(highlight.format->getRanges(), cell)) {
                css += highlight.css;
            }
        }
        return css;
    }

    std::string getCss(const CellStyle& style) const
    {
        return toCss(style.getCellProps().get(), _document) + toCss(style.getParaProps().get()) +
               toCss(style.getRunProps().get(), _document);
    }

    void writeNote()
    {
        if (!_layout) {
            return;
        }
        const std::uint64_t count = (_layout->lastRow - _layout->firstRow).get() + 1;
        _out << "<p class=\"note\">The first " << std::min(_shownCount, MaxRowsOfData) << " of "
             << _shownCount << " rows that the filter shows, of " << count << " in all";
        if (const ValuesTableFilter* const filter = findFilter()) {
            _out << "; it shows where &ldquo;"
                 << escapeHtml(getText(CellIndex(_layout->header, filter->getColumnIndex())))
                 << "&rdquo; is ";
            const char* separator = "";
            for (const std::string& value : filter->getValuesToShow()) {
                _out << separator << escapeHtml(value.empty() ? "empty" : value);
                separator = " or ";
            }
        }
        _out << ".</p>\n";
    }

    const Table& _table;
    const Document& _document;
    std::ostream& _out;
    SheetValues _values;
    boost::optional<SheetLayout> _layout;
    std::vector<Highlight> _highlights;
    std::size_t _shownCount = 0;
};

} // namespace

void exportSheet(const Table& table, const Document& document, std::ostream& out)
{
    SheetWriter(table, document, out).write();
}

} // namespace Demo
