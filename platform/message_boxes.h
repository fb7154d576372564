#pragma once

#include <string>
#include <string_view>

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

/// The door to the user's message boxes: modal windows, or whatever stands in for them.
class MessageBoxes {
  public:
    virtual ~MessageBoxes() = default;

    /// Shows the message with an OK button and returns when the user has read it.
    virtual void show(const Message& message) = 0;
};

}  // namespace coltre
