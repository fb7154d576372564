// Memory of a batch of a million requests, half of them by name, streamed in and out.

#include <cstdlib>
#include <fstream>
#include <istream>
#include <ostream>
#include <streambuf>
#include <string>

#include "bench/figure.h"
#include "bench/request_lines.h"
#include "cli/batch.h"
#include "tests/support/temporary_directory.h"

namespace {

using namespace coltre;

constexpr long request_count = 1'000'000;
constexpr double at_most_mib = 30;

/// Makes the requests as they are read.
class RequestSource : public std::streambuf {
  protected:
    int_type underflow() override {
        if (m_next == request_count) return traits_type::eof();
        m_line = (m_next % 2 == 0 ? request_by_zone(m_next) : request_by_name(m_next)) + '\n';
        ++m_next;
        setg(m_line.data(), m_line.data(), m_line.data() + m_line.size());
        return traits_type::to_int_type(m_line.front());
    }

  private:
    long m_next = 0;
    std::string m_line;
};

/// Counts the lines that are written and forgets them.
class LineCounter : public std::streambuf {
  public:
    long lines = 0;

  protected:
    int_type overflow(int_type c) override {
        if (c == '\n') ++lines;
        return traits_type::not_eof(c);
    }
};

/// Largest resident memory of this process so far, MiB.
double peak_memory() {
    std::ifstream status("/proc/self/status");
    for (std::string line; std::getline(status, line);) {
        if (line.starts_with("VmHWM:")) return std::strtod(line.c_str() + 6, nullptr) / 1024;
    }
    return -1;
}

}  // namespace

int main() {
    const TemporaryDirectory directory;
    RequestSource source;
    LineCounter counter;
    std::istream in(&source);
    std::ostream out(&counter);
    const cli::BatchEnd end = cli::run_batch(in, out, {.own_directory = directory.text()}).end;
    if (end != cli::BatchEnd::all_well || counter.lines != request_count) return 2;
    print({"memory of a batch of 1,000,000", "MiB", peak_memory(), std::nullopt, at_most_mib});
    return 0;
}
