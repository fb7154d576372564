#pragma once

#include <string>
#include <vector>

#include "document/subject.h"

// What a calculation has to say besides its steps, in Italian, a sentence or more each. Conditions are those
// of its own numbers: what did not come about is not said.
namespace coltre {

struct Remarks {
    std::vector<std::string> on_coefficients;
    std::vector<std::string> on_loads;
    std::vector<std::string> on_length;  ///< of overhang and drift
};

Remarks remarks_on(const Subject& subject);

}  // namespace coltre
