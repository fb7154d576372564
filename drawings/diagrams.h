#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "drawings/drawing.h"
#include "engine/calculation.h"

// Diagrams of what a calculation depends on, with its own values marked.
namespace coltre {

/// A load over the altitude.
struct AltitudeCurve {
    std::string name;
    /// kN/m2 at an altitude, m, finite; nothing where it cannot be computed.
    std::function<std::optional<double>(double altitude)> load;
};

/// A load over the altitudes from 0 to 1600 m, of the site and of others.
struct AltitudeDiagram {
    std::string symbol;                 ///< "qsk"
    double altitude = 0;                ///< of the site, m; marked where the diagram shows it
    AltitudeCurve site;                 ///< its load
    std::vector<AltitudeCurve> others;  ///< thin lines
};

/// Draws it with the limits of the rule, 200 and 1500 m. A load that is nowhere positive leaves the diagram
/// neutral: it has no scale.
Drawing load_over_altitude(const AltitudeDiagram& diagram);

/// The ground load, as the calculation computes it, in the zone of the site and in the other three.
/// @param factor    of the return period
/// @param CE, Ct    coefficients of the site
/// @param altitude  of the site, m
Drawing ground_load_over_altitude(SnowZone zone, double factor, double CE, double Ct, double altitude);

/// mu1 and mu2 over the slopes from 0 to 90 degrees, with those of the roof marked: its pitches on mu1, and
/// on mu2 the mean of several pitches. Pitches beyond, and calculations that have none, are not marked.
Drawing shape_coefficients_over_slope(const Entries& entries);

}  // namespace coltre
