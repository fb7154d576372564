#include "cli/batch.h"

#include <limits>
#include <memory>
#include <string>
#include <string_view>

#include "cli/json_request.h"

namespace coltre::cli {

namespace {

/// Lines of a stream, in memory that does not grow with the length of a line.
class LineReader {
  public:
    explicit LineReader(std::istream& in)
        : m_in(in), m_buffer(std::make_unique_for_overwrite<char[]>(longest + 1)) {}

    /// Reads the next line.
    /// @return false at the end of the stream
    bool next() {
        m_in.getline(m_buffer.get(), static_cast<std::streamsize>(longest + 1));
        const auto taken = static_cast<std::size_t>(m_in.gcount());
        m_too_long = m_in.fail() && taken == longest;
        if (m_too_long) {
            m_in.clear();
            m_in.ignore(std::numeric_limits<std::streamsize>::max(), '\n');
        } else if (m_in.fail()) {
            return false;
        }
        // getline counts the line end that it takes away; the last line may have none.
        m_line = {m_buffer.get(), m_in.eof() || m_too_long ? taken : taken - 1};
        return true;
    }

    [[nodiscard]] std::string_view line() const { return m_line; }
    [[nodiscard]] bool too_long() const { return m_too_long; }

    static constexpr std::size_t longest = 1U << 20U;  // bytes: far beyond any request

  private:
    std::istream& m_in;
    std::unique_ptr<char[]> m_buffer;
    std::string_view m_line;
    bool m_too_long = false;
};

Result perform_line(const LineReader& reader, const Surroundings& surroundings, SiteMemory& memory) {
    Result result;
    if (reader.too_long()) {
        result.fail(End::wrong_request,
                    "la riga è più lunga di " + std::to_string(LineReader::longest) + " byte");
        return result;
    }
    JsonRequest line = read_json_request(reader.line());
    if (line.error.empty()) {
        result = perform(line.request, surroundings, memory);
    } else {
        result.kind = line.request.kind;
        result.fail(End::wrong_request, std::move(line.error));
    }
    result.id = line.id;
    return result;
}

}  // namespace

BatchEnd run_batch(std::istream& in, std::ostream& out, const Surroundings& surroundings) {
    bool some_failed = false;
    SiteMemory memory;
    LineReader reader(in);
    while (out && reader.next()) {
        const Result result = perform_line(reader, surroundings, memory);
        some_failed = some_failed || result.end != End::well;
        out << to_json(result) << '\n';
        if (in.rdbuf()->in_avail() <= 0) out.flush();
    }
    out.flush();
    if (!out) return BatchEnd::output_failed;
    if (in.bad()) return BatchEnd::input_failed;
    return some_failed ? BatchEnd::some_failed : BatchEnd::all_well;
}

}  // namespace coltre::cli
