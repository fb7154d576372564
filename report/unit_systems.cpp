#include "report/unit_systems.h"

#include <algorithm>

namespace coltre {

std::optional<UnitSystem> unit_system_of(std::string_view item) {
    const auto found = std::ranges::find(unit_items, item);
    if (found == unit_items.end()) return std::nullopt;
    return static_cast<UnitSystem>(found - unit_items.begin() + 1);
}

ConversionDirectives conversion_directives(UnitSystem unit_system) {
    switch (unit_system) {
        case 2:
            return {"(CU_KN_Kgf)", "(CU_KN_Kgf)"};
        case 3:
            return {"(CU_KPa_Kgf/cm2)", "(CU_KN/m_Kgf/cm)"};
        default:
            return {};
    }
}

std::string_view unit_heading(UnitSystem unit_system) {
    switch (unit_system) {
        case 1:
            return "m ; KN/mq ; KN/m";
        case 2:
            return "m ; Kgf/mq ; Kgf/m";
        default:
            return "cm ; Kgf/cmq ; Kgf/cm";
    }
}

}  // namespace coltre
