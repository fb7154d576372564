#include "site/site_choice.h"

namespace coltre {

ProvinceChoice choose_province(Program& program, std::string_view province, Doors& doors) {
    const ProvinceZone zone = ZoneOfProvince(province);
    program.cells.zone = zone.zone;
    return {zone.caption, FillMunicipalities(program.directories.ProgramDirectory, province, doors)};
}

std::optional<std::string> choose_municipality(const Program& program, std::string_view province,
                                               std::string_view municipality, Doors& doors) {
    return ReadAltitude(program.directories.ProgramDirectory, province, municipality, doors);
}

}  // namespace coltre
