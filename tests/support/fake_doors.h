#pragma once

#include <vector>

#include "platform/doors.h"

namespace coltre {

/// A user who reads every message box, and a program end that ends nothing.
class FakeDoors : public MessageBoxes, public ProgramEnd {
  public:
    void show(const Message& message) override { shown.push_back(message); }
    void end() override { ++ended; }
    Doors doors() { return {*this, *this}; }

    std::vector<Message> shown;
    int ended = 0;
};

}  // namespace coltre
