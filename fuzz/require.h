#pragma once

#include <cstdlib>
#include <iostream>
#include <string_view>

namespace coltre::fuzz {

/// Makes the execution a finding if the invariant does not hold.
inline void require(bool holds, std::string_view invariant) {
    if (holds) return;
    std::cerr << "broken: " << invariant << std::endl;
    std::abort();
}

}  // namespace coltre::fuzz
