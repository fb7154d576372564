#pragma once

#include "platform/message_boxes.h"

namespace coltre {

/// The message boxes of the windows: those of the core, and questions.
class UserDialogs : public MessageBoxes {
  public:
    /// Shows the message with a yes and a no button.
    /// @return true if the answer was yes
    virtual bool ask(const Message& question) = 0;
};

}  // namespace coltre
