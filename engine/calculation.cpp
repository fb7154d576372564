#include "engine/calculation.h"

#include <algorithm>

namespace coltre {

bool Run::set(const ResultCell& cell, Checked result) {
    if (result.fault() != Fault::none) {
        stop(result.fault(), cell.name);
        return false;
    }
    m_cells.*cell.cell = result.value();
    // The cut of a drift sets its cells once more.
    const auto earlier = std::ranges::find(m_calculation.results, &cell, &Result::cell);
    if (earlier != m_calculation.results.end()) {
        earlier->value = result.value();
    } else {
        m_calculation.results.push_back({&cell, result.value()});
    }
    return true;
}

}  // namespace coltre
