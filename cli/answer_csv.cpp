#include <algorithm>
#include <array>

#include "cli/answers.h"
#include "platform/code_page.h"
#include "text/number_text.h"

namespace coltre::cli {

namespace {

/// Columns of the coefficients, in the order of the calculations.
constexpr std::array<std::string_view, 8> coefficient_columns{
    "mu1",           "mu1(alfa1)",           "0.5mu1(alfa1)", "mu1(alfa2)",
    "0.5mu1(alfa2)", "mu2((alfa1+alfa2)/2)", "0.5mu3",        "mu3"};

/// Columns of the results: a name that two calculations share stands once.
const std::vector<std::string_view>& result_columns() {
    static const std::vector<std::string_view> columns = [] {
        std::vector<std::string_view> names;
        for (const ResultCell* const cell : results::all)
            if (std::ranges::find(names, cell->name) == names.end()) names.push_back(cell->name);
        return names;
    }();
    return columns;
}

void append_number(std::string& line, double value, char separator) {
    std::string text = shortest_number_text(value);
    // A spreadsheet that separates cells by ";" has the comma for decimals.
    if (separator == ';') std::ranges::replace(text, '.', ',');
    line += text;
}

void append_text(std::string& line, std::string text, char separator, CsvEncoding encoding) {
    std::ranges::replace(text, '\r', ' ');
    const std::string field = csv_field(text, separator);
    line += encoding == CsvEncoding::windows_1252 ? to_code_page(field) : field;
}

/// What is to be known of an answer besides its numbers.
std::string remarks(const Answer& answer) {
    std::string text;
    const auto add = [&](const std::string& remark) { text += (text.empty() ? "" : "; ") + remark; };
    std::ranges::for_each(answer.partly_understood, add);
    std::ranges::for_each(answer.unusual, add);
    for (const Message& message : answer.messages)
        if (message.icon != Icon::none && answer.error != message.text) add(message.text);
    return text;
}

}  // namespace

void append_csv_columns(std::string& line, char separator) {
    const auto append = [&](std::string_view name) { (line += separator) += name; };
    append("qsk");
    std::ranges::for_each(coefficient_columns, append);
    std::ranges::for_each(result_columns(), append);
    append("avvisi");
    append("errore");
}

void append_csv_answer(std::string& line, const Answer& answer, char separator, CsvEncoding encoding) {
    line += separator;
    if (answer.qsk) append_number(line, *answer.qsk, separator);
    for (const std::string_view label : coefficient_columns) {
        line += separator;
        const auto& coefficients = answer.calculation.coefficients;
        const auto found = std::ranges::find(coefficients, label, &Coefficient::label);
        if (found != coefficients.end()) append_number(line, found->mu, separator);
    }
    for (const std::string_view name : result_columns()) {
        line += separator;
        for (const auto& [cell, value] : answer.calculation.results)
            if (cell->name == name) append_number(line, value, separator);
    }
    line += separator;
    append_text(line, remarks(answer), separator, encoding);
    line += separator;
    append_text(line, answer.error.value_or(""), separator, encoding);
}

}  // namespace coltre::cli
