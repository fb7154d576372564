#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "engine/calculation.h"
#include "engine/program_cells.h"
#include "platform/failure.h"
#include "platform/messages.h"
#include "requests/request.h"

namespace coltre {

/// How a request ended.
enum class End {
    well,
    wrong_request,        ///< the request itself was wrong, and touched no file
    failed,               ///< something else went wrong
    failed_with_message,  ///< likewise, and the last message says what
};

/// What a request gave, as far as it came.
struct Answer {
    std::string id;  ///< as JSON; empty if the request had none
    std::optional<Kind> kind;
    std::string province;  ///< in the spelling of the table; empty when the site was not given by name
    std::string municipality;
    std::optional<double> altitude;  ///< m
    std::optional<SnowZone> zone;
    std::optional<double> qsk;            ///< kN/m2
    std::optional<double> return_period;  ///< years; nothing while none is confirmed
    double return_period_factor = 1;
    Calculation calculation;
    std::string report;              ///< path of the report; empty if none was written
    std::string illustrated_report;  ///< likewise of the illustrated one
    std::optional<Trace> trace;      ///< if it was asked for
    Messages messages;
    std::vector<std::string> partly_understood;  ///< in Italian, one text an entry
    std::vector<std::string> unusual;            ///< coefficients, likewise
    End end = End::well;
    Failure error;

    void fail(End how, std::string why) {
        end = how;
        error = std::move(why);
    }
};

}  // namespace coltre
