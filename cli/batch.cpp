#include "cli/batch.h"

#include <limits>
#include <memory>
#include <new>
#include <string>
#include <string_view>

#include "cli/answers.h"
#include "requests/json_request.h"

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

/// @param id  the request's, as soon as it is known
Answer perform_line(const LineReader& reader, const Environment& environment, SiteMemory& memory,
                    std::string& id) {
    Answer result;
    if (reader.too_long()) {
        result.fail(End::wrong_request,
                    "la riga è più lunga di " + std::to_string(LineReader::longest) + " byte");
        return result;
    }
    JsonRequest line = read_json_request(reader.line());
    id = line.id;
    if (line.error.empty()) {
        result = perform(line.request, environment, memory);
    } else {
        result.kind = line.request.kind;
        result.fail(End::wrong_request, std::move(line.error));
    }
    result.id = line.id;
    return result;
}

/// The answer to a line. A lack of memory ends this request alone.
std::string answer(const LineReader& reader, const Environment& environment, SiteMemory& memory,
                   bool& some_failed) {
    std::string id;
    try {
        const Answer result = perform_line(reader, environment, memory, id);
        some_failed = some_failed || result.end != End::well;
        return to_json(result);
    } catch (const std::bad_alloc&) {
        some_failed = true;
        return (id.empty() ? "{" : "{\"id\": " + id + ", ") + "\"errore\": \"memoria esaurita\"}";
    }
}

}  // namespace

BatchEnd run_batch(std::istream& in, std::ostream& out, const Environment& environment) {
    bool some_failed = false;
    SiteMemory memory;
    LineReader reader(in);
    while (out && reader.next()) {
        out << answer(reader, environment, memory, some_failed) << '\n';
        if (in.rdbuf()->in_avail() <= 0) out.flush();
    }
    out.flush();
    if (!out) return BatchEnd::output_failed;
    if (in.bad()) return BatchEnd::input_failed;
    return some_failed ? BatchEnd::some_failed : BatchEnd::all_well;
}

}  // namespace coltre::cli
