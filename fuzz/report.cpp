#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <cstdint>
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
    void on_roof(const Roof& roof) override { family = roof.family; }
    void on_load_case(const LoadCase& load_case) override { load_cases.push_back(load_case); }
    void on_special_case(const SpecialCaseEntries& entries) override { special_case = entries.special_case; }

    std::optional<RoofFamily> family;
    std::vector<LoadCase> load_cases;
    std::optional<SpecialCase> special_case;
};

constexpr std::size_t heading_lines = 9;
// In the order of RoofFamily: up to and including the header of the table.
constexpr std::array<std::size_t, 4> section_lines{5, 6, 6, 8};
constexpr std::array<std::size_t, 4> load_cases_of_family{1, 4, 3, 3};
// In the order of SpecialCase.
constexpr std::array<std::size_t, 3> special_section_lines{12, 9, 6};

std::size_t expected_lines(const Told& told) {
    std::size_t lines = heading_lines + told.load_cases.size();
    if (told.family) lines += section_lines[static_cast<std::size_t>(*told.family)];
    if (told.special_case) lines += special_section_lines[static_cast<std::size_t>(*told.special_case)];
    return lines;
}

std::vector<std::string> lines_of(std::string_view file) {
    std::vector<std::string> lines;
    while (!file.empty()) {
        const std::size_t end = file.find("\r\n");
        require(end != std::string_view::npos, "every line ends with CR LF");
        lines.emplace_back(file.substr(0, end));
        file.remove_prefix(end + 2);
    }
    return lines;
}

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
void check_columns(std::string_view header, std::string_view row) {
    const auto captions = fields_of(header);
    const auto fields = fields_of(row);
    require(fields.size() == captions.size() + 1, "a row has the fields of its header");
    for (std::size_t i = 0; i < captions.size(); ++i) {
        const std::size_t width = i == 0 ? captions[0].size() - fields[0].size() - 1 : captions[i].size();
        const std::string_view field = fields[i + 1];
        // A number of as many digits as there are places may round up past its field.
        const bool rounded_up = field.size() == width + 1 &&
                                trim_blanks(field).find_first_of("23456789") == std::string_view::npos;
        require(field.size() == width || rounded_up, "a field stands under its caption");
    }
}

void check_number(std::string_view field, double value, double tolerance) {
    if (field.find('*') == std::string_view::npos)
        require(shows(field, value, tolerance), "the report shows what was calculated");
}

void check_rows(const std::vector<std::string>& lines, const Told& told, const ProgramCells& cells) {
    const std::size_t first = lines.size() - told.load_cases.size();
    for (std::size_t i = 0; i < told.load_cases.size(); ++i) {
        const LoadCase& load_case = told.load_cases[i];
        const std::string& row = lines[first + i];
        check_columns(lines[first - 1], row);
        const auto fields = fields_of(row);
        require(trim_blanks(fields[0]) == load_case.label, "a row has the label of its load case");
        check_number(fields[1], load_case.mu, 0.5e-4);
        if (cells.unit_system != 1) continue;
        check_number(fields[2], load_case.qs, 0.5e-4);
        if (load_case.qe) check_number(fields[3], *load_case.qe, 0.5e-3);
    }
}

void check_special_rows(const std::vector<std::string>& lines, SpecialCase special_case,
                        const ProgramCells& cells) {
    if (special_case == SpecialCase::snow_guard) return;
    const bool level_change = special_case == SpecialCase::level_change;
    const std::size_t header = lines.size() - 5;
    const std::array mu{0.8, level_change ? cells.level_mu2 : cells.mu2};
    const std::array qs{level_change ? cells.level_qs1 : cells.wall_qs1,
                        level_change ? cells.level_qs2 : cells.wall_qs2};
    for (std::size_t i = 0; i < mu.size(); ++i) {
        const std::string& row = lines[header + 1 + i];
        check_columns(lines[header], row);
        const auto fields = fields_of(row);
        check_number(fields[1], mu[i], 0.5e-4);
        check_number(fields[2], qs[i], 0.5e-4);
    }
}

void check_report(const std::string& path, const Told& told, const ProgramCells& cells, const FakeDoors& user,
                  const ClickOutcome& outcome) {
    const auto file = read_file(path);
    require(file.has_value() == !outcome.report.empty(), "a report that was written is there");
    if (!file) {
        require(outcome.fault != Fault::none, "without a fault there is a report");
        return;
    }
    const std::vector<std::string> lines = lines_of(*file);
    require(lines.size() == expected_lines(told), "the report has its lines");
    require(lines[0].starts_with("CARICO NEVE          lavoro : "), "the heading");
    if (told.family && outcome.fault == Fault::none) {
        require(told.load_cases.size() == load_cases_of_family[static_cast<std::size_t>(*told.family)],
                "all load cases of the family");
    }
    const bool overflow_told = std::ranges::any_of(user.shown, [](const Message& message) {
        return message.text.starts_with("Errore numerico: un valore della relazione");
    });
    if (overflow_told) return;
    if (told.family) check_rows(lines, told, cells);
    if (told.special_case) check_special_rows(lines, *told.special_case, cells);
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

    std::array<std::string, 4> entries;
    for (std::string& entry : entries)
        entry = input.line();
    program.directories.JobName = input.rest();

    Told told;
    if (which < 4) {
        roof.SSTab1 = static_cast<RoofFamily>(which);
        roof.inputalfa = roof.inputalfa1 = roof.inputalfa3 = roof.Lcopcil = entries[0];
        roof.inputalfa2 = roof.inputalfa4 = roof.hcopcil = entries[1];
        const ClickOutcome outcome = Calcola(roof, program, user, told);
        check_report(directory.text() + "\\coltre.txt", told, program.cells, user, outcome);
    } else {
        SpecialCasesFields special;
        special.asinput = roof.asinput;
        special.ComboEsp = roof.ComboEsp;
        special.TextCTermico = roof.TextCTermico;
        special.cartelle = static_cast<SpecialCase>(which - 4);
        special.b1input = special.h3input = special.qsinput = entries[0];
        special.b2input = special.biinput = entries[1];
        special.h2input = special.angoloinput = entries[2];
        special.deltainput = entries[3];
        special.udmcombo = unit;
        special.Check1Box = true;
        const ClickOutcome outcome = Calcola2(special, program, user, told);
        check_report(directory.text() + "\\coltrecasipart.txt", told, program.cells, user, outcome);
    }
    for (const auto& entry : std::filesystem::directory_iterator(directory.path()))
        std::filesystem::remove(entry.path());
    return 0;
}
