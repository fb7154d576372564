#pragma once

#include <vector>

#include "platform/doors.h"

namespace coltre {

/// Doors that record what goes through them; end() returns.
class FakeDoors : public MessageBoxes, public ProgramEnd {
  public:
    std::vector<Message> shown;
    int ended = 0;

    void show(const Message& m) override { shown.push_back(m); }
    void end() override { ++ended; }

    Doors doors() { return {*this, *this}; }
};

}  // namespace coltre
