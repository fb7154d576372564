#pragma once

#include <string_view>

// Roof shape coefficients as functions of the pitch. The cylindrical roof's mu3 is no function of the pitch:
// it is computed with its load cases (roof_loads). Source: circular of 4 July 1996.
namespace coltre {

/// Branches that nobody follows.
struct NoBranches {
    bool operator()(bool condition, std::string_view /*words*/) const { return condition; }
};

inline constexpr std::string_view too_steep = "la neve non resta sulla falda";
inline constexpr std::string_view negative_pitch = "il coefficiente conserva il valore precedente";

/// 0.8 up to 30 degrees, falling in a straight line to 0 at 60, 0 above.
/// @param alfa    pitch, degrees
/// @param before  what a negative pitch leaves as it was: deliberate, no error
/// @param holds   takes the branches
template <typename Number, typename Holds = NoBranches>
Number mu1(const Number& alfa, const Number& before, Holds holds = {}) {
    if (holds(0 <= alfa && alfa <= 30, "ramo costante")) return 0.8;
    if (holds(30 < alfa && alfa <= 60, "ramo discendente")) return (60 - alfa) * 0.8 / 30;
    if (holds(alfa > 60, too_steep)) return 0.0;
    static_cast<void>(holds(alfa < 0, negative_pitch));
    return before;
}

/// Rising from 0.8 at 0 to 1.6 at 30 degrees, 1.6 up to 60, 0 above.
/// @param alfa    pitch, degrees
/// @param before  what a negative pitch leaves as it was: deliberate, no error
/// @param holds   takes the branches
template <typename Number, typename Holds = NoBranches>
Number mu2(const Number& alfa, const Number& before, Holds holds = {}) {
    if (holds(0 <= alfa && alfa <= 30, "ramo crescente")) return Number(0.8) / 30 * alfa + 0.8;
    if (holds(30 < alfa && alfa <= 60, "ramo costante")) return 1.6;
    if (holds(alfa > 60, too_steep)) return 0.0;
    static_cast<void>(holds(alfa < 0, negative_pitch));
    return before;
}

}  // namespace coltre
