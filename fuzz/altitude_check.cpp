#include "site/altitude_check.h"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "fuzz/input.h"
#include "fuzz/require.h"
#include "site/municipalities.h"
#include "site/regions.h"
#include "tests/support/fake_doors.h"
#include "tests/support/temporary_directory.h"

// Input: the bytes of altitudini.txt, which also choose the province that is read from it.

namespace {

using namespace coltre;
using namespace coltre::fuzz;

std::vector<std::string_view> all_provinces() {
    std::vector<std::string_view> provinces;
    for (const Region& region : regions())
        provinces.insert(provinces.end(), region.provinces.begin(), region.provinces.end());
    return provinces;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view file = Input(data, size).rest();
    const std::string repaired = repair_altitudes(file);
    if (check_altitudes(file).empty())
        require(repaired == file || repaired == std::string(file) + "\r\n", "what has no faults stays");
    require(check_altitudes(repaired).empty(), "the repaired file has no faults");
    require(repair_altitudes(repaired) == repaired, "repairing twice changes nothing");

    static const std::vector<std::string_view> provinces = all_provinces();
    const std::string_view province = provinces[std::hash<std::string_view>()(file) % provinces.size()];
    static const TemporaryDirectory directory;
    directory.put("altitudini.txt", repaired);
    FakeDoors user;
    require(FillMunicipalities(directory.text(), province, user.doors()).has_value(),
            "every province can be read");
    require(directory.content("altitudini.txt") == repaired, "the repaired file is not rewritten");
    return 0;
}
