#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace CLI {
class App;
}

// What may stand on the command line: for suggestions, and for the shell that completes a word.
namespace coltre::cli {

/// The commands that may follow this one.
std::vector<std::string> command_names(const CLI::App& command);

/// The long options of a command, with their dashes.
std::vector<std::string> option_names(const CLI::App& command);

/// What the last of the words may become: a command, an option that is not there yet, a province, a
/// municipality of the province that is there, or another value that is one of few. Names may be typed
/// without accents, apostrophes and capitals. Empty where nothing is to be proposed; writes no file.
/// @param words          as the shell divides the line, quotation marks included, the program's name not
///                       among them
/// @param own_directory  of the program, in the suite's notation
std::vector<std::string> completions(const CLI::App& app, std::span<const std::string> words,
                                     std::string_view own_directory);

}  // namespace coltre::cli
