#pragma once

#include <span>
#include <string>

#include "platform/messages.h"

namespace coltre {

/// How the windows speak to the user: message boxes on the screen, or whatever stands in for them.
class UserDialogs {
  public:
    virtual ~UserDialogs() = default;

    /// Shows the message with an OK button and returns when the user has read it.
    virtual void show(const Message& message) = 0;
    /// Shows the message with a yes and a no button.
    /// @return true if the answer was yes
    virtual bool ask(const Message& question) = 0;
    /// Ends the program at once, after a fatal message. In a test it returns, and the caller does nothing
    /// more.
    virtual void end() = 0;

    void show(const Messages& messages) {
        for (const Message& message : messages)
            show(message);
    }
};

/// The lines of a list for a message, each behind a line end: as many as fit a message box, and how many more
/// there are.
std::string lines_of_message(std::span<const std::string> lines);

}  // namespace coltre
