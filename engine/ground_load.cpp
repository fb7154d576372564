#include "engine/ground_load.h"

#include <array>
#include <cstddef>

namespace coltre {

namespace {

/// qsk = constant up to 200 m, else slope_load (1 + (altitude / reference)^2).
struct ZoneLoad {
    double constant;    // kN/m2
    double slope_load;  // kN/m2
    double reference;   // m
};

constexpr std::array<ZoneLoad, 4> zone_loads{{
    {1.5, 1.39, 728},  // Zona I Alpina
    {1.5, 1.35, 602},  // Zona I Mediterranea
    {1.0, 0.85, 481},  // Zona II
    {0.6, 0.51, 481},  // Zona III
}};

constexpr double constant_up_to = 200;  // m

Fault keep(double& cell, Checked result) {
    if (result.fault() == Fault::none) cell = result.value();
    return result.fault();
}

}  // namespace

Fault set_base_ground_load(ProgramCells& cells, Checked altitude) {
    if (altitude.fault() != Fault::none) return altitude.fault();
    if (cells.zone < 0 || cells.zone >= static_cast<SnowZone>(zone_loads.size())) return Fault::none;
    const ZoneLoad& zone = zone_loads[static_cast<std::size_t>(cells.zone)];
    if (altitude.value() <= constant_up_to) return keep(cells.qsk, zone.constant);
    return keep(cells.qsk, zone.slope_load * (1 + squared(altitude / zone.reference)));
}

Fault apply_load_factors(ProgramCells& cells, Checked CE, Checked Ct) {
    return keep(cells.qsk, Checked(cells.qsk) * cells.return_period_factor * CE * Ct);
}

Checked return_period_factor(double Tr) {
    const Checked exceedance = Checked(1) / Tr;
    const Checked reduced = ln(0 - ln(1 - exceedance));
    return 0.273 * (1 - 0.5 * reduced);
}

}  // namespace coltre
