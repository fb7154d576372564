#pragma once

#include <QByteArray>

#include "document/document.h"

class QPagedPaintDevice;

namespace coltre {

/// The document as a PDF file on A4 paper: vectors, text that can be selected, header and footer with "pagina
/// n di m" on every page. Formula lines, figures and rows of tables are never split, a table that goes on
/// repeats its header, a heading stays with what follows.
///
/// The same document gives the same bytes. The date of creation is SOURCE_DATE_EPOCH, and without that there
/// is none: the document's own date is printed in it.
/// @return empty if it could not be made
QByteArray to_pdf(const Document& document);

/// The same pages on a printer, made smaller where its paper is not A4.
/// @return false if the printer does not take them
bool print(const Document& document, QPagedPaintDevice& printer);

}  // namespace coltre
