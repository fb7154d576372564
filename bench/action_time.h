#pragma once

#include <QApplication>
#include <algorithm>
#include <array>
#include <ctime>
#include <limits>

namespace coltre {

/// Milliseconds of processor time: what other programs take meanwhile does not count.
template <typename Action>
double time_of(const Action& act) {
    const std::clock_t begin = std::clock();
    act();
    return 1000.0 * static_cast<double>(std::clock() - begin) / CLOCKS_PER_SEC;
}

/// The time of the slowest of 100 actions in a row. The row is run five times, and of each action the fastest
/// counts: a shared machine makes any of them slower now and then, the program always the same.
template <typename Action>
double slowest_time_of(const Action& act) {
    std::array<double, 100> row;
    row.fill(std::numeric_limits<double>::infinity());
    for (int run = 0; run < 5; ++run)
        for (double& time : row) {
            time = std::min(time, time_of(act));
            QApplication::processEvents();
        }
    return std::ranges::max(row);
}

}  // namespace coltre
