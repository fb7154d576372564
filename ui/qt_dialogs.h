#pragma once

#include "ui/user_dialogs.h"

namespace coltre {

/// Message boxes on the screen, modal to the window that is active, and the end of the process.
class QtDialogs : public UserDialogs {
  public:
    using UserDialogs::show;
    void show(const Message& message) override;
    bool ask(const Message& question) override;
    /// Ends the process at once, with exit status 1; the windows are not asked.
    void end() override;
};

}  // namespace coltre
