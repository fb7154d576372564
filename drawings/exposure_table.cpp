#include "drawings/exposure_table.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "drawings/drawing_parts.h"
#include "engine/exposure.h"
#include "text/number_text.h"

namespace coltre {

namespace {

struct Row {
    std::string_view topography;
    std::vector<std::string_view> description;
    std::string CE;
};

}  // namespace

Drawing exposure_table() {
    std::vector<Row> rows{{"Topografia", {"Descrizione"}, "CE"}};
    for (const Exposure& exposure : exposures) {
        std::string CE = fixed_number_text(exposure.CE, 1);
        CE[CE.find('.')] = ',';
        Row& row = rows.emplace_back(Row{exposure.topography, {}, std::move(CE)});
        std::ranges::copy_if(exposure.description, std::back_inserter(row.description),
                             [](std::string_view line) { return !line.empty(); });
    }
    Drawing drawing;
    drawing.page = {0, 0, 10800, 4950};
    constexpr std::array<double, 4> columns{300, 2600, 9400, 10500};  // x of the lines between
    constexpr double top = 800, line = 300, margin = 140;
    const auto add_cell = [&](std::string_view text, std::size_t column, double middle, Align align) {
        const double left = columns[column] + margin;
        const double width = columns[column + 1] - margin - left;
        drawing.texts.push_back(
            {Role::dimension, std::string(text), {left, middle - line / 2, width, line}, align});
    };
    add_text(drawing, Role::dimension, "Coefficiente di esposizione CE", {drawing.page.width / 2, top / 2},
             Align::centre);
    double y = top;
    for (const Row& row : rows) {
        const double height = static_cast<double>(row.description.size()) * line + 2 * margin;
        if (y == top) {
            drawing.shapes.push_back(
                {Role::snow,
                 {{columns[0], y}, {columns[3], y}, {columns[3], y + height}, {columns[0], y + height}},
                 true});
        }
        add_line(drawing, Role::dimension, {columns[0], y}, {columns[3], y});
        add_cell(row.topography, 0, y + height / 2, Align::left);
        double next = y + margin + line / 2;
        for (const std::string_view text : row.description) {
            add_cell(text, 1, next, Align::left);
            next += line;
        }
        add_cell(row.CE, 2, y + height / 2, Align::centre);
        y += height;
    }
    add_line(drawing, Role::dimension, {columns[0], y}, {columns[3], y});
    for (const double x : columns)
        add_line(drawing, Role::dimension, {x, top}, {x, y});
    return drawing;
}

}  // namespace coltre
