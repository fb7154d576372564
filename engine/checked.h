#pragma once

#include <cmath>
#include <string_view>

// Arithmetic in which every step is checked. A formula written with Checked reads like the plain one; the
// first fault on the way is what it yields, and nothing after that step counts.
namespace coltre {

/// Why a calculation stopped.
enum class Fault {
    none,
    division_by_zero,        ///< x / 0 with x not 0
    numeric_error,           ///< 0 / 0, logarithm of 0 or of a negative number, overflow
    invalid_conversion,      ///< a text that must be a number is none
    incongruent_dimensions,  ///< a cylindrical roof that rises more than half its width
};

/// A double, or the fault that the steps towards it met first. Underflow is no fault.
class Checked {
  public:
    // Not explicit: numbers and faults are operands.
    /// @param value  finite
    constexpr Checked(double value) : m_value(value) {}
    constexpr Checked(Fault fault) : m_fault(fault) {}

    static Checked pi() { return 4 * std::atan(1.0); }

    /// The result; meaningful without a fault alone.
    [[nodiscard]] constexpr double value() const { return m_value; }
    [[nodiscard]] constexpr Fault fault() const { return m_fault; }

    friend Checked operator+(Checked a, Checked b) { return step(a, b, a.m_value + b.m_value); }
    friend Checked operator-(Checked a, Checked b) { return step(a, b, a.m_value - b.m_value); }
    friend Checked operator*(Checked a, Checked b) { return step(a, b, a.m_value * b.m_value); }
    friend Checked operator/(Checked a, Checked b) {
        if (b.m_value == 0 && a.m_fault == Fault::none && b.m_fault == Fault::none) {
            return a.m_value == 0 ? Fault::numeric_error : Fault::division_by_zero;
        }
        return step(a, b, a.m_value / b.m_value);
    }
    /// The square, as the general power with exponent 2.
    friend Checked squared(Checked a) { return step(a, a, std::pow(a.m_value, 2.0)); }
    /// Natural logarithm; of 0 and of negative numbers a numeric error.
    friend Checked ln(Checked a) {
        if (a.m_fault == Fault::none && a.m_value <= 0) return Fault::numeric_error;
        return step(a, a, std::log(a.m_value));
    }
    friend Checked sin(Checked a) { return step(a, a, std::sin(a.m_value)); }
    friend Checked cos(Checked a) { return step(a, a, std::cos(a.m_value)); }
    friend Checked tan(Checked a) { return step(a, a, std::tan(a.m_value)); }
    friend Checked arctan(Checked a) { return step(a, a, std::atan(a.m_value)); }
    /// The smaller of the two, the first of equals.
    friend Checked min(Checked a, Checked b) {
        return step(a, b, b.m_value < a.m_value ? b.m_value : a.m_value);
    }
    /// The greater of the two, the first of equals.
    friend Checked max(Checked a, Checked b) {
        return step(a, b, a.m_value < b.m_value ? b.m_value : a.m_value);
    }

    /// The same number; what it means where a limit takes it is told by who traces.
    friend Checked in_words(Checked a, std::string_view /*words*/) { return a; }

    /// Nothing but the fault, where the rules do not go on with a number that could be computed.
    friend Checked refused(Checked /*a*/, Fault fault) { return fault; }

    // Comparisons are for numbers without a fault.
    friend constexpr bool operator<(Checked a, Checked b) { return a.m_value < b.m_value; }
    friend constexpr bool operator<=(Checked a, Checked b) { return a.m_value <= b.m_value; }
    friend constexpr bool operator>(Checked a, Checked b) { return a.m_value > b.m_value; }
    friend constexpr bool operator>=(Checked a, Checked b) { return a.m_value >= b.m_value; }
    friend constexpr bool operator==(Checked a, Checked b) { return a.m_value == b.m_value; }

  private:
    static Checked step(Checked a, Checked b, double result) {
        if (a.m_fault == Fault::none && b.m_fault == Fault::none && std::isfinite(result)) [[likely]]
            return result;
        if (a.m_fault != Fault::none) return a.m_fault;
        return b.m_fault != Fault::none ? b.m_fault : Fault::numeric_error;
    }

    double m_value = 0;
    Fault m_fault = Fault::none;
};

/// The value brought between the limits, the lower one first.
template <typename Number>
Number clamp(const Number& value, const Number& least, const Number& most) {
    return min(max(value, least), most);
}

}  // namespace coltre
