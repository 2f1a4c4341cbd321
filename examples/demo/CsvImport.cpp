#include "CsvImport.h"

#include <algorithm>
#include <stdexcept>
#include <utility>
#include <vector>

#include "Csv.h"
#include "CsvFields.h"
#include "FormulaParser.h"
#include "Formulas.h"
#include "SheetFormats.h"
#include "SheetLayout.h"

namespace Demo {

namespace {

using namespace QN::DOM;
using QN::CellIndex;
using QN::ColumnIndex;
using QN::FloatNumber;
using QN::RowIndex;

constexpr std::uint64_t RowsAboveHeader = 2;

class SheetBuilder {
public:
    SheetBuilder(Document& document, Table& table) : _document(document), _table(table) {}

    void build(const std::vector<CsvRecord>& records, const std::string& title)
    {
        if (records.empty()) {
            throw std::runtime_error("the file of the sheet has no records");
        }
        fill(records);
        addFormulasIfNone(records.size());
        addRowsAbove(title);
        styleColumns();
        if (_lastRow > _header) {
            addSums();
            addFilter();
            for (ColumnIndex column; column.get() < _columns.size(); ++column) {
                if (_columns[column.get()].formulas != 0) {
                    highlightAboveAverage(_document, _table, CellIndex(_header + 1, column),
                                          CellIndex(_lastRow, column));
                }
            }
        }
        mergeTitles(_table);
    }

private:
    /// Fills the sheet as the file stands, so that references of formulas mean what they say.
    void fill(const std::vector<CsvRecord>& records)
    {
        for (RowIndex row; row.get() < records.size(); ++row) {
            const CsvRecord& record = records[row.get()];
            _columns.resize(std::max(_columns.size(), record.size()));
            if (records.size() + RowsAboveHeader > MaxRows || _columns.size() >= MaxColumns) {
                throw std::runtime_error("the file has more rows or columns than a table");
            }
            for (ColumnIndex column; column.get() < record.size(); ++column) {
                fill(row, column, record[column.get()]);
            }
        }
        _table.ensureSize(RowIndex(records.size()), ColumnIndex(_columns.size()));
        _lastRow = RowIndex(records.size() - 1);
    }

    void fill(RowIndex row, ColumnIndex column, const std::string& text)
    {
        if (row == RowIndex(0)) {
            setText(CellIndex(row, column), text);
            return;
        }
        const CellIndex place(row, column);
        CsvField field = readField(text);
        switch (field.kind) {
        case CsvField::Kind::Nothing:
            return;
        case CsvField::Kind::Text:
            setText(place, text);
            break;
        case CsvField::Kind::Bool:
            setField(place, BlockValue<bool>(field.boolean));
            break;
        case CsvField::Kind::Number:
        case CsvField::Kind::Date:
            setField(place, BlockValue<FloatNumber>(FloatNumber(field.number)));
            break;
        case CsvField::Kind::Formula:
            if (auto tree = parseFormula(std::string_view(text).substr(1), _table)) {
                setField(place, Formula(std::move(tree), false));
            } else {
                setText(place, text);
                field.kind = CsvField::Kind::Text;
            }
        }
        _columns[column.get()].add(field, text);
    }

    void setText(const CellIndex& place, std::string text)
    {
        if (!text.empty()) {
            auto paragraph = std::make_unique<Paragraph>();
            paragraph->getRuns().push_back(std::make_unique<TextRun>(std::move(text)));
            setBlock(place, std::move(paragraph));
        }
    }

    void setField(const CellIndex& place, FieldBlock::FieldInfo info)
    {
        setBlock(place, std::make_unique<FieldBlock>(std::move(info)));
    }

    void setBlock(const CellIndex& place, std::unique_ptr<Block> block)
    {
        _table.getOrCreateCell(place.getRow(), place.getColumn()).getRawBlocks().push_back(std::move(block));
    }

    void addFormulasIfNone(std::size_t recordsCount)
    {
        const auto isOfNumbers = [](const CsvColumn& column) { return column.isOfNumbers(); };
        const auto first = std::find_if(_columns.begin(), _columns.end(), isOfNumbers);
        const bool hasFormulas = std::any_of(_columns.begin(), _columns.end(),
                                             [](const CsvColumn& column) { return column.formulas != 0; });
        if (hasFormulas || first == _columns.end()) {
            return;
        }
        const auto last = std::find_if(_columns.rbegin(), _columns.rend(), isOfNumbers).base() - 1;
        const ColumnIndex firstColumn(static_cast<std::uint64_t>(first - _columns.begin()));
        const ColumnIndex lastColumn(static_cast<std::uint64_t>(last - _columns.begin()));
        const ColumnIndex sums(_columns.size());
        setText(CellIndex(RowIndex(0), sums), "Sum");
        for (RowIndex row(1); row.get() < recordsCount; ++row) {
            auto call = makeCall(Function::Sum, makeReference(_table, CellIndex(row, firstColumn),
                                                              CellIndex(row, lastColumn)));
            setField(CellIndex(row, sums), Formula(std::move(call), false));
        }
        CsvColumn column;
        column.formulas = recordsCount - 1;
        column.width = first->width;
        for (auto summed = first; summed <= last; ++summed) {
            column.decimals = std::max(column.decimals, summed->decimals);
        }
        _columns.push_back(std::move(column));
    }

    /// Rows that are inserted have identifiers of their own: the references in the rows below them stay right.
    void addRowsAbove(const std::string& title)
    {
        for (std::uint64_t i = 0; i < RowsAboveHeader; ++i) {
            RowData row;
            row.id = _table.generateID<RowID>();
            _table.insertRow(std::move(row), RowIndex(0));
        }
        _header += RowsAboveHeader;
        _lastRow += RowsAboveHeader;
        setText(CellIndex(RowIndex(0), ColumnIndex(0)), title);
        setStyle(CellIndex(RowIndex(0), ColumnIndex(0)), makeTitleStyle());
        // What stays in sight when the sheet is scrolled.
        _table.setHeaderRowsCols(RowIndex(0), ColumnIndex(0), _header, ColumnIndex(0));
    }

    void styleColumns()
    {
        for (ColumnIndex index; index.get() < _columns.size(); ++index) {
            const CsvColumn& column = _columns[index.get()];
            const bool isText = column.texts != 0;
            const Alignment alignment = isText               ? Alignment::Left
                                        : column.isOfBools() ? Alignment::Center
                                                             : Alignment::Right;
            setStyle(CellIndex(_header, index), makeHeaderStyle(alignment));

            ColumnProps props;
            constexpr float PointsPerCharacter = 5.5F;
            props.setWidth(10.0F + PointsPerCharacter *
                                       static_cast<float>(std::clamp<std::size_t>(column.width, 7, 40)));
            ColumnStyle style;
            style.setProps(std::make_shared<const ColumnProps>(props));
            style.getSharedDefaultCellStyle() = _document.getSharedObjectFactory().create(
                makeColumnStyle(alignment, isText ? nullptr : makeFormat(index)));
            _table.setSharedStyle(_document.getSharedObjectFactory().create(std::move(style)), index);
        }
    }

    CellFormatPtr makeFormat(ColumnIndex index) const
    {
        const CsvColumn& column = _columns[index.get()];
        if (column.isOfDates()) {
            return makeDateFormat();
        }
        if (column.isOfNumbers()) {
            return makeNumberFormat({column.decimals, column.isPercentage, column.currency});
        }
        return column.formulas != 0 ? makeNumberFormat({getDecimals(index), false, {}}) : nullptr;
    }

    /// Formulas show as many decimals as what they refer to.
    int getDecimals(ColumnIndex formulas) const
    {
        int decimals = _columns[formulas.get()].decimals;
        const Cell* const cell = _table.getCell(_header + 1, formulas);
        if (cell != nullptr && cell->getFormula() != nullptr) {
            for (const auto* node : FormulaSyntaxTree::toExprStack(*cell->getFormula()->getSyntaxTree())) {
                if (const auto* const address = dynamic_cast<const FormulaSyntaxTree::CellAddress*>(node)) {
                    const auto column = _table.resolveColIndex(address->getCol().getID(), false);
                    if (column && column->get() < _columns.size()) {
                        decimals = std::max(decimals, _columns[column->get()].decimals);
                    }
                }
            }
        }
        return decimals;
    }

    void addSums()
    {
        const RowIndex row = _header - 1;
        boost::optional<ColumnIndex> first;
        for (ColumnIndex column; column.get() < _columns.size(); ++column) {
            if (_columns[column.get()].formulas != 0) {
                auto call = makeCall(Function::Sum, makeReference(_table, CellIndex(_header + 1, column),
                                                                  CellIndex(_lastRow, column)));
                setField(CellIndex(row, column), Formula(std::move(call), false));
                setStyle(CellIndex(row, column), makeSumStyle());
                first = first.value_or(column);
            }
        }
        if (first && first->get() != 0) {
            setText(CellIndex(row, ColumnIndex(0)), "In all");
            setStyle(CellIndex(row, ColumnIndex(0)), makeSumStyle());
        }
    }

    /// A filter on the first column of few different texts: it shows the rows with the first half of them.
    void addFilter()
    {
        TableFilterInfo info(
            QN::TableRange(_header, _lastRow + 1, ColumnIndex(0), ColumnIndex(_columns.size())));
        for (ColumnIndex column; column.get() < _columns.size() && !info.getFilter(); ++column) {
            constexpr std::size_t MaxTexts = 12;
            std::vector<std::string> texts;
            for (RowIndex row = _header + 1; row <= _lastRow && texts.size() <= MaxTexts; ++row) {
                const Cell* const cell = std::as_const(_table).getCell(row, column);
                const std::string text = cell != nullptr ? getTextFromParagraphs(cell->getRawBlocks()) : "";
                if (std::find(texts.begin(), texts.end(), text) == texts.end()) {
                    texts.push_back(text);
                }
            }
            if (_columns[column.get()].texts != 0 && texts.size() > 1 && texts.size() <= MaxTexts) {
                auto filter = std::make_unique<ValuesTableFilter>(column);
                texts.resize((texts.size() + 1) / 2);
                filter->getValuesToShow().insert(texts.begin(), texts.end());
                info.setFilter(std::move(filter));
            }
        }
        _table.setFilterInfo(std::move(info));
    }

    void setStyle(const CellIndex& place, CellStyle style)
    {
        _table.getOrCreateCell(place.getRow(), place.getColumn()).getSharedStyle() =
            _document.getSharedObjectFactory().create(std::move(style));
    }

    Document& _document;
    Table& _table;
    std::vector<CsvColumn> _columns;
    RowIndex _header;
    RowIndex _lastRow;
};

} // namespace

Table& importCsv(std::string_view text, const std::string& title, Document& document)
{
    auto table = std::make_unique<Table>();
    table->setName(fixTableNameIfNeed(title));
    SheetBuilder(document, *table).build(readCsv(text), title);
    Table& imported = *table;
    document.getBlocks().push_back(std::move(table));
    return imported;
}

} // namespace Demo
