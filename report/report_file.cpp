#include "report/report_file.h"

#include "platform/files.h"
#include "report/formatta_cond.h"
#include "report/unit_systems.h"
#include "text/characters.h"
#include "text/number_text.h"

namespace coltre {

namespace {

/// The text with blanks up to the column, so that the next text starts there; nothing is added to a text that
/// is past it. Columns count characters from 1.
std::string tab(std::string_view text, std::size_t column) {
    std::string line(text);
    const std::size_t length = character_count(line);
    if (length + 1 < column) line.append(column - 1 - length, ' ');
    return line;
}

/// The text with blanks up to the next print zone; zones start at columns 1, 15, 29, 43 and so on.
std::string next_zone(std::string_view text) {
    constexpr std::size_t zone_width = 14;
    return tab(text, (character_count(text) / zone_width + 1) * zone_width + 1);
}

}  // namespace

ReportFile::ReportFile(std::string_view suite_path, Messages& messages)
    : m_name(suite_path), m_file(find_path(suite_path)), m_messages(messages) {}

void ReportFile::line(std::string_view utf8) {
    if (m_fault == Fault::none) m_file.write(file_line(utf8));
}

void ReportFile::heading(const ReportHeading& heading) {
    line(tab("CARICO NEVE", 22).append("lavoro : ").append(heading.job_name));
    line(tab(heading.unit_caption, 20).append(unit_heading(heading.unit_system)));
    blank_line();
    line("Zona" + display_number_text(heading.zone));
    line("Altitudine [m]:" + display_number_text(heading.altitude));
    line(next_zone("Periodo di Ritorno [anni]:") + display_number_text(heading.return_period));
    blank_line();
}

Failure ReportFile::failure() const {
    if (!m_file.failure()) return std::nullopt;
    return "Impossibile scrivere il file " + m_name + ": " + *m_file.failure() + ".";
}

std::string ReportFile::formatted(double value, std::string_view directives, std::string_view conversion) {
    const auto text = formatta(value, std::string(directives).append(conversion), 1.0, m_messages);
    if (!text) m_fault = Fault::numeric_error;
    return text.value_or(std::string());
}

}  // namespace coltre
