#include "engine/traced.h"

#include <array>
#include <charconv>
#include <utility>

namespace coltre {

namespace {

std::string in_parentheses(const std::string& text, bool needed) {
    return needed ? "(" + text + ")" : text;
}

}  // namespace

std::string number_in_formula(double value) {
    std::array<char, 32> digits{};
    const double unsigned_zero = value == 0 ? 0 : value;
    const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), unsigned_zero).ptr;
    return in_parentheses(std::string(digits.data(), end), value < 0);
}

Condition operator&&(const Condition& a, const Condition& b) {
    const auto joined = [](const std::string& left, const std::string& last, const std::string& right) {
        if (right.starts_with(last + " ")) return left + right.substr(last.size());
        return left + " and " + right;
    };
    // Symbols and numbers chain alike, or not at all.
    const bool chain = b.symbols.starts_with(a.last_symbols + " ");
    return {a.holds && b.holds, joined(a.symbols, a.last_symbols, b.symbols),
            chain ? joined(a.numbers, a.last_numbers, b.numbers) : a.numbers + " and " + b.numbers,
            b.last_symbols, b.last_numbers};
}

Traced::Traced(double value)
    : Traced(Checked(value), number_in_formula(value), number_in_formula(value), Binding::atom) {}

Traced::Traced(Fault fault) : m_value(fault) {}

Traced::Traced(Checked value, std::string symbols, std::string numbers, Binding binding)
    : m_value(value), m_symbols(std::move(symbols)), m_numbers(std::move(numbers)), m_binding(binding) {}

Traced Traced::named(std::string symbol, Checked value) {
    return {value, std::move(symbol), number_in_formula(value.value()), Binding::atom};
}

Traced Traced::pi() {
    return {Checked::pi(), "pi", "pi", Binding::atom};
}

Traced Traced::join(const Traced& a, const char* sign, const Traced& b, Binding binding, Checked value) {
    // What stands on the right was computed first, so it keeps its parentheses even where algebra would let
    // them go.
    const bool left = a.m_binding < binding;
    const bool right = b.m_binding <= binding;
    return {value, in_parentheses(a.m_symbols, left) + sign + in_parentheses(b.m_symbols, right),
            in_parentheses(a.m_numbers, left) + sign + in_parentheses(b.m_numbers, right), binding};
}

Traced Traced::call(const char* function, const Traced& a, Checked value) {
    return {value, std::string(function) + "(" + a.m_symbols + ")",
            std::string(function) + "(" + a.m_numbers + ")", Binding::atom};
}

Traced Traced::choose(const char* function, const Traced& a, const Traced& b, Checked value, bool second) {
    Traced chosen(value, std::string(function) + "(" + a.m_symbols + ", " + b.m_symbols + ")",
                  std::string(function) + "(" + a.m_numbers + ", " + b.m_numbers + ")", Binding::atom);
    const Traced& winner = second ? b : a;
    chosen.m_governs = winner.m_governs.empty() ? winner.m_symbols : winner.m_governs;
    chosen.m_words = winner.m_words;
    return chosen;
}

Condition Traced::compare(const Traced& a, const char* sign, const Traced& b, bool holds) {
    return {holds, a.m_symbols + sign + b.m_symbols, a.m_numbers + sign + b.m_numbers, b.m_symbols,
            b.m_numbers};
}

Traced operator+(const Traced& a, const Traced& b) {
    return Traced::join(a, " + ", b, Traced::Binding::sum, a.m_value + b.m_value);
}

Traced operator-(const Traced& a, const Traced& b) {
    return Traced::join(a, " - ", b, Traced::Binding::sum, a.m_value - b.m_value);
}

Traced operator*(const Traced& a, const Traced& b) {
    return Traced::join(a, " * ", b, Traced::Binding::product, a.m_value * b.m_value);
}

Traced operator/(const Traced& a, const Traced& b) {
    return Traced::join(a, " / ", b, Traced::Binding::product, a.m_value / b.m_value);
}

Traced squared(const Traced& a) {
    const bool compound = a.m_binding < Traced::Binding::atom;
    return {squared(a.m_value), in_parentheses(a.m_symbols, compound) + "^2",
            in_parentheses(a.m_numbers, compound) + "^2", Traced::Binding::power};
}

Traced ln(const Traced& a) {
    return Traced::call("ln", a, ln(a.m_value));
}

Traced sin(const Traced& a) {
    return Traced::call("sin", a, sin(a.m_value));
}

Traced cos(const Traced& a) {
    return Traced::call("cos", a, cos(a.m_value));
}

Traced tan(const Traced& a) {
    return Traced::call("tan", a, tan(a.m_value));
}

Traced arctan(const Traced& a) {
    return Traced::call("arctan", a, arctan(a.m_value));
}

Traced min(const Traced& a, const Traced& b) {
    return Traced::choose("min", a, b, min(a.m_value, b.m_value), b.m_value < a.m_value);
}

Traced max(const Traced& a, const Traced& b) {
    return Traced::choose("max", a, b, max(a.m_value, b.m_value), a.m_value < b.m_value);
}

Traced in_words(Traced a, std::string_view words) {
    a.m_words = words;
    return a;
}

Traced refused(const Traced& a, Fault fault) {
    return {fault, a.m_symbols, a.m_numbers, a.m_binding};
}

Condition operator<(const Traced& a, const Traced& b) {
    return Traced::compare(a, " < ", b, a.m_value < b.m_value);
}

Condition operator<=(const Traced& a, const Traced& b) {
    return Traced::compare(a, " <= ", b, a.m_value <= b.m_value);
}

Condition operator>(const Traced& a, const Traced& b) {
    return Traced::compare(a, " > ", b, a.m_value > b.m_value);
}

Condition operator>=(const Traced& a, const Traced& b) {
    return Traced::compare(a, " >= ", b, a.m_value >= b.m_value);
}

Condition operator==(const Traced& a, const Traced& b) {
    return Traced::compare(a, " == ", b, a.m_value == b.m_value);
}

}  // namespace coltre
