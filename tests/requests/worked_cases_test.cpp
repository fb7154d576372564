#include "requests/worked_cases.h"

#include <gmock/gmock.h>

#include <set>

#include "requests/json_request.h"

namespace coltre {
namespace {

TEST(WorkedCases, AreReproducedInAllCalculations) {
    std::set<Kind> kinds;
    std::set<std::string> ids;
    for (const CaseOutcome& outcome : run_worked_cases()) {
        EXPECT_TRUE(outcome.passed) << outcome.worked->id << ": " << outcome.fault.value_or("");
        const JsonRequest line = read_json_request(outcome.worked->request);
        kinds.insert(line.request.kind.value());
        ids.insert(outcome.worked->id);
        // An engineer's own altitudes make no case fail.
        EXPECT_EQ(line.request.value(keys::comune), nullptr);
        EXPECT_FALSE(outcome.numbers.empty() && !outcome.worked->stops) << outcome.worked->id;
    }
    EXPECT_EQ(kinds.size(), calculations().size());
    EXPECT_EQ(ids.size(), worked_cases().size()) << "an id twice";
}

TEST(WorkedCases, OtherNumbersAndOtherStopsAreSeen) {
    // qs = 0.8 * 1.5 = 1.2, at the pitch of 60 degrees 0, which stops the overhang load.
    const WorkedCase sound{.id = "a",
                           .title{},
                           .source{},
                           .working{},
                           .request = R"({"calcolo": "una-falda", "zona": 0, "altitudine": 9, "alfa": 30})",
                           .expected = {{"qsk", "1.5"}, {"qs_1", "1.2000"}}};
    EXPECT_TRUE(run(sound).passed);
    const auto with = [&](auto change) {
        WorkedCase changed = sound;
        change(changed);
        return run(changed).passed;
    };
    EXPECT_TRUE(with([](WorkedCase& it) { it.expected[1].value = "1.2001"; }));
    EXPECT_FALSE(with([](WorkedCase& it) { it.expected[1].value = "1.2002"; }));
    EXPECT_FALSE(with([](WorkedCase& it) { it.expected[1].value = "1.1998"; }));
    EXPECT_FALSE(with([](WorkedCase& it) { it.expected[1].name = "qs_2a"; }));
    EXPECT_FALSE(with([](WorkedCase& it) { it.stops = true; }));
    EXPECT_FALSE(with([](WorkedCase& it) { it.request.insert(1, "\"alfa\": 1, "); }));

    WorkedCase stopped = sound;
    stopped.request = R"({"calcolo": "una-falda", "zona": 0, "altitudine": 9, "alfa": 60})";
    stopped.expected[1].value = "0.0000";
    EXPECT_FALSE(run(stopped).passed) << "it stopped";
    stopped.stops = true;
    EXPECT_TRUE(run(stopped).passed);
    stopped.expected.pop_back();
    EXPECT_FALSE(run(stopped).passed) << "it came further";
}

}  // namespace
}  // namespace coltre
