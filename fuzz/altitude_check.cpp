#include "site/altitude_check.h"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>
#include <string_view>

#include "fuzz/input.h"
#include "fuzz/require.h"
#include "site/municipalities.h"
#include "site/regions.h"

// Input: the bytes of altitudini.txt, which also choose the province that is read from it.

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace coltre;
    using fuzz::require;

    const std::string_view file = fuzz::Input(data, size).rest();
    const AltitudeInspection found = inspect_altitudes(file);
    if (found.faults.empty())
        require(found.repaired == file || found.repaired == std::string(file) + "\r\n",
                "what has no faults stays");
    const AltitudeInspection again = inspect_altitudes(found.repaired);
    require(again.faults.empty(), "the repaired file has no faults");
    require(again.repaired == found.repaired, "repairing twice changes nothing");

    const std::string_view province = provinces()[std::hash<std::string_view>()(file) % provinces().size()];
    require(municipalities_in(found.repaired, province).has_value(), "every province can be read");
    return 0;
}
