#pragma once

#include <string>
#include <string_view>

#include "engine/checked.h"

namespace coltre {

/// The number in the shortest digits that give it back, as formulas hold it: a negative one in parentheses.
std::string number_in_formula(double value);

/// A comparison of traced numbers with its words.
struct Condition {
    bool holds;
    std::string symbols;
    std::string numbers;
    std::string last_symbols;  ///< its last operand: "0 <= a" and "a <= 30" make the chain "0 <= a <= 30"
    std::string last_numbers;

    friend Condition operator&&(const Condition& a, const Condition& b);
};

/// A number that calculates as Checked does, bit for bit, and remembers how: the formula in symbols, the same
/// with numbers, and the operand of a limit that gave the value. A formula written over a number type is
/// computed with Checked and traced with this.
class Traced {
  public:
    // Not explicit: numbers and faults are operands.
    Traced(double value);
    Traced(Fault fault);

    /// A quantity that formulas call by its symbol from here on.
    static Traced named(std::string symbol, Checked value);
    static Traced pi();

    [[nodiscard]] Checked checked() const { return m_value; }
    [[nodiscard]] double value() const { return m_value.value(); }
    [[nodiscard]] Fault fault() const { return m_value.fault(); }
    [[nodiscard]] const std::string& symbols() const { return m_symbols; }
    [[nodiscard]] const std::string& numbers() const { return m_numbers; }
    /// The operand that a min or max took, in symbols; of nested limits the innermost. Empty without one.
    [[nodiscard]] const std::string& governs() const { return m_governs; }
    /// What that operand means, in Italian; empty where its symbols tell enough.
    [[nodiscard]] std::string_view words() const { return m_words; }

    friend Traced operator+(const Traced& a, const Traced& b);
    friend Traced operator-(const Traced& a, const Traced& b);
    friend Traced operator*(const Traced& a, const Traced& b);
    friend Traced operator/(const Traced& a, const Traced& b);
    friend Traced squared(const Traced& a);
    friend Traced ln(const Traced& a);
    friend Traced sin(const Traced& a);
    friend Traced cos(const Traced& a);
    friend Traced tan(const Traced& a);
    friend Traced arctan(const Traced& a);
    friend Traced min(const Traced& a, const Traced& b);
    friend Traced max(const Traced& a, const Traced& b);

    /// @param words  of static lifetime: what it means that a min or max took this operand
    friend Traced in_words(Traced a, std::string_view words);
    friend Traced refused(const Traced& a, Fault fault);

    friend Condition operator<(const Traced& a, const Traced& b);
    friend Condition operator<=(const Traced& a, const Traced& b);
    friend Condition operator>(const Traced& a, const Traced& b);
    friend Condition operator>=(const Traced& a, const Traced& b);
    friend Condition operator==(const Traced& a, const Traced& b);

  private:
    /// How tightly the outermost operation binds.
    enum class Binding { sum, product, power, atom };

    Traced(Checked value, std::string symbols, std::string numbers, Binding binding);

    static Traced join(const Traced& a, const char* sign, const Traced& b, Binding binding, Checked value);
    static Traced call(const char* function, const Traced& a, Checked value);
    static Traced choose(const char* function, const Traced& a, const Traced& b, Checked value, bool second);
    static Condition compare(const Traced& a, const char* sign, const Traced& b, bool holds);

    Checked m_value;
    std::string m_symbols;
    std::string m_numbers;
    std::string m_governs;
    std::string_view m_words;
    Binding m_binding = Binding::atom;
};

}  // namespace coltre
