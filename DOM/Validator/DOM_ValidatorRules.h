#pragma once

/// The rules that a well-formed document keeps, each with its fixed place and text. `Validator` says when they hold. Those of
/// a table's own storage stand in `Table::validate` and `RowColIDContainer::validate`, without a fixed line.

namespace QN::DOM::ValidatorRules {

struct Rule {
    const char* file;
    int line;
    const char* condition;
    /// Empty for none.
    const char* message = "";
};

inline constexpr const char* File = "DOM/Validator/DOM_Validator";

// Styles

inline constexpr Rule UniqueStyleType{File, 54, "stylesTypes.find(*type) == stylesTypes.end()",
                                      "Duplicate named style type."};
inline constexpr Rule KnownStyleUUID{File, 57, "namedStyles.find(namedStyle.getUUID())"};

// Runs

inline constexpr Rule TextInTextRun{File, 71, "TextRun is empty."};
inline constexpr Rule BreakRunInRootBlocks{
    File, 178, "Break run should be inside a paragraph only from root blocks collection"};

// Tables

inline constexpr Rule ValidTableName{File, 86, "validateTableName(tableName)", "Invalid table name '{}'."};
inline constexpr Rule UniqueTableName{File, 89, "_tableNames.find(tableName) == _tableNames.end()",
                                      "Duplicate table name '{}'."};
inline constexpr Rule FilterInsideRows{
    File, 97, "table.getLiveRowsCount().get() > filterInfo->getFilterRange().getLastRow().get()"};
inline constexpr Rule FilterInsideColumns{
    File, 98, "table.getLiveColsCount().get() > filterInfo->getFilterRange().getLastColumn().get()"};
inline constexpr Rule EmptyMergedCell{File, 118, "Non root merged cell is not empty."};
inline constexpr Rule MergedRangeInsideFilter{File, 126, "Merged range intersects with filter range"};
inline constexpr Rule KnownPivotTable{File, 138, "Pivot tables cache doesn't contain valid pivot table info"};
inline constexpr Rule PivotTableRange{File, 151, "Pivot tables cache contains invalid range"};
inline constexpr Rule OneBlockInValueCell{File, 235, "cell.getRawBlocks().size() == 1u"};

// Blocks

inline constexpr Rule SectionTagInRootBlocks{File, 265,
                                             "Section tag should be placed only in root block collection"};
inline constexpr Rule ListTagInOneScope{File, 305, "it == tmpListTags.end()",
                                        "List tag was found in another document scope"};
inline constexpr Rule ParagraphsInNote{File, 366, "Invalid block type in Note"};
inline constexpr Rule ParagraphsInComment{File, 386, "Invalid block type in Comment"};

/// What reading a null element fails: the contract of `checkedDeref`.
inline constexpr Rule NoNullPointer{"Utils/Public/Ptr/PtrUtils", 254, "plainPtr"};

// Hazards: what passes and yet fails the contract of an operation on named styles.

inline constexpr Rule FixedStyleUUID{"DOM/PredefinedStyles/DOM_PredefinedStylesUtils", 49,
                                     "style->getUUID() == makeUUIDFunctor(styleType)"};
inline constexpr Rule KnownStyleType{"DOM/PredefinedStyles/DOM_PredefinedTextStylesUtils", 360,
                                     "No named text style with such type."};
inline constexpr Rule FreeStyleKey{"DOM_UUIDContainer", 67, "_collection.find(uuid) == _collection.end()"};

} // namespace QN::DOM::ValidatorRules
