#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "site/places.h"

// What was perhaps meant by the name of a place that is not to be found. All texts are Italian.
namespace coltre {

/// The provinces of 1996 that were perhaps meant, the likeliest first: those that have the municipality,
/// which may be in a younger province today; that of the municipality which is called as the province was,
/// "Monza"; then the nearest names.
/// @param municipality  that was asked for with it; empty if none was
std::vector<std::string> suggested_provinces(const Places& places, std::string_view province,
                                             std::string_view municipality);

/// The municipalities that were perhaps meant: those of exactly this name, of 1996 or later, wherever they
/// are, "Bazzano, Savigno, oggi Valsamoggia (dal 2014), in provincia Bologna"; if there are none, the nearest
/// names of the province. As one text; empty if nothing comes near.
/// @param province  of 1996; empty: anywhere
/// @param names     that can be chosen there
std::string suggested_municipalities(const Places& places, std::string_view municipality,
                                     std::string_view province, std::span<const std::string> names);

}  // namespace coltre
