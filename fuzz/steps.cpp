#include "tests/support/steps.h"

#include <cstddef>
#include <cstdint>
#include <string>

#include "fuzz/click_input.h"
#include "fuzz/require.h"

// Input: a click (click_input.h), then what an earlier calculation left in the cells mu1 and mu2.

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace coltre;
    using namespace coltre::fuzz;
    Input input(data, size);
    auto click = read_click(input);
    const auto left = input.finite();
    if (!click || !left) return 0;
    click->program.cells.mu1 = click->program.cells.mu2 = *left;
    const std::string flaw = steps::flaw_of_click(click->fields, click->program);
    require(flaw.empty(), flaw);
    return 0;
}
