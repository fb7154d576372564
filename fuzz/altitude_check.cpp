#include "site/altitude_check.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "fuzz/input.h"
#include "fuzz/require.h"
#include "site/municipalities.h"
#include "site/regions.h"
#include "tests/support/fake_doors.h"
#include "tests/support/temporary_directory.h"

// Input: a province, then the bytes of altitudini.txt.

namespace {

using namespace coltre;
using namespace coltre::fuzz;

bool is_province(std::string_view name) {
    for (const Region& region : regions()) {
        for (const std::string_view province : region.provinces) {
            if (province == name) return true;
        }
    }
    return false;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    Input input(data, size);
    const std::string_view province = input.line();
    const std::string_view file = input.rest();

    const std::string repaired = repair_altitudes(file);
    if (check_altitudes(file).empty())
        require(repaired == file || repaired == std::string(file) + "\r\n", "what has no faults stays");
    require(check_altitudes(repaired).empty(), "the repaired file has no faults");
    require(repair_altitudes(repaired) == repaired, "repairing twice changes nothing");

    if (!is_province(province)) return 0;
    static const TemporaryDirectory directory;
    directory.put("altitudini.txt", repaired);
    FakeDoors user;
    require(FillMunicipalities(directory.text(), province, user.doors()).has_value(),
            "every province can be read");
    require(directory.content("altitudini.txt") == repaired, "the repaired file is not rewritten");
    return 0;
}
