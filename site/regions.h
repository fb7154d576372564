#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "engine/program_cells.h"

// Regions, their provinces, and the snow zone of a province.
namespace coltre {

/// An entry of the region list. Some regions are split into one entry a province.
struct Region {
    std::string_view name;                        ///< as the region list shows it
    std::span<const std::string_view> provinces;  ///< in the order of the province list
};

/// The 28 entries of the region list; the position in it is the region code. The 103 province names are the
/// headers of the altitude file, character for character.
std::span<const Region> regions();

/// The provinces of all regions, in the order of the regions and of their lists.
std::span<const std::string_view> provinces();

/// Appends the provinces of a region to the list, which is not cleared before.
/// @param region_code  position in regions(); any other appends nothing
void FillProvinces(int region_code, std::vector<std::string>& Provinciainput);

/// Climatic zone of a province.
struct ProvinceZone {
    SnowZone zone = 0;
    std::string_view caption;  ///< "(Zona II)"

    bool operator==(const ProvinceZone&) const = default;
};

/// Caption of a zone code, 0 to 3.
std::string_view zone_caption(SnowZone zone);

/// Its name: the caption without the parentheses.
std::string_view zone_name(SnowZone zone);

/// Zone of a province by the name lists of the Decree. The name is looked for in lower case anywhere in a
/// list, as a part of a word too; a name in none of the lists lies in zone III. Deliberate: "Enna" is found
/// in "Ravenna", and an empty name in the first list.
ProvinceZone ZoneOfProvince(std::string_view province);

}  // namespace coltre
