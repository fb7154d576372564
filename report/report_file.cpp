#include "report/report_file.h"

#include "platform/files.h"
#include "report/formatta_cond.h"
#include "report/unit_systems.h"
#include "text/characters.h"
#include "text/number_text.h"

namespace coltre {

ReportLine& ReportLine::tab(std::size_t column) {
    const std::size_t length = character_count(m_text);
    if (length + 1 < column) m_text.append(column - 1 - length, ' ');
    return *this;
}

ReportLine& ReportLine::next_zone() {
    constexpr std::size_t zone_width = 14;
    return tab((character_count(m_text) / zone_width + 1) * zone_width + 1);
}

ReportLine& ReportLine::add(std::string_view text) {
    m_text += text;
    return *this;
}

ReportFile::ReportFile(std::string_view suite_path, Messages& messages)
    : m_name(suite_path), m_file(find_path(suite_path)), m_messages(messages) {}

void ReportFile::line(std::string_view utf8) {
    m_file.write(file_line(utf8));
}

void ReportFile::heading(const ReportHeading& heading) {
    line(ReportLine("CARICO NEVE").tab(22).add("lavoro : ").add(heading.job_name));
    line(ReportLine(heading.unit_caption).tab(20).add(unit_heading(heading.unit_system)));
    blank_line();
    line(ReportLine("Zona").add(display_number_text(heading.zone)));
    line(ReportLine("Altitudine [m]:").add(display_number_text(heading.altitude)));
    line(
        ReportLine("Periodo di Ritorno [anni]:").next_zone().add(display_number_text(heading.return_period)));
    blank_line();
    line(ReportLine("qsk (carico neve al suolo) = ").add(heading.qsk));
    blank_line();
}

std::string ReportFile::failure() const {
    if (!m_file.failure()) return {};
    return "Impossibile scrivere il file " + m_name + ": " + *m_file.failure() + ".";
}

std::string ReportFile::formatted(double value, std::string_view directives,
                                  std::string_view conversion) const {
    return formatta(value, std::string(directives).append(conversion), 1.0, m_messages);
}

}  // namespace coltre
