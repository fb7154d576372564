#include "document/illustrated_report.h"

#include <algorithm>

#include "document/sections.h"

namespace coltre {

namespace {

/// The summary, where there is one, is section 0.
Composer begin(const Subject& subject, const TitleBlock& block, Layout layout) {
    Composer write((block.work.empty() ? "" : block.work + " — ") + "Azione della neve sulla copertura — " +
                       std::string(subject.calculation().meaning),
                   layout == Layout::steps_alone ? 1 : 0);
    Document& document = write.document();
    const auto or_blank = [](const std::string& text) { return text.empty() ? "....." : text; };
    document.page_header += " — Elaborato " + or_blank(block.sheet) + " rev. " + or_blank(block.revision);
    document.page_footer = subject.program + (block.date.empty() ? "" : " — " + block.date);
    return write;
}

}  // namespace

Document illustrated_report(const Subject& subject, const TitleBlock& title_block, Layout layout) {
    Composer write = begin(subject, title_block, layout);
    if (layout == Layout::steps_alone) {
        write_stop(write, subject);
        write_steps(write, subject, false);
        return std::move(write.document());
    }
    write_title(write, subject, title_block);
    write_summary(write, subject);
    write_references(write, subject, layout == Layout::complete);
    write_data(write, subject);
    if (layout == Layout::brief) {
        write_loads_alone(write, subject);
    } else {
        write_steps(write, subject, true);
        write_sensitivity(write, subject);
        write_unit_systems(write, subject);
        write_program(write, subject);
        write_reproduction(write, subject);
    }
    write_signature(write);
    return std::move(write.document());
}

Document steps_document(const Subject& subject) {
    return illustrated_report(subject, {}, Layout::steps_alone);
}

std::string suggested_file_name(const Subject& subject, const TitleBlock& title_block) {
    std::string name = "relazione-";
    if (!title_block.work.empty()) name += title_block.work + "-";
    name += subject.calculation().name;
    // What file systems do not take, and what paths are made of.
    std::ranges::replace_if(
        name,
        [](char c) {
            return static_cast<unsigned char>(c) < ' ' ||
                   std::string_view("/\\:*?\"<>|").find(c) != std::string_view::npos;
        },
        '-');
    return name;
}

}  // namespace coltre
