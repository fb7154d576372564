#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "calculate/Calcola.h"
#include "calculate/Calcola2.h"
#include "calculate/return_period.h"
#include "fuzz/input.h"
#include "fuzz/require.h"
#include "fuzz/shown_number.h"
#include "platform/files.h"
#include "report/unit_systems.h"
#include "tests/support/fake_doors.h"
#include "tests/support/temporary_directory.h"
#include "text/characters.h"

// Input: 0 to 3 for a roof family, 4 to 6 for a special case; item of the unit selector; zone; altitude;
// coefficients CE and Ct; return period; four entries of the calculation; then the name of the job.

namespace {

using namespace coltre;
using namespace coltre::fuzz;

/// What a calculation told, which is what its report has to hold.
struct Told : CalculationObserver {
    void on_roof(const Roof& told_roof) override { roof = told_roof; }
    void on_load_case(const LoadCase& load_case) override { load_cases.push_back(load_case); }
    void on_special_case(const SpecialCaseEntries& entries) override { special_case = entries; }

    std::optional<Roof> roof;
    std::vector<LoadCase> load_cases;
    std::optional<SpecialCaseEntries> special_case;
};

/// What was typed and stands in the report as it is.
struct Typed {
    std::string job_name;
    std::array<std::string, 4> entries;
};

struct Units {
    std::string_view heading;
    double area_load, line_load;  ///< of a kN
    std::size_t area_decimals, line_decimals;
};
constexpr double kgf = 1000 / 9.80665;
// In the order of the unit selector.
constexpr std::array<Units, 3> units{{{"m ; KN/mq ; KN/m", 1, 1, 4, 3},
                                      {"m ; Kgf/mq ; Kgf/m", kgf, kgf, 2, 1},
                                      {"cm ; Kgf/cmq ; Kgf/cm", kgf / 1e4, kgf / 100, 6, 3}}};

// In the order of RoofFamily.
constexpr std::array<std::size_t, 4> load_cases_of_family{1, 4, 3, 3};
constexpr std::array<std::string_view, 4> table_headers{
    "            mu   |   qs   |   qe  |", "                 mu   |   qs   |   qe  |",
    "                         mu   |   qs   |", "           mu   |   qs   |   qe  |"};

/// The number as a report line without directives holds it.
std::string printed(double value) {
    std::array<char, 32> text;
    std::snprintf(text.data(), text.size(), "% .15G", value == 0 ? 0 : value);
    return text.data();
}

struct Number {
    double value;
    std::size_t decimals;
};

/// How many decimals stand behind the point, blanks for zeros included.
std::size_t decimals_in(std::string_view text) {
    const std::size_t point = text.find('.');
    return point == std::string_view::npos ? 0 : text.size() - point - 1;
}

/// @param text  the number without blanks at its end; zeros at the end of its decimals are not written
void check_number(std::string text, Number expected) {
    if (text.find('E') == std::string::npos) {
        require(decimals_in(text) <= expected.decimals, "a number has no more than its decimals");
        if (text.find('.') == std::string::npos) text += '.';
        text.append(expected.decimals - decimals_in(text), '0');
    }
    require(shows(text, expected.value, 0), "the report shows what was calculated");
}

/// @param field  the number with the blanks that fill its field, which may have room for fewer decimals
void check_field(std::string_view field, Number expected) {
    std::string text(field);
    if (text.find('E') == std::string::npos) {
        require(decimals_in(text) <= expected.decimals, "a field has no more than its decimals");
        std::ranges::replace(text.end() - static_cast<std::ptrdiff_t>(decimals_in(text)), text.end(), ' ',
                             '0');
    }
    const double tolerance = 0.5 * std::pow(10, -static_cast<double>(expected.decimals));
    require(shows(text, expected.value, tolerance), "the field shows what was calculated");
}

/// The lines of a report, taken one by one.
class Lines {
  public:
    explicit Lines(std::string_view file) : m_rest(file) {}

    [[nodiscard]] bool at_end() const { return m_rest.empty(); }

    std::string_view next() {
        const std::size_t end = m_rest.find("\r\n");
        require(end != std::string_view::npos, "every line ends with CR LF");
        const std::string_view line = m_rest.substr(0, end);
        m_rest.remove_prefix(end + 2);
        return line;
    }
    void text(const std::string& expected) {
        require(std::string(next()) + "\r\n" == file_line(expected), "the report has its lines");
    }
    /// What stands behind the caption in the next line.
    std::string_view behind(std::string_view caption) {
        const std::string_view line = next();
        require(line.starts_with(caption), "the report has its captions");
        return line.substr(caption.size());
    }
    void number(std::string_view caption, double value, std::size_t decimals) {
        check_number(std::string(behind(caption)), {value, decimals});
    }

  private:
    std::string_view m_rest;
};

std::vector<std::string_view> fields_of(std::string_view row) {
    std::vector<std::string_view> fields;
    for (std::size_t end = row.find('|'); end != std::string_view::npos; end = row.find('|')) {
        fields.push_back(row.substr(0, end));
        row.remove_prefix(end + 1);
    }
    require(row.empty(), "a separator closes the row");
    return fields;
}

/// The widths of a row's fields follow from its table header, whose first column spans label and mu.
void check_row(std::string_view header, std::string_view row, std::string_view label,
               const std::vector<Number>& numbers) {
    const auto captions = fields_of(header);
    const auto fields = fields_of(row);
    require(captions.size() == numbers.size() && fields.size() == numbers.size() + 1,
            "a row has the fields of its header");
    require(trim_blanks(fields[0]) == label, "a row has its label");
    for (std::size_t i = 0; i < numbers.size(); ++i) {
        const std::size_t width = i == 0 ? captions[0].size() - fields[0].size() - 1 : captions[i].size();
        const std::string_view field = fields[i + 1];
        // A number of as many digits as there are places may round up past its field.
        const bool rounded_up = field.size() == width + 1 &&
                                trim_blanks(field).find_first_of("23456789") == std::string_view::npos;
        require(field.size() == width || rounded_up, "a field stands under its caption");
        check_field(field, numbers[i]);
    }
}

/// @param overflow  some numbers of the rows are missing
void check_roof(Lines& lines, const Told& told, const Typed& typed, const ProgramCells& cells,
                const Units& unit, bool overflow) {
    const Roof& roof = *told.roof;
    switch (roof.family) {
        case RoofFamily::one_pitch:
            lines.text("COPERTURA AD UNA FALDA");
            lines.text("");
            lines.text("alfa (inclinazione della falda [°]) =" + printed(roof.alfa1) + " ");
            break;
        case RoofFamily::two_pitches:
            lines.text("COPERTURA A DUE FALDE");
            lines.text("");
            lines.text("alfa1 (inclinazione della falda1 [°]) =" + printed(roof.alfa1) + " ");
            lines.text("alfa2 (inclinazione della falda2 [°]) =" + printed(roof.alfa2) + " ");
            break;
        case RoofFamily::several_pitches:
            lines.text("COPERTURA A PIU' FALDE - condizione aggiuntiva");
            lines.text("");
            lines.text("alfa (inclinazione della falda 1[°]) =" + printed(roof.alfa1) + " ");
            lines.text("alfa (inclinazione della falda 2[°]) =" + printed(roof.alfa2) + " ");
            break;
        case RoofFamily::cylindrical:
            lines.text("COPERTURE CILINDRICHE");
            lines.text("");
            lines.text("L (larghezza della copertura [m]) =" + std::string(trim_blanks(typed.entries[0])));
            lines.text("H (altezza della copertura [m]) =" + std::string(trim_blanks(typed.entries[1])));
            lines.number("L1 (larghezza zona caricata [m]) =", cells.L1, 2);
            lines.number("L2 ( = 0.25 * L1 - [m]) =", 0.25 * cells.L1, 2);
            break;
    }
    const std::string header(table_headers[static_cast<std::size_t>(roof.family)]);
    lines.text("");
    lines.text(header);
    for (const LoadCase& load_case : told.load_cases) {
        const std::string_view row = lines.next();
        if (overflow) continue;
        std::vector<Number> numbers{{load_case.mu, 4}, {load_case.qs * unit.area_load, unit.area_decimals}};
        if (load_case.qe) numbers.push_back({*load_case.qe * unit.line_load, unit.line_decimals});
        check_row(header, row, load_case.label, numbers);
    }
}

void check_drift(Lines& lines, double mu2, double qs1, double qs2, double ls) {
    const std::string header = "            mu   |   qs   |";
    lines.text("");
    lines.text(header);
    check_row(header, lines.next(), "mu1", {{0.8, 4}, {qs1, 4}});
    check_row(header, lines.next(), "mu2", {{mu2, 4}, {qs2, 4}});
    lines.text("");
    lines.number("ls (lunghezza di accumulo) = ", ls, 2);
}

void check_special_case(Lines& lines, const SpecialCaseEntries& entries, const Typed& typed,
                        const ProgramCells& cells) {
    switch (entries.special_case) {
        case SpecialCase::level_change:
            lines.text("DISCONTINUITA' DI QUOTA DELLE COPERTURE");
            lines.text("");
            lines.text("alfa (inclinazione della falda [°]) =" + printed(entries.alfa) + " ");
            lines.number("h (dislivello tra le due coperture) =", entries.h, 2);
            lines.number("b1 (larghezza copertura a quota superiore) =", entries.b1, 2);
            lines.number("b2 (larghezza copertura a quota inferiore) =", entries.b2, 2);
            check_drift(lines, cells.level_mu2, cells.level_qs1, cells.level_qs2, cells.level_ls);
            break;
        case SpecialCase::wall:
            lines.text("ACCUMULO CONTRO PARETI VERTICALI");
            lines.text("");
            lines.number("h (altezza della parete) = ", entries.h, 2);
            check_drift(lines, cells.mu2, cells.wall_qs1, cells.wall_qs2, cells.wall_ls);
            break;
        case SpecialCase::snow_guard:
            lines.text("CARICO NEVE SU PROTEZIONI PARANEVE E OSTACOLI");
            lines.text("");
            lines.number("b (distanza in piano dall'ostacolo al colmo) = ", entries.b, 2);
            lines.text("alfa (inclinazione della falda [°]) = " + typed.entries[2]);
            lines.number("qs (carico neve sulla copertura) = ", entries.qs, 4);
            lines.number("Fs (carico neve contro ostacolo) = ", cells.Fs, 4);
            break;
    }
}

/// @param is_roof  false for a special case
void check_report(const std::string& path, bool is_roof, const Told& told, const Typed& typed,
                  const ProgramCells& cells, const FakeDoors& user, const ClickOutcome& outcome) {
    const auto file = read_file(path);
    require(file.has_value() == !outcome.report.empty(), "a report that was written is there");
    if (!file) {
        require(outcome.fault != Fault::none, "without a fault there is a report");
        return;
    }
    const Units& unit = units[static_cast<std::size_t>(cells.unit_system - 1)];
    const bool overflow = std::ranges::any_of(user.shown, [](const Message& message) {
        return message.text.starts_with("Errore numerico: un valore della relazione");
    });
    Lines lines(*file);
    lines.text("CARICO NEVE          lavoro : " + typed.job_name);
    lines.text((is_roof ? "Unità di misura :  " : "Unita` di misura : ") + std::string(unit.heading));
    lines.text("");
    lines.text("Zona" + printed(cells.zone));
    lines.text("Altitudine [m]:" + printed(*outcome.altitude));
    lines.text("Periodo di Ritorno [anni]:  " + printed(cells.return_period));
    lines.text("");
    const std::string_view qsk = lines.behind("qsk (carico neve al suolo) = ");
    if (!is_roof) check_number(std::string(qsk), {cells.qsk, 4});
    if (is_roof && !overflow) check_field(qsk, {cells.qsk * unit.area_load, unit.area_decimals});
    lines.text("");

    if (outcome.fault == Fault::none) {
        require(is_roof ? told.roof.has_value() : told.special_case.has_value(), "there is a section");
        if (is_roof) {
            require(
                told.load_cases.size() == load_cases_of_family[static_cast<std::size_t>(told.roof->family)],
                "all load cases of the family");
        }
    }
    if (told.roof) check_roof(lines, told, typed, cells, unit, overflow);
    if (told.special_case) check_special_case(lines, *told.special_case, typed, cells);
    require(lines.at_end(), "nothing follows");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    Input input(data, size);
    const auto calculation = input.finite();
    const auto unit_item = input.finite();
    const auto zone = input.finite();
    if (!calculation || !unit_item || !zone) return 0;
    const auto which = static_cast<int>(std::fmod(std::fabs(*calculation), 7));

    static const TemporaryDirectory directory;
    Program program;
    program.directories.WorkDirectory = directory.text();
    program.cells.zone = static_cast<SnowZone>(std::fmod(*zone, 4));
    const std::string unit(unit_items[static_cast<std::size_t>(std::fmod(std::fabs(*unit_item), 3))]);

    MainWindowFields roof;
    roof.asinput = input.line();
    roof.ComboEsp = input.line();
    roof.TextCTermico = input.line();
    roof.udmcombo = unit;
    roof.Check1Box = true;
    FakeDoors user;
    confirm_return_period(input.line(), program.cells, user);

    Typed typed;
    for (std::string& entry : typed.entries)
        entry = input.line();
    typed.job_name = input.rest();
    program.directories.JobName = typed.job_name;

    Told told;
    if (which < 4) {
        roof.SSTab1 = static_cast<RoofFamily>(which);
        roof.inputalfa = roof.inputalfa1 = roof.inputalfa3 = roof.Lcopcil = typed.entries[0];
        roof.inputalfa2 = roof.inputalfa4 = roof.hcopcil = typed.entries[1];
        const ClickOutcome outcome = Calcola(roof, program, user, told);
        check_report(directory.text() + "\\coltre.txt", true, told, typed, program.cells, user, outcome);
    } else {
        SpecialCasesFields special;
        special.asinput = roof.asinput;
        special.ComboEsp = roof.ComboEsp;
        special.TextCTermico = roof.TextCTermico;
        special.cartelle = static_cast<SpecialCase>(which - 4);
        special.b1input = special.h3input = special.qsinput = typed.entries[0];
        special.b2input = special.biinput = typed.entries[1];
        special.h2input = special.angoloinput = typed.entries[2];
        special.deltainput = typed.entries[3];
        special.udmcombo = unit;
        special.Check1Box = true;
        const ClickOutcome outcome = Calcola2(special, program, user, told);
        check_report(directory.text() + "\\coltrecasipart.txt", false, told, typed, program.cells, user,
                     outcome);
    }
    for (const auto& entry : std::filesystem::directory_iterator(directory.path()))
        std::filesystem::remove(entry.path());
    return 0;
}
