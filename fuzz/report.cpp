#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "calculate/Calcola.h"
#include "calculate/Calcola2.h"
#include "fuzz/click_input.h"
#include "fuzz/require.h"
#include "fuzz/shown_number.h"
#include "platform/files.h"
#include "tests/support/temporary_directory.h"
#include "text/characters.h"

// Input: a click (click_input.h), then the name of the job. What is required of its report is what stays true
// for any input: which lines there are, that tables have their columns, and that every number reads back. The
// words are those of the golden files.

namespace {

using namespace coltre;
using namespace coltre::fuzz;

constexpr std::size_t all_digits = 20;

struct Number {
    double value;
    std::size_t decimals = all_digits;  ///< at most
};

/// A line that a report must have.
struct Line {
    enum Form { blank, text, caption_and_number, field_at_end, table_header, row } form;
    std::vector<Number> numbers{};
};

struct Units {
    double area_load, line_load;  ///< of a kN
    std::size_t area_decimals, line_decimals;
};
constexpr double kgf = 1000 / 9.80665;
// In the order of the unit selector.
constexpr std::array<Units, 3> units{{{1, 1, 4, 3}, {kgf, kgf, 2, 1}, {kgf / 1e4, kgf / 100, 6, 3}}};

std::vector<Line> expected_lines(const Description& calculation, const ProgramCells& cells,
                                 const Outcome& outcome) {
    using enum Line::Form;
    const Units& unit = units[static_cast<std::size_t>(cells.unit_system - 1)];
    const bool is_roof = calculation.window == Window::main;
    std::vector<Line> lines{{text}, {text}, {blank}};
    const auto add_numbers = [&](std::initializer_list<Number> numbers) {
        for (const Number& number : numbers)
            lines.push_back({caption_and_number, {number}});
    };
    const auto add = [&](std::initializer_list<Line> more) { lines.insert(lines.end(), more); };
    add_numbers({{static_cast<double>(cells.zone)}, {*outcome.altitude}, {cells.return_period}});
    add({{blank}});
    add({is_roof ? Line{field_at_end, {{cells.qsk * unit.area_load, unit.area_decimals}}}
                 : Line{caption_and_number, {{cells.qsk, 4}}}});
    add({{blank}});

    const Entries& entries = outcome.entries;
    const auto& load_cases = outcome.calculation.load_cases;
    if (is_roof ? load_cases.empty() : !outcome.complete) return lines;
    add({{text}, {blank}});
    const auto add_drift = [&](double mu2, double qs1, double qs2, double ls) {
        add({{blank}, {table_header}, {row, {{0.8, 4}, {qs1, 4}}}, {row, {{mu2, 4}, {qs2, 4}}}, {blank}});
        add_numbers({Number{ls, 2}});
    };
    switch (calculation.kind) {
        case Kind::one_pitch:
            add_numbers({Number{entries.alfa}});
            break;
        case Kind::two_pitches:
        case Kind::several_pitches:
            add_numbers({{entries.alfa1}, {entries.alfa2}});
            break;
        case Kind::cylindrical:
            add({{text}, {text}});
            add_numbers({{cells.L1, 2}, {0.25 * cells.L1, 2}});
            break;
        case Kind::level_change:
            add_numbers({{entries.alfa}, {entries.h, 2}, {entries.b1, 2}, {entries.b2, 2}});
            add_drift(cells.level_mu2, cells.level_qs1, cells.level_qs2, cells.level_ls);
            break;
        case Kind::wall:
            add_numbers({Number{entries.h, 2}});
            add_drift(cells.mu2, cells.wall_qs1, cells.wall_qs2, cells.wall_ls);
            break;
        case Kind::snow_guard:
            add_numbers({Number{entries.b, 2}});
            add({{text}});
            add_numbers({{entries.qs, 4}, {cells.Fs, 4}});
            break;
    }
    if (is_roof) add({{blank}, {table_header}});
    for (const LoadCase& load_case : load_cases) {
        Line line{row, {{load_case.mu, 4}, {load_case.qs * unit.area_load, unit.area_decimals}}};
        if (load_case.qe) line.numbers.push_back({*load_case.qe * unit.line_load, unit.line_decimals});
        lines.push_back(std::move(line));
    }
    return lines;
}

/// Decimals that are not written count as zeros.
/// @param field  the text has the width of its field, which may have room for fewer decimals
void check_number(std::string text, Number expected, bool field) {
    double tolerance = 0;
    if (text.find('E') == std::string::npos) {
        const std::size_t point = std::min(text.find('.'), text.size());
        const std::size_t decimals = text.size() - std::min(point + 1, text.size());
        require(decimals <= expected.decimals, "a number has no more than its decimals");
        if (field) {
            std::ranges::replace(text.begin() + static_cast<std::ptrdiff_t>(point), text.end(), ' ', '0');
        } else {
            if (point == text.size()) text += '.';
            text.append(expected.decimals - decimals, '0');
        }
    }
    if (field) tolerance = 0.5 * std::pow(10, -static_cast<double>(expected.decimals));
    require(shows(text, expected.value, tolerance), "the report shows what was calculated");
}

std::vector<std::string_view> split(std::string_view text, std::string_view end) {
    std::vector<std::string_view> parts;
    for (std::size_t found = text.find(end); found != std::string_view::npos; found = text.find(end)) {
        parts.push_back(text.substr(0, found));
        text.remove_prefix(found + end.size());
    }
    require(text.empty(), "a separator closes the last part");
    return parts;
}

/// The widths of a row's fields follow from its table header, whose first column spans label and mu.
void check_row(std::string_view header, std::string_view row, const std::vector<Number>& numbers) {
    const auto captions = split(header, "|");
    const auto fields = split(row, "|");
    require(captions.size() == numbers.size() && fields.size() == numbers.size() + 1,
            "a row has the fields of its header");
    require(!trim_blanks(fields[0]).empty(), "a row has its label");
    for (std::size_t i = 0; i < numbers.size(); ++i) {
        const std::size_t width = i == 0 ? captions[0].size() - fields[0].size() - 1 : captions[i].size();
        const std::string_view field = fields[i + 1];
        // A number of as many digits as there are places may round up past its field.
        const bool rounded_up = field.size() == width + 1 &&
                                trim_blanks(field).find_first_of("23456789") == std::string_view::npos;
        require(field.size() == width || rounded_up, "a field stands under its caption");
        check_number(std::string(field), numbers[i], true);
    }
}

void check_line(std::string_view line, const Line& expected, std::string_view& header) {
    require(line.find_first_of("\r\n") == std::string_view::npos, "a line ends with CR LF alone");
    require(line.empty() == (expected.form == Line::blank), "the report has its lines");
    switch (expected.form) {
        case Line::blank:
        case Line::text:
            break;
        case Line::caption_and_number:
            line = line.substr(0, line.find_last_not_of(' ') + 1);
            check_number(std::string(line.substr(line.find_last_of(" =:a") + 1)), expected.numbers[0], false);
            break;
        case Line::field_at_end:
            check_number(std::string(line.substr(line.find('=') + 2)), expected.numbers[0], true);
            break;
        case Line::table_header:
            header = line;
            break;
        case Line::row:
            check_row(header, line, expected.numbers);
            break;
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    Input input(data, size);
    auto click = read_click(input);
    if (!click) return 0;
    static const TemporaryDirectory directory;
    static const std::string work_directory = directory.text();
    auto& [fields, program] = *click;
    program.directories.WorkDirectory = work_directory;
    program.directories.JobName = input.rest();
    fields.Check1Box = true;

    const Description& row = describe(fields.kind);
    const Outcome outcome = row.window == Window::main ? Calcola(fields, program) : Calcola2(fields, program);
    if (outcome.report.empty()) {
        require(outcome.fault != Fault::none, "without a fault there is a report");
        return 0;
    }
    const auto file = read_file(outcome.report);
    require(file.has_value(), "a report that was written is there");
    const auto lines = split(*file, "\r\n");
    const auto expected = expected_lines(row, program.cells, outcome);
    require(
        lines.size() == expected.size() || (lines.size() < expected.size() && outcome.fault != Fault::none),
        "a report is whole, or ends where its calculation did");
    std::string_view header;
    for (std::size_t i = 0; i < lines.size(); ++i)
        check_line(lines[i], expected[i], header);
    return 0;
}
