#pragma once

#include <string>

#include "platform/failure.h"

namespace coltre {

/// A day as documents print it, "21/11/2026".
struct DocumentDate {
    std::string text;
    Failure error;  ///< why there is none
};

/// Today. Where the environment sets SOURCE_DATE_EPOCH to a number of seconds, that day in UTC: the same
/// request then gives the same document. To anything else it is an error.
DocumentDate document_date();

}  // namespace coltre
