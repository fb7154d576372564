#pragma once

#include <cstdio>
#include <optional>

// What every measuring program prints, so that tools/benchmark can make one table of it.
namespace coltre {

/// A figure with its limit; the program that measures it is the only place where the limit stands.
struct Measurement {
    const char* name;
    const char* unit;  ///< of `measured` and `reference`
    double measured;
    std::optional<double> reference;  ///< measured in the same run; none if the limit stands on its own
    double at_most;                   ///< of measured / reference; without a reference of `measured`
};

/// Prints the figure as one line: name, unit, measured, reference ("-" if none) and limit, separated by tabs.
inline void print(const Measurement& figure) {
    std::printf("%s\t%s\t%.6g\t", figure.name, figure.unit, figure.measured);
    if (figure.reference) {
        std::printf("%.6g", *figure.reference);
    } else {
        std::printf("-");
    }
    std::printf("\t%g\n", figure.at_most);
}

}  // namespace coltre
