#include "report/special_cases_report.h"

#include "text/number_text.h"

namespace coltre {

namespace {

constexpr std::string_view length = "(DV_02)";
constexpr std::string_view load = "(DV_04)";

}  // namespace

SpecialCasesReport::SpecialCasesReport(const SpecialCasesReportData& data, const ProgramCells& cells,
                                       MessageBoxes& message_boxes)
    : m_angoloinput(data.angoloinput),
      m_cells(cells),
      m_file(std::string(data.WorkDirectory) + "\\coltrecasipart.txt", message_boxes) {
    // Deliberate: the accent of the unit caption is a backquote in this report.
    m_file.heading({.unit_caption = "Unita` di misura : ",
                    .job_name = data.JobName,
                    .unit_system = cells.unit_system,
                    .zone = cells.zone,
                    .altitude = data.altitude,
                    .return_period = cells.return_period,
                    .qsk = m_file.formatted(cells.qsk, load)});
}

void SpecialCasesReport::on_special_case(const SpecialCaseEntries& entries) {
    switch (entries.special_case) {
        case SpecialCase::level_change:
            m_file.line("DISCONTINUITA' DI QUOTA DELLE COPERTURE");
            m_file.blank_line();
            // Deliberate: no blank after the "=" of these four lines, unlike the other sections.
            m_file.line("alfa (inclinazione della falda [°]) =" + display_number_text(entries.alfa) + " ");
            m_file.line("h (dislivello tra le due coperture) =" + m_file.formatted(entries.h, length));
            m_file.line("b1 (larghezza copertura a quota superiore) =" +
                        m_file.formatted(entries.b1, length));
            m_file.line("b2 (larghezza copertura a quota inferiore) =" +
                        m_file.formatted(entries.b2, length));
            load_table(m_cells.level_mu2, m_cells.level_qs1, m_cells.level_qs2, m_cells.level_ls);
            break;
        case SpecialCase::wall:
            m_file.line("ACCUMULO CONTRO PARETI VERTICALI");
            m_file.blank_line();
            m_file.line("h (altezza della parete) = " + m_file.formatted(entries.h, length));
            load_table(m_cells.mu2, m_cells.wall_qs1, m_cells.wall_qs2, m_cells.wall_ls);
            break;
        case SpecialCase::snow_guard:
            m_file.line("CARICO NEVE SU PROTEZIONI PARANEVE E OSTACOLI");
            m_file.blank_line();
            m_file.line("b (distanza in piano dall'ostacolo al colmo) = " +
                        m_file.formatted(entries.b, length));
            m_file.line("alfa (inclinazione della falda [°]) = " + m_angoloinput);
            m_file.line("qs (carico neve sulla copertura) = " + m_file.formatted(entries.qs, load));
            m_file.line("Fs (carico neve contro ostacolo) = " + m_file.formatted(m_cells.Fs, load));
            break;
    }
}

void SpecialCasesReport::load_table(double mu2, double qs1, double qs2, double ls) {
    constexpr double mu1 = 0.8;
    constexpr std::string_view column = "(FD_08)(DV_04)(SC_|)";
    m_file.blank_line();
    m_file.line("            mu   |   qs   |");
    m_file.line("     mu1|" + m_file.formatted(mu1, column) + m_file.formatted(qs1, column));
    m_file.line("     mu2|" + m_file.formatted(mu2, column) + m_file.formatted(qs2, column));
    m_file.blank_line();
    m_file.line("ls (lunghezza di accumulo) = " + m_file.formatted(ls, length));
}

Message SpecialCasesReport::confirmation() const {
    return {Icon::none, std::string(program_title),
            "Creazione della relazione coltrecasipart.txt effettuata"};
}

}  // namespace coltre
