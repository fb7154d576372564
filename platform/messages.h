#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace coltre {

/// The picture beside the text of a message box.
enum class Icon { none, error, information, warning };

/// Titles of the program's message boxes.
inline constexpr std::string_view program_title = "Coltre";
inline constexpr std::string_view suite_error_title = "ERRORE";  ///< faults of the suite's environment

/// What a message box shows. The lines of `text` are separated by carriage returns ("\r").
struct Message {
    Icon icon = Icon::none;
    std::string title;
    std::string text;

    bool operator==(const Message&) const = default;
};

/// What is to be shown to the user, in order. Whoever runs the core shows it: a window, the command, a test.
using Messages = std::vector<Message>;

}  // namespace coltre
