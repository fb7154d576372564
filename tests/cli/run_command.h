#pragma once

#include <nlohmann/json.hpp>
#include <sstream>
#include <string>
#include <vector>

#include "cli/command.h"

namespace coltre::cli {

using Json = nlohmann::ordered_json;

/// What a run of the command left.
struct Run {
    int status;
    std::string out;
    std::string err;
};

inline Run run_command(const std::vector<std::string>& arguments, const std::string& input = {},
                       const Surroundings& surroundings = {}) {
    std::istringstream in(input);
    std::ostringstream out;
    std::ostringstream err;
    const int status = run(arguments, surroundings, in, out, err);
    return {status, out.str(), err.str()};
}

/// The results of a batch of these lines.
inline std::vector<Json> run_batch_of(const std::vector<std::string>& lines,
                                      const Surroundings& surroundings = {}) {
    std::string input;
    for (const std::string& line : lines)
        input += line + '\n';
    std::istringstream out(run_command({"lotto"}, input, surroundings).out);
    std::vector<Json> results;
    for (std::string line; std::getline(out, line);)
        results.push_back(Json::parse(line));
    return results;
}

}  // namespace coltre::cli
