#pragma once

#include <QString>

#include "document/document.h"

// What other programs get of a document by the clipboard.
namespace coltre {

/// The document as plain text, a block a line: "as > 200" stands behind its formula in brackets. Figures
/// leave their caption.
QString copied_text(const Document& document);

/// A table for spreadsheets, and for word processors the same with subscripts.
struct CopiedTable {
    QString text;  ///< cells separated by tabs, rows by line ends
    QString html;
};

/// The document as a table: of a formula line the symbol, how it is computed, value, unit and remark have a
/// cell each, so that the value is a number to a spreadsheet of the same decimal comma.
CopiedTable copied_table(const Document& document);

}  // namespace coltre
