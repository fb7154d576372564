#pragma once

#include <string>

#include "document/document.h"
#include "document/subject.h"

// The illustrated report: a second document beside the two fixed ones, from which a checker follows each
// figure to its rule without the program.
namespace coltre {

/// How much of it is written.
enum class Layout {
    complete,    ///< "Completa": all sections
    brief,       ///< "Sintetica": summary, assumptions, data, loads, figures
    steps_alone  ///< "Solo passaggi": the steps, to paste into another report
};

/// What the engineer fills in; what is empty stays a line to write on.
struct TitleBlock {
    std::string work{}, client{}, place{}, designer{}, sheet{}, revision{};
    std::string date{};  ///< as it is to be printed
};

/// The document. The same arguments give the same document.
Document illustrated_report(const Subject& subject, const TitleBlock& title_block, Layout layout);

/// What the window of the steps shows: the steps with the figure.
Document steps_document(const Subject& subject);

/// Name of the file that saving suggests, without suffix: "relazione-<lavoro>-<calcolo>".
std::string suggested_file_name(const Subject& subject, const TitleBlock& title_block);

}  // namespace coltre
