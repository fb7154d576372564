#pragma once

#include <optional>
#include <string_view>

#include "platform/doors.h"
#include "site/altitude_file.h"
#include "startup/program.h"

namespace coltre {

/// What the choice of a province shows.
struct ProvinceChoice {
    std::string_view zone_caption;  ///< for `Zonalabel`
    /// For `comuneinput`, its first entry selected, and `asinput`; nothing if the program was ended.
    std::optional<MunicipalityList> municipalities;
};

/// The road of a click on a province: its zone goes into the zone cell, whatever becomes of the
/// municipalities. The choice of a municipality is ReadAltitude() alone.
ProvinceChoice choose_province(Program& program, std::string_view province, Doors& doors);

}  // namespace coltre
