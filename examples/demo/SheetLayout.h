#pragma once

#include "DOM/DOM.h"

namespace Demo {

/// The first worksheet of a document; null for none.
QN::DOM::Table* findSheet(QN::DOM::Document& document);
const QN::DOM::Table* findSheet(const QN::DOM::Document& document);

/// Where things stand in a sheet that `importCsv` has made. It follows from the sheet itself, so that it is the same for
/// one that was loaded.
struct SheetLayout {
    QN::RowIndex header;
    QN::RowIndex firstRow;
    QN::RowIndex lastRow;
    QN::ColumnIndex lastColumn;
    /// The first column of formulas.
    boost::optional<QN::ColumnIndex> formulas;
};

/// Nothing for a sheet without rows of data.
boost::optional<SheetLayout> getLayout(const QN::DOM::Table& table);

/// Merges the title with all cells right of it, and what stands before the sums with those up to the first sum. To be done
/// again when columns have come or gone: a merged range keeps its width.
void mergeTitles(QN::DOM::Table& table);

} // namespace Demo
