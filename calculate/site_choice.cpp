#include "calculate/site_choice.h"

#include "site/regions.h"

namespace coltre {

ProvinceChoice choose_province(Program& program, std::string_view province, Doors& doors) {
    const ProvinceZone zone = ZoneOfProvince(province);
    program.cells.zone = zone.zone;
    return {zone.caption, FillMunicipalities(program.directories.ProgramDirectory, province, doors)};
}

}  // namespace coltre
