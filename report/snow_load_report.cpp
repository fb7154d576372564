#include "report/snow_load_report.h"

#include <array>

#include "text/characters.h"
#include "text/number_text.h"

namespace coltre {

namespace {

/// What a family's section consists of besides its numbers.
struct Section {
    std::string_view title;
    std::string_view table_header;  // its "|" stand over those of the rows
    std::size_t label_width;        // the row labels end in this column
};

// In the order of RoofFamily.
constexpr std::array<Section, 4> sections{{
    {"COPERTURA AD UNA FALDA", "            mu   |   qs   |   qe  |", 8},
    {"COPERTURA A DUE FALDE", "                 mu   |   qs   |   qe  |", 13},
    {"COPERTURA A PIU' FALDE - condizione aggiuntiva", "                         mu   |   qs   |", 21},
    {"COPERTURE CILINDRICHE", "           mu   |   qs   |   qe  |", 7},
}};

/// A number printed without a directive: its display form and one blank.
std::string printed(double value) {
    return display_number_text(value) + " ";
}

}  // namespace

SnowLoadReport::SnowLoadReport(const SnowLoadReportData& data, const ProgramCells& cells,
                               MessageBoxes& message_boxes)
    : m_path(std::string(data.WorkDirectory) + "\\coltre.txt"),
      m_Lcopcil(trim_blanks(data.Lcopcil)),
      m_hcopcil(trim_blanks(data.hcopcil)),
      m_cells(cells),
      m_conversion(conversion_directives(cells.unit_system)),
      m_file(m_path, message_boxes) {
    m_file.heading({.unit_caption = "Unità di misura : ",
                    .job_name = data.JobName,
                    .unit_system = cells.unit_system,
                    .zone = cells.zone,
                    .altitude = data.altitude,
                    .return_period = cells.return_period,
                    .qsk = m_file.formatted(cells.qsk, "(FD_08)(DV_04)", m_conversion.area_load)});
}

void SnowLoadReport::on_roof(const Roof& roof) {
    const Section& section = sections[static_cast<std::size_t>(roof.family)];
    m_label_width = section.label_width;
    m_file.line(section.title);
    m_file.blank_line();
    switch (roof.family) {
        case RoofFamily::one_pitch:
            m_file.line("alfa (inclinazione della falda [°]) =" + printed(roof.alfa1));
            break;
        case RoofFamily::two_pitches:
            m_file.line("alfa1 (inclinazione della falda1 [°]) =" + printed(roof.alfa1));
            m_file.line("alfa2 (inclinazione della falda2 [°]) =" + printed(roof.alfa2));
            break;
        case RoofFamily::several_pitches:
            m_file.line("alfa (inclinazione della falda 1[°]) =" + printed(roof.alfa1));
            m_file.line("alfa (inclinazione della falda 2[°]) =" + printed(roof.alfa2));
            break;
        case RoofFamily::cylindrical:
            // Deliberate: the dimensions stay as typed and L1 and L2 in metres, whatever the units of the
            // report.
            m_file.line("L (larghezza della copertura [m]) =" + m_Lcopcil);
            m_file.line("H (altezza della copertura [m]) =" + m_hcopcil);
            m_file.line("L1 (larghezza zona caricata [m]) =" +
                        display_number_text(round_half_even(m_cells.L1, 2)));
            m_file.line("L2 ( = 0.25 * L1 - [m]) =" +
                        display_number_text(round_half_even(0.25 * m_cells.L1, 2)));
            break;
    }
    m_file.blank_line();
    m_file.line(section.table_header);
}

void SnowLoadReport::on_load_case(const LoadCase& load_case) {
    constexpr std::string_view column = "(FD_08)(DV_04)(SC_|)";
    std::string row(m_label_width - load_case.label.size(), ' ');
    row += load_case.label;
    row += '|';
    row += m_file.formatted(load_case.mu, column);
    row += m_file.formatted(load_case.qs, column, m_conversion.area_load);
    if (load_case.qe) row += m_file.formatted(*load_case.qe, "(FD_07)(DV_03)(SC_|)", m_conversion.line_load);
    m_file.line(row);
}

Message SnowLoadReport::confirmation() const {
    return {Icon::none, std::string(program_title), "Creazione della relazione " + m_path + " effettuata"};
}

}  // namespace coltre
