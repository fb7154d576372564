#pragma once

#include <nlohmann/json.hpp>
#include <sstream>
#include <string>
#include <vector>

#include "cli/command.h"

namespace coltre::cli {

using Json = nlohmann::ordered_json;

/// What a run of the command left.
struct CommandRun {
    int status;
    std::string out;
    std::string err;

    /// The results of a batch.
    [[nodiscard]] std::vector<Json> results() const {
        std::istringstream lines(out);
        std::vector<Json> results;
        for (std::string line; std::getline(lines, line);)
            results.push_back(Json::parse(line));
        return results;
    }
};

inline CommandRun run_command(const std::vector<std::string>& arguments, std::istream& in) {
    std::ostringstream out;
    std::ostringstream err;
    const int status = run(arguments, {}, in, out, err);
    return {status, out.str(), err.str()};
}

inline CommandRun run_command(const std::vector<std::string>& arguments,
                              const std::vector<std::string>& lines = {}) {
    std::stringstream in;
    for (const std::string& line : lines)
        in << line << '\n';
    return run_command(arguments, in);
}

}  // namespace coltre::cli
