#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "calculate/click.h"
#include "document/illustrated_report.h"
#include "platform/failure.h"

// Jobs: the entries of one calculation in a file of their own (".coltre"), which the windows save and open.
// The file is a request of a batch, so that the command performs it.
namespace coltre {

/// A job file, read.
struct Job {
    Failure error;                       ///< why it cannot be opened; all else is empty then
    std::vector<std::string> not_taken;  ///< what the windows have no place for, in Italian, one text each

    Fields fields;
    std::string province;  ///< in the spelling of the table; empty where no site is chosen by name
    std::string municipality;
    SnowZone zone = 0;
    std::string return_period;  ///< years, as its dialog takes it; empty: none is confirmed
};

/// No longer than the text that a field can hold.
inline constexpr std::size_t longest_job = 30'000;  // bytes

/// Reads a job. What the command would refuse is an error, but for keys that no calculation has: they may be
/// of a later version. A site that is not to be found is not taken; its zone is, where the job tells it.
/// @param ProgramDirectory  of altitudini.txt, which is written if it is missing
Job read_job(std::string_view bytes, const std::string& ProgramDirectory);

/// The bytes of the job file of a calculation, whether it was performed or not.
/// @param subject  its site, its return period and its fields
std::string job_file(const Subject& subject);

}  // namespace coltre
