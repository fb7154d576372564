#pragma once

namespace coltre {

/// The door through which the program ends at once after a fatal message. Where nothing really ends (a test,
/// a batch of requests) end() returns: whoever calls it returns right after, without touching anything.
class ProgramEnd {
  public:
    virtual ~ProgramEnd() = default;
    virtual void end() = 0;
};

}  // namespace coltre
