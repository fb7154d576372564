#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "platform/doors.h"
#include "site/altitude_file.h"
#include "site/regions.h"
#include "startup/program.h"

namespace coltre {

/// What the choice of a province shows.
struct ProvinceChoice {
    std::string_view zone_caption;  ///< for `Zonalabel`
    /// For `comuneinput`, its first entry selected, and `asinput`; nothing if the program was ended.
    std::optional<MunicipalityList> municipalities;
};

/// The user chose a province: its zone goes into the zone cell, whatever becomes of the municipalities.
ProvinceChoice choose_province(Program& program, std::string_view province, Doors& doors);

/// The user chose a municipality of the province.
/// @return the text for `asinput`; nothing if the program was ended
std::optional<std::string> choose_municipality(const Program& program, std::string_view province,
                                               std::string_view municipality, Doors& doors);

}  // namespace coltre
