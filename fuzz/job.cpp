#include "requests/job.h"

#include <cstddef>
#include <cstdint>

#include "calculate/return_period.h"
#include "fuzz/require.h"
#include "site/built_in_altitudes.h"
#include "site/regions.h"
#include "tests/support/temporary_directory.h"

// Input: the bytes of a job file. Its site is looked for in a table that stays as it is.

namespace {

using namespace coltre;
using namespace coltre::fuzz;

/// The program's own directory, with the table.
struct ProgramDirectory : TemporaryDirectory {
    ProgramDirectory() { put("altitudini.txt", built_in_altitude_file()); }
};

/// What windows that were filled with the job save.
std::string saved(const Job& job) {
    Subject subject;
    subject.fields = job.fields;
    subject.province = job.province;
    subject.municipality = job.municipality;
    subject.zone = job.zone;
    subject.zone_of_province = !job.province.empty() && ZoneOfProvince(job.province).zone == job.zone;
    ProgramCells cells;
    if (!job.return_period.empty()) {
        confirm_return_period(job.return_period, cells);
        require(cells.confirmed_return_period.has_value(), "a return period that is taken can be confirmed");
    }
    subject.confirmed_return_period = cells.confirmed_return_period;
    return job_file(subject);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const ProgramDirectory program;

    const Job job = read_job({reinterpret_cast<const char*>(data), size}, program.text());
    if (job.error) {
        require(job.not_taken.empty() && job.fields == Fields{}, "a file that is no job fills nothing");
        return 0;
    }
    const std::string written = saved(job);
    const Job again = read_job(written, program.text());
    if (written.size() > longest_job) return 0;
    require(!again.error, "what is saved can be opened");
    require(again.not_taken.empty(), "what is saved can be opened as a whole");
    require(again.province == job.province && again.municipality == job.municipality, "the site is kept");
    require(saved(again) == written, "saving what was opened changes nothing");
    return 0;
}
