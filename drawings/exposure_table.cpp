#include "drawings/exposure_table.h"

#include <array>
#include <string>
#include <vector>

#include "drawings/drawing_parts.h"

namespace coltre {

namespace {

struct Row {
    std::string topography;
    std::vector<std::string> description;
    std::string CE;
};

}  // namespace

Drawing exposure_table() {
    const std::array<Row, 4> rows{{
        {"Topografia", {"Descrizione"}, "CE"},
        {"Battuta dai venti",
         {"Aree pianeggianti non ostruite esposte su tutti i lati,", "senza costruzioni o alberi più alti"},
         "0,9"},
        {"Normale",
         {"Aree in cui non è presente una significativa rimozione",
          "di neve sulla costruzione prodotta dal vento,", "a causa del terreno, altre costruzioni o alberi"},
         "1,0"},
        {"Riparata",
         {"Aree in cui la costruzione considerata è sensibilmente",
          "più bassa del circostante terreno o circondata", "da costruzioni o alberi più alti"},
         "1,1"},
    }};
    Drawing drawing;
    drawing.page = {0, 0, 10800, 4950};
    constexpr std::array<double, 4> columns{300, 2600, 9400, 10500};  // x of the lines between
    constexpr double top = 800, line = 300, margin = 140;
    const auto add_cell = [&](const std::string& text, std::size_t column, double middle, Align align) {
        const double left = columns[column] + margin;
        const double width = columns[column + 1] - margin - left;
        drawing.texts.push_back({Role::dimension, text, {left, middle - line / 2, width, line}, align});
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
        for (const std::string& text : row.description) {
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
