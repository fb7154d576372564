#pragma once

#include <vector>

#include "document/document.h"
#include "document/sensitivity.h"
#include "site/places.h"

namespace coltre {

/// The ground load of a place, kN/m2, with the coefficients of a calculation; nothing where it cannot be
/// computed.
std::optional<double> ground_load_at(const Place& place, const LoadInputs& calculation);

/// A table of the same calculation at several places, the greatest load first; places where it stops come
/// last.
Table site_comparison(const std::vector<const Place*>& places, const LoadInputs& calculation);

}  // namespace coltre
