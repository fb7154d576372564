#pragma once

// Roof shape coefficients as functions of the pitch. The cylindrical roof's mu3 is no function of the pitch:
// it is computed with its load cases (roof_loads). Source: circular of 4 July 1996.
namespace coltre {

/// 0.8 up to 30 degrees, falling in a straight line to 0 at 60, 0 above.
/// @param alfa    pitch, degrees
/// @param before  what a negative pitch leaves as it was: deliberate, no error
constexpr double mu1(double alfa, double before) {
    if (alfa < 0) return before;
    if (alfa <= 30) return 0.8;
    return alfa <= 60 ? (60 - alfa) * 0.8 / 30 : 0;
}

/// Rising from 0.8 at 0 to 1.6 at 30 degrees, 1.6 up to 60, 0 above.
/// @param alfa    pitch, degrees
/// @param before  what a negative pitch leaves as it was: deliberate, no error
constexpr double mu2(double alfa, double before) {
    if (alfa < 0) return before;
    if (alfa <= 30) return 0.8 / 30 * alfa + 0.8;
    return alfa <= 60 ? 1.6 : 0;
}

}  // namespace coltre
