#include "document/independent_check.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <numbers>
#include <utility>

#include "engine/traced.h"
#include "text/number_text.h"

namespace coltre {

namespace {

bool in_symbol(char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '_';
}

/// Computes a formula by precedence climbing.
class Calculator {
  public:
    explicit Calculator(std::string_view text) : m_rest(text) {}

    std::optional<double> value() {
        const double value = operations(0);
        skip_blanks();
        return m_rest.empty() && std::isfinite(value) ? std::optional(value) : std::nullopt;
    }

  private:
    /// @param least  precedence of the loosest operator that is taken
    double operations(std::size_t least) {
        static constexpr std::array<std::string_view, 3> operators{"+-", "*/", "^"};
        double left = operand();
        for (;;) {
            skip_blanks();
            const char sign = m_rest.empty() ? ' ' : m_rest.front();
            const auto level = static_cast<std::size_t>(
                std::ranges::find_if(operators,
                                     [sign](std::string_view it) { return it.find(sign) != it.npos; }) -
                operators.begin());
            if (level < least || level == operators.size()) return left;
            m_rest.remove_prefix(1);
            left = apply(sign, left, operations(level + 1));
        }
    }

    static double apply(char sign, double left, double right) {
        switch (sign) {
            case '+':
                return left + right;
            case '-':
                return left - right;
            case '*':
                return left * right;
            case '/':
                return left / right;
            default:
                return std::pow(left, right);
        }
    }

    double operand() {
        skip_blanks();
        if (taken('-')) return -operand();
        const auto end =
            static_cast<std::size_t>(std::ranges::find_if_not(m_rest, in_symbol) - m_rest.begin());
        const std::string_view name = m_rest.substr(0, end);
        if (name.empty() || (name.front() >= '0' && name.front() <= '9')) {
            if (taken('(')) return in_parentheses().front();
            double number = std::nan("");
            const auto read = std::from_chars(m_rest.data(), m_rest.data() + m_rest.size(), number);
            m_rest.remove_prefix(static_cast<std::size_t>(read.ptr - m_rest.data()));
            return number;
        }
        m_rest.remove_prefix(end);
        return taken('(') ? call(name, in_parentheses()) : name == "pi" ? std::numbers::pi : std::nan("");
    }

    /// What stands between parentheses, the first of which has been taken.
    std::vector<double> in_parentheses() {
        std::vector<double> values;
        do {
            values.push_back(operations(0));
            skip_blanks();
        } while (taken(','));
        if (!taken(')')) values.front() = std::nan("");
        return values;
    }

    static double call(std::string_view name, const std::vector<double>& arguments) {
        if (name == "min") return std::ranges::min(arguments);
        if (name == "max") return std::ranges::max(arguments);
        using Function = double (*)(double);
        static constexpr std::array<std::pair<std::string_view, Function>, 5> functions{
            {{"ln", std::log},
             {"sin", std::sin},
             {"cos", std::cos},
             {"tan", std::tan},
             {"arctan", std::atan}}};
        for (const auto& [known, function] : functions)
            if (known == name) return function(arguments.front());
        return std::nan("");
    }

    void skip_blanks() { m_rest.remove_prefix(std::min(m_rest.find_first_not_of(' '), m_rest.size())); }
    bool taken(char c) {
        if (m_rest.empty() || m_rest.front() != c) return false;
        m_rest.remove_prefix(1);
        return true;
    }

    std::string_view m_rest;
};

/// The number that the document prints for a symbol.
std::optional<double> printed_value(const Subject& subject, std::string_view symbol) {
    if (const Step* const step = subject.step(symbol); step != nullptr && step->value)
        return round_half_even(*step->value, step->quantity.decimals);
    if (const Datum* const datum = subject.datum(symbol)) return datum->value;
    return std::nullopt;
}

/// The formula with the printed numbers in place of its symbols.
std::string with_printed_numbers(const Subject& subject, std::string_view formula) {
    std::string numbers;
    while (!formula.empty()) {
        auto end = static_cast<std::size_t>(std::ranges::find_if_not(formula, in_symbol) - formula.begin());
        const auto value = printed_value(subject, formula.substr(0, end));
        end = std::max<std::size_t>(end, 1);
        numbers += value ? number_in_formula(*value) : std::string(formula.substr(0, end));
        formula.remove_prefix(end);
    }
    return numbers;
}

}  // namespace

std::optional<double> formula_value(std::string_view numbers) {
    return Calculator(numbers).value();
}

std::vector<IndependentCheck> independent_checks(const Subject& subject) {
    std::vector<IndependentCheck> checks;
    const auto check = [&](std::string_view symbol) {
        const Step* const step = subject.step(symbol);
        if (step == nullptr || !step->value) return;
        std::string numbers = with_printed_numbers(subject, step->formula);
        const auto value = formula_value(numbers);
        if (!value) return;
        const double difference = std::abs(*value - *step->value);
        checks.push_back({step->symbol, std::move(numbers), *value,
                          difference == 0 ? 0 : difference / std::abs(*step->value), step->quantity});
    };
    if (subject.calculation().needs_ground_load) check("qsk");
    for (const Result& result : subject.outcome.calculation.results)
        check(result.cell->name);
    return checks;
}

}  // namespace coltre
