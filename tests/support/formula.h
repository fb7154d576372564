#pragma once

#include <algorithm>
#include <charconv>
#include <cmath>
#include <functional>
#include <map>
#include <numbers>
#include <optional>
#include <string>
#include <string_view>

// A reader of the formulas and conditions of engine/trace.h that shares nothing with what writes them.
namespace coltre {

using SymbolValues = std::map<std::string, double, std::less<>>;

class FormulaReader {
  public:
    FormulaReader(std::string_view text, const SymbolValues& symbols) : m_rest(text), m_symbols(symbols) {}

    /// Value of the whole text; nothing if it is no formula of known symbols.
    std::optional<double> formula() {
        const double value = sum();
        return m_well_formed && m_rest.empty() ? std::optional(value) : std::nullopt;
    }

    /// Whether the whole text holds; nothing if it is no condition of known symbols.
    std::optional<bool> condition() {
        bool all = true;
        do {
            double left = sum();
            std::string_view comparison = take_comparison();
            if (comparison.empty()) m_well_formed = false;
            for (; !comparison.empty(); comparison = take_comparison()) {
                const double right = sum();
                all = all && compare(left, comparison, right);
                left = right;
            }
        } while (take(" and "));
        return m_well_formed && m_rest.empty() ? std::optional(all) : std::nullopt;
    }

    /// False if a step on the way had no finite result.
    [[nodiscard]] bool finite() const { return m_finite; }

  private:
    double sum() {
        double value = product();
        for (;;) {
            if (take(" + ")) {
                value = step(value + product());
            } else if (take(" - ")) {
                value = step(value - product());
            } else {
                return value;
            }
        }
    }

    double product() {
        double value = power();
        for (;;) {
            if (take(" * ")) {
                value = step(value * power());
            } else if (take(" / ")) {
                value = step(value / power());
            } else {
                return value;
            }
        }
    }

    double power() {
        const double base = atom();
        return take("^") ? step(std::pow(base, atom())) : base;
    }

    double atom() {
        if (take("(")) {
            const double value = m_rest.starts_with('-') ? number() : sum();
            expect(")");
            return value;
        }
        const std::string_view name =
            m_rest.substr(0, std::min(m_rest.find_first_not_of(word), m_rest.size()));
        if (name.empty()) m_well_formed = false;
        if (name.empty() || is_digit(name.front())) return number();
        m_rest.remove_prefix(name.size());
        if (take("(")) return call(name);
        if (name == "pi") return std::numbers::pi;
        const auto symbol = m_symbols.find(name);
        if (symbol != m_symbols.end()) return symbol->second;
        m_well_formed = false;
        return 0;
    }

    double number() {
        double value = 0;
        const auto end = std::from_chars(m_rest.data(), m_rest.data() + m_rest.size(), value);
        if (end.ec != std::errc()) m_well_formed = false;
        m_rest.remove_prefix(static_cast<std::size_t>(end.ptr - m_rest.data()));
        return value;
    }

    double call(std::string_view function) {
        const double a = sum();
        double value = 0;
        if (function == "min" || function == "max") {
            expect(", ");
            const double b = sum();
            value = function == "min" ? std::min(a, b) : std::max(a, b);
        } else if (function == "ln") {
            value = std::log(a);
        } else if (function == "tan") {
            value = std::tan(a);
        } else if (function == "arctan") {
            value = std::atan(a);
        } else if (function == "sin") {
            value = std::sin(a);
        } else if (function == "cos") {
            value = std::cos(a);
        } else {
            m_well_formed = false;
        }
        expect(")");
        return step(value);
    }

    std::string_view take_comparison() {
        for (const std::string_view comparison : {" < ", " <= ", " > ", " >= ", " == "}) {
            if (take(comparison)) return comparison;
        }
        return {};
    }

    static bool compare(double a, std::string_view comparison, double b) {
        if (comparison == " < ") return a < b;
        if (comparison == " <= ") return a <= b;
        if (comparison == " > ") return a > b;
        if (comparison == " >= ") return a >= b;
        return a == b;
    }

    double step(double value) {
        m_finite = m_finite && std::isfinite(value);
        return value;
    }

    bool take(std::string_view text) {
        if (!m_rest.starts_with(text)) return false;
        m_rest.remove_prefix(text.size());
        return true;
    }
    void expect(std::string_view text) { m_well_formed = take(text) && m_well_formed; }

    static bool is_digit(char c) { return c >= '0' && c <= '9'; }
    static constexpr std::string_view word =
        "abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789_";

    std::string_view m_rest;
    const SymbolValues& m_symbols;
    bool m_well_formed = true;
    bool m_finite = true;
};

}  // namespace coltre
