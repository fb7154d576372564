#include "engine/ground_load.h"

#include <array>
#include <cstddef>

#include "engine/run.h"

namespace coltre {

namespace {

using namespace quantities;

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

template <typename Number>
Number base_load(Run<Number>& run, double altitude) {
    const SnowZone code = run.cells().zone;
    if (code < 0 || code >= static_cast<SnowZone>(zone_loads.size()))
        return run.stored(&ProgramCells::qsk, "qsk_precedente");
    const ZoneLoad& zone = zone_loads[static_cast<std::size_t>(code)];
    const Number zona = run.entry("zona", code);
    const Number as = run.entry("as", altitude);
    if (run.holds(zona == code && as <= constant_up_to, "valore costante")) return zone.constant;
    run.holds(zona == code && as > constant_up_to, "ramo crescente");
    return zone.slope_load * (1 + squared(as / zone.reference));
}

/// The return period factor in force. It is what the cell holds; its formula is that of the return period
/// which was confirmed.
template <typename Number>
Number load_factor(Run<Number>& run) {
    const ProgramCells& cells = run.cells();
    if constexpr (std::is_same_v<Number, Traced>) {
        if (cells.confirmed_return_period) {
            run.source(circular);
            return run.let("cT", coefficient,
                           return_period_factor(run.entry("Tr", *cells.confirmed_return_period)));
        }
        run.source("periodo di ritorno non confermato, fattore 1");
        return run.let("cT", coefficient, Number(cells.return_period_factor));
    } else {
        return cells.return_period_factor;
    }
}

/// Runs the formulas, traced where somebody asks for the steps.
template <typename Formulas>
Fault run_formulas(ProgramCells& cells, Trace* trace, Formulas formulas) {
    if (trace != nullptr) {
        Run<Traced> run(cells, trace);
        run.stage(Stage::ground_load);
        formulas(run);
        return run.calculation().end.fault;
    }
    Run<Checked> run(cells, nullptr);
    formulas(run);
    return run.calculation().end.fault;
}

}  // namespace

Fault set_return_period_factor(ProgramCells& cells, double Tr, Trace* trace) {
    return run_formulas(cells, trace, [Tr](auto& run) {
        run.source(circular);
        run.store(&ProgramCells::return_period_factor, "cT", return_period_factor(run.entry("Tr", Tr)));
    });
}

Fault set_base_load(ProgramCells& cells, double altitude, Trace* trace) {
    return run_formulas(cells, trace, [altitude](auto& run) {
        run.source("D.M. 16 gennaio 1996");
        run.store(&ProgramCells::qsk, "q0", base_load(run, altitude), area_load);
    });
}

Fault apply_load_factors(ProgramCells& cells, double CE, double Ct, Trace* trace) {
    return run_formulas(cells, trace, [CE, Ct](auto& run) {
        const auto factor = load_factor(run);
        run.source(circular);
        run.store(&ProgramCells::qsk, "qsk",
                  run.stored(&ProgramCells::qsk, "q0") * factor * run.entry("CE", CE) * run.entry("Ct", Ct),
                  area_load);
    });
}

}  // namespace coltre
