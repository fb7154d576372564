#include "document/formula_text.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <optional>
#include <vector>

#include "calculate/entry_reader.h"
#include "text/number_text.h"

namespace coltre {

namespace {

bool is_digit(char c) {
    return c >= '0' && c <= '9';
}
bool is_letter(char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
}

/// A word of the grammar and what is printed for it.
struct Word {
    std::string_view written;
    std::string_view printed;
};
constexpr std::array<Word, 15> words{{
    {" * ", " · "},
    {" / ", "/"},
    {" - ", " − "},
    {" <= ", " ≤ "},
    {" >= ", " ≥ "},
    {" == ", " = "},
    {"^2", "²"},
    {", ", "; "},  // the comma separates decimals
    {" and ", " e "},
    {" + ", " + "},
    {" < ", " < "},
    {" > ", " > "},
    {"(0 - ", "(−"},
    {"(", "("},
    {")", ")"},
}};

/// Functions and names that are no symbols.
constexpr std::array<Word, 9> names{{{"ln", "ln"},
                                     {"tan", "tan"},
                                     {"arctan", "arctan"},
                                     {"sin", "sen"},
                                     {"cos", "cos"},
                                     {"min", "min"},
                                     {"max", "max"},
                                     {"pi", "π"},
                                     {"zona", "zona"}}};

/// The first part of a symbol, without the parts behind its "_": its letter and its subscript.
struct Letter {
    std::string letter;
    std::string subscript;
};

Letter letter_of(std::string_view part) {
    for (const Word& greek : {Word{"alfa", "α"}, Word{"mu", "µ"}}) {
        if (part.starts_with(greek.written))
            return {std::string(greek.printed), std::string(part.substr(greek.written.size()))};
    }
    return {std::string(part.substr(0, 1)), std::string(part.substr(1))};
}

/// What the last part of a symbol says in its subscript.
std::string subscript_word(std::string_view part) {
    if (part == "dimezzato") return "½";
    if (part == "precedente") return "prec";
    return std::string(part);
}

/// @param start  of a number
/// @return the number's length
std::size_t number_length(std::string_view text) {
    std::size_t length = 0;
    const auto at = [text](std::size_t i) { return i < text.size() ? text[i] : '\0'; };
    while (is_digit(at(length)) || at(length) == '.')
        ++length;
    const bool has_sign = at(length + 1) == '+' || at(length + 1) == '-';
    if (length > 0 && at(length) == 'e' && is_digit(at(length + (has_sign ? 2 : 1)))) {
        length += has_sign ? 2 : 1;
        while (is_digit(at(length)))
            ++length;
    }
    return length;
}

void append(Pieces& pieces, std::string_view text, Style style) {
    if (text.empty()) return;
    if (!pieces.empty() && pieces.back().style == style) {
        pieces.back().text += text;
    } else {
        pieces.push_back({std::string(text), style});
    }
}

void append(Pieces& pieces, const Pieces& more) {
    for (const Piece& piece : more)
        append(pieces, piece.text, piece.style);
}

constexpr double largest_without_exponent = 1e9;

std::string with_comma(std::string text) {
    std::ranges::replace(text, '.', ',');
    return text;
}

}  // namespace

Pieces symbol_text(std::string_view symbol) {
    const auto name = std::ranges::find(names, symbol, &Word::written);
    if (name != names.end()) return {{std::string(name->printed), Style::plain}};

    std::string_view rest = symbol;
    const auto next_part = [&rest] {
        const std::string_view part = rest.substr(0, rest.find('_'));
        rest.remove_prefix(std::min(rest.size(), part.size() + 1));
        return part;
    };
    auto [letter, subscript] = letter_of(next_part());
    std::string argument;  // µ1 of a pitch
    while (!rest.empty()) {
        const std::string_view part = next_part();
        if (part.starts_with("alfa")) {
            argument = part;
        } else if (part != "qs") {  // d and k of qs_2a: "2a" tells enough
            subscript += (subscript.empty() ? "" : ",") + subscript_word(part);
        }
    }
    Pieces pieces{{letter, Style::symbol}};
    append(pieces, subscript, Style::subscript);
    if (!argument.empty()) {
        append(pieces, "(", Style::plain);
        append(pieces, symbol_text(argument));
        append(pieces, ")", Style::plain);
    }
    return pieces;
}

Pieces formula_text(std::string_view formula) {
    Pieces pieces;
    for (std::string_view rest = formula; !rest.empty();) {
        const auto word =
            std::ranges::find_if(words, [rest](const Word& it) { return rest.starts_with(it.written); });
        std::size_t length = 1;
        if (word != words.end()) {
            append(pieces, word->printed, Style::plain);
            length = word->written.size();
        } else if (is_letter(rest.front())) {
            length = static_cast<std::size_t>(
                std::ranges::find_if_not(rest,
                                         [](char c) { return is_letter(c) || is_digit(c) || c == '_'; }) -
                rest.begin());
            append(pieces, symbol_text(rest.substr(0, length)));
        } else if (is_digit(rest.front())) {
            length = number_length(rest);
            double value = 0;
            const auto read = std::from_chars(rest.data(), rest.data() + length, value);
            append(
                pieces,
                read.ec == std::errc() ? number_text(value) : with_comma(std::string(rest.substr(0, length))),
                Style::plain);
        } else {
            append(pieces, rest.substr(0, 1) == "-" ? "−" : rest.substr(0, 1), Style::plain);
        }
        rest.remove_prefix(length);
    }
    return pieces;
}

std::string number_text(double value) {
    const double magnitude = std::abs(value);
    if (magnitude >= largest_without_exponent || (magnitude > 0 && magnitude < 1e-9))
        return with_comma(shortest_number_text(value));
    int decimals = 4;
    if (magnitude > 0 && magnitude < 0.1) decimals += static_cast<int>(-std::log10(magnitude));
    std::string text = fixed_number_text(value, decimals);
    if (text.find('.') != std::string::npos) text.resize(text.find_last_not_of('0') + 1);
    if (text.back() == '.') text.pop_back();
    if (text.starts_with('-')) text.replace(0, 1, "−");
    return with_comma(text);
}

std::string fixed_text(double value, int decimals) {
    std::string text = fixed_number_text(value, decimals);
    if (text.starts_with('-')) text.replace(0, 1, "−");
    return with_comma(text);
}

std::string value_text(double value, const Quantity& quantity) {
    std::string text = fixed_text(value, quantity.decimals);
    const bool lost = value != 0 && text.find_first_of("123456789") == std::string::npos;
    return lost || std::abs(value) >= largest_without_exponent ? number_text(value) : text;
}

std::string with_unit(std::string number, std::string_view unit) {
    if (!unit.empty() && unit != "°") number += " ";
    return number.append(unit);
}

Pieces governing_text(const Step& step) {
    if (step.governs.empty()) return {};
    if (step.governs.ends_with("_formula")) return {{"nessun limite interviene", Style::emphasis}};
    const std::string meaning(step.words);
    if (is_digit(step.governs.front()) && !meaning.empty() && step.governs.find(' ') == std::string::npos)
        return {{meaning, Style::emphasis}};
    Pieces pieces{{"governa ", Style::emphasis}};
    append(pieces, formula_text(step.governs));
    append(pieces, meaning.empty() ? "" : " (" + meaning + ")", Style::emphasis);
    return pieces;
}

namespace {

std::vector<std::string_view> split_at_blanks(std::string_view text) {
    std::vector<std::string_view> tokens;
    while (!text.empty()) {
        const std::size_t end = std::min(text.find(' '), text.size());
        tokens.push_back(text.substr(0, end));
        text.remove_prefix(std::min(end + 1, text.size()));
    }
    return tokens;
}

/// The condition with the numbers of its symbols, "30 < alfa = 35 <= 60", but for the zone: words name it.
Pieces condition_text(const Step& step) {
    const auto symbols = split_at_blanks(step.condition);
    const auto numbers = split_at_blanks(step.condition_numbers);
    // Both are written alike, token by token. Beside a computed side, L / 2, a number would be read with it.
    const bool computes = step.condition.find_first_of("+-*/") != std::string::npos;
    if (computes || numbers.size() != symbols.size()) return formula_text(step.condition);
    const auto compares = [&](std::size_t i) {
        if (i >= symbols.size()) return true;
        const std::string_view token = symbols[i];
        return token == "and" || token.front() == '<' || token.front() == '>';
    };
    std::string text;
    for (std::size_t i = 0; i < symbols.size(); ++i) {
        text.append(text.empty() ? "" : " ").append(symbols[i]);
        const bool alone = (i == 0 || compares(i - 1)) && compares(i + 1);
        if (alone && !compares(i) && symbols[i] != numbers[i]) text.append(" == ").append(numbers[i]);
        const bool names_zone = i > 0 && symbols[i - 1] == "==" && i + 1 < symbols.size();
        if (names_zone && symbols[i + 1] == "and") {
            text.clear();
            ++i;
        }
    }
    return formula_text(text);
}

}  // namespace

FormulaLine step_line(const Step& step, std::string_view more) {
    FormulaLine line;
    Pieces& formula = line.formula;
    append(formula, symbol_text(step.symbol));
    std::string before = plain_text(formula);
    const auto equals = [&](const Pieces& pieces) {
        const std::string text = plain_text(pieces);
        if (text.empty() || text == before) return;
        append(formula, " = ", Style::plain);
        append(formula, pieces);
        before = text;
    };
    // A number that is the value itself is printed once, as the value.
    const bool is_number = step.value && plain_text(formula_text(step.numbers)) == number_text(*step.value);
    if (!is_number || step.formula != step.numbers) equals(formula_text(step.formula));
    if (!is_number) equals(formula_text(step.numbers));
    if (step.value)
        equals({{value_text(*step.value, step.quantity), Style::strong},
                {with_unit("", step.quantity.unit), Style::plain}});

    const auto remark = [&line](const Pieces& pieces) {
        if (pieces.empty()) return;
        if (!line.remark.empty()) append(line.remark, "; ", Style::note);
        append(line.remark, pieces);
    };
    remark(condition_text(step));
    if (step.governs.empty() && !step.words.empty())
        remark({{std::string(step.words) + std::string(more), Style::emphasis}});
    remark(governing_text(step));
    if (!step.value)
        remark({{"non si può calcolare: " + std::string(fault_text(step.fault)), Style::emphasis}});
    if (!step.source.empty()) remark({{std::string(step.source), Style::note}});
    if (step.words.empty() && !more.empty()) remark({{std::string(more), Style::note}});
    return line;
}

}  // namespace coltre
