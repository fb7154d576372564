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
#include <utility>

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

    /// Whether the whole text is a condition of known symbols that holds.
    bool holds() {
        bool all = true;
        do {
            double left = sum();
            int comparison = take_comparison();
            if (comparison < 0) return false;
            for (; comparison >= 0; comparison = take_comparison()) {
                const double right = sum();
                const bool each[] = {left<right, left <= right, left> right, left >= right, left == right};
                all = all && each[comparison];
                left = right;
            }
        } while (take(" and "));
        return all && m_well_formed && m_rest.empty();
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
        if (name.empty() || (name.front() >= '0' && name.front() <= '9')) return number();
        m_rest.remove_prefix(name.size());
        if (take("(")) return call(name);
        if (name == "pi") return std::numbers::pi;
        const auto symbol = m_symbols.find(name);
        m_well_formed = m_well_formed && symbol != m_symbols.end();
        return symbol != m_symbols.end() ? symbol->second : 0;
    }

    double number() {
        double value = 0;
        const auto end = std::from_chars(m_rest.data(), m_rest.data() + m_rest.size(), value);
        m_finite = m_finite && end.ec == std::errc();
        m_well_formed = m_well_formed && end.ec != std::errc::invalid_argument;
        m_rest.remove_prefix(static_cast<std::size_t>(end.ptr - m_rest.data()));
        return value;
    }

    double call(std::string_view name) {
        static constexpr std::pair<std::string_view, double (*)(double)> functions[] = {
            {"ln", std::log}, {"sin", std::sin}, {"cos", std::cos}, {"tan", std::tan}, {"arctan", std::atan}};
        const double a = sum();
        double value = 0;
        if (name == "min" || name == "max") {
            expect(", ");
            const double b = sum();
            value = name == "min" ? std::min(a, b) : std::max(a, b);
        } else {
            const auto function = std::ranges::find(functions, name, [](auto& it) { return it.first; });
            m_well_formed = m_well_formed && function != std::end(functions);
            if (function != std::end(functions)) value = function->second(a);
        }
        expect(")");
        return step(value);
    }

    int take_comparison() {
        int index = 0;
        for (const std::string_view sign : {" < ", " <= ", " > ", " >= ", " == "}) {
            if (take(sign)) return index;
            ++index;
        }
        return -1;
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

    static constexpr std::string_view word =
        "abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789_";

    std::string_view m_rest;
    const SymbolValues& m_symbols;
    bool m_well_formed = true;
    bool m_finite = true;
};

}  // namespace coltre
