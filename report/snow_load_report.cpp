#include "report/snow_load_report.h"

#include <algorithm>
#include <array>
#include <string>

#include "report/unit_systems.h"
#include "text/characters.h"
#include "text/number_text.h"

namespace coltre {

namespace {

/// What a family's section consists of besides its numbers.
struct Section {
    Kind kind;
    std::string_view title;
    std::string_view table_header;  // its "|" stand over those of the rows
    std::size_t label_width;        // the row labels end in this column
};

constexpr std::array<Section, 4> sections{{
    {Kind::one_pitch, "COPERTURA AD UNA FALDA", "            mu   |   qs   |   qe  |", 8},
    {Kind::two_pitches, "COPERTURA A DUE FALDE", "                 mu   |   qs   |   qe  |", 13},
    {Kind::several_pitches, "COPERTURA A PIU' FALDE - condizione aggiuntiva",
     "                         mu   |   qs   |", 21},
    {Kind::cylindrical, "COPERTURE CILINDRICHE", "           mu   |   qs   |   qe  |", 7},
}};

/// A number printed without a directive: its display form and one blank.
std::string printed(double value) {
    return display_number_text(value) + " ";
}

void write_entries(ReportFile& report, const ReportData& data, const ProgramCells& cells,
                   const Entries& entries) {
    if (entries.kind == Kind::one_pitch) {
        report.line("alfa (inclinazione della falda [°]) =" + printed(entries.alfa));
    } else if (entries.kind == Kind::two_pitches) {
        report.line("alfa1 (inclinazione della falda1 [°]) =" + printed(entries.alfa1));
        report.line("alfa2 (inclinazione della falda2 [°]) =" + printed(entries.alfa2));
    } else if (entries.kind == Kind::several_pitches) {
        report.line("alfa (inclinazione della falda 1[°]) =" + printed(entries.alfa1));
        report.line("alfa (inclinazione della falda 2[°]) =" + printed(entries.alfa2));
    } else if (entries.kind == Kind::cylindrical) {
        // Deliberate: the dimensions stay as typed and L1 and L2 in metres, whatever the units of the report.
        report.line("L (larghezza della copertura [m]) =" + std::string(trim_blanks(data.entries[0])));
        report.line("H (altezza della copertura [m]) =" + std::string(trim_blanks(data.entries[1])));
        report.line("L1 (larghezza zona caricata [m]) =" + display_number_text(round_half_even(cells.L1, 2)));
        report.line("L2 ( = 0.25 * L1 - [m]) =" + display_number_text(round_half_even(0.25 * cells.L1, 2)));
    }
}

}  // namespace

void write_snow_load_heading(ReportFile& report, const ReportData& data, const ProgramCells& cells) {
    const std::string_view area_load = conversion_directives(cells.unit_system).area_load;
    report.heading({.unit_caption = "Unità di misura : ",
                    .job_name = data.JobName,
                    .unit_system = cells.unit_system,
                    .zone = cells.zone,
                    .altitude = data.altitude,
                    .return_period = cells.return_period});
    report.line("qsk (carico neve al suolo) = " + report.formatted(cells.qsk, "(FD_08)(DV_04)", area_load));
    report.blank_line();
}

void write_roof(ReportFile& report, const ReportData& data, const ProgramCells& cells, const Entries& entries,
                const Calculation& calculation) {
    if (calculation.load_cases.empty()) return;
    const Section& section = *std::ranges::find(sections, entries.kind, &Section::kind);
    report.line(section.title);
    report.blank_line();
    write_entries(report, data, cells, entries);
    report.blank_line();
    report.line(section.table_header);

    constexpr std::string_view column = "(FD_08)(DV_04)(SC_|)";
    const ConversionDirectives conversion = conversion_directives(cells.unit_system);
    for (const LoadCase& load_case : calculation.load_cases) {
        std::string row(section.label_width - load_case.label.size(), ' ');
        row += load_case.label;
        row += '|';
        row += report.formatted(load_case.mu, column);
        row += report.formatted(load_case.qs, column, conversion.area_load);
        if (load_case.qe)
            row += report.formatted(*load_case.qe, "(FD_07)(DV_03)(SC_|)", conversion.line_load);
        report.line(row);
    }
}

}  // namespace coltre
