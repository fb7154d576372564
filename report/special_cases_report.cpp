#include "report/special_cases_report.h"

#include <string>

#include "text/number_text.h"

namespace coltre {

namespace {

constexpr std::string_view length = "(DV_02)";
constexpr std::string_view load = "(DV_04)";

void write_load_table(ReportFile& report, double mu2, double qs1, double qs2, double ls) {
    constexpr double mu1 = 0.8;
    constexpr std::string_view column = "(FD_08)(DV_04)(SC_|)";
    report.blank_line();
    report.line("            mu   |   qs   |");
    report.line("     mu1|" + report.formatted(mu1, column) + report.formatted(qs1, column));
    report.line("     mu2|" + report.formatted(mu2, column) + report.formatted(qs2, column));
    report.blank_line();
    report.line("ls (lunghezza di accumulo) = " + report.formatted(ls, length));
}

}  // namespace

void write_special_cases_heading(ReportFile& report, const ReportData& data, const ProgramCells& cells) {
    // Deliberate: the accent of the unit caption is a backquote in this report.
    report.heading({.unit_caption = "Unita` di misura : ",
                    .job_name = data.JobName,
                    .unit_system = cells.unit_system,
                    .zone = cells.zone,
                    .altitude = data.altitude,
                    .return_period = cells.return_period});
    report.line("qsk (carico neve al suolo) = " + report.formatted(cells.qsk, load));
    report.blank_line();
}

void write_special_case(ReportFile& report, const ReportData& data, const ProgramCells& cells,
                        const Entries& entries, const Calculation& calculation) {
    if (calculation.end.stopped() || calculation.results.empty()) return;
    if (entries.kind == Kind::level_change) {
        report.line("DISCONTINUITA' DI QUOTA DELLE COPERTURE");
        report.blank_line();
        // Deliberate: no blank after the "=" of these four lines, unlike the other sections.
        report.line("alfa (inclinazione della falda [°]) =" + display_number_text(entries.alfa) + " ");
        report.line("h (dislivello tra le due coperture) =" + report.formatted(entries.h, length));
        report.line("b1 (larghezza copertura a quota superiore) =" + report.formatted(entries.b1, length));
        report.line("b2 (larghezza copertura a quota inferiore) =" + report.formatted(entries.b2, length));
        write_load_table(report, cells.level_mu2, cells.level_qs1, cells.level_qs2, cells.level_ls);
    } else if (entries.kind == Kind::wall) {
        report.line("ACCUMULO CONTRO PARETI VERTICALI");
        report.blank_line();
        report.line("h (altezza della parete) = " + report.formatted(entries.h, length));
        write_load_table(report, cells.mu2, cells.wall_qs1, cells.wall_qs2, cells.wall_ls);
    } else if (entries.kind == Kind::snow_guard) {
        const std::string& alfa = data.entries.back();  // as typed
        report.line("CARICO NEVE SU PROTEZIONI PARANEVE E OSTACOLI");
        report.blank_line();
        report.line("b (distanza in piano dall'ostacolo al colmo) = " + report.formatted(entries.b, length));
        report.line("alfa (inclinazione della falda [°]) = " + alfa);
        report.line("qs (carico neve sulla copertura) = " + report.formatted(entries.qs, load));
        report.line("Fs (carico neve contro ostacolo) = " + report.formatted(cells.Fs, load));
    }
}

}  // namespace coltre
