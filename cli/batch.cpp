#include "cli/batch.h"

#include <algorithm>
#include <limits>
#include <new>
#include <string>
#include <string_view>
#include <vector>

#include "cli/answers.h"
#include "requests/csv_request.h"
#include "requests/json_request.h"

namespace coltre::cli {

namespace {

/// Lines of a stream, in memory that grows up to the longest line that a request may have.
class LineReader {
  public:
    explicit LineReader(std::istream& in) : m_in(in), m_buffer(4096) {}

    /// Reads the next line.
    /// @return false at the end of the stream
    bool next() {
        m_fault = Fault::none;
        std::size_t taken = 0;
        for (;;) {
            const std::size_t room = m_buffer.size() - taken;
            m_in.getline(m_buffer.data() + taken, static_cast<std::streamsize>(room));
            const auto count = static_cast<std::size_t>(m_in.gcount());
            taken += count;
            const bool goes_on = m_in.fail() && count + 1 == room;
            if (!goes_on) break;
            m_in.clear();
            if (!grow()) {
                m_in.ignore(std::numeric_limits<std::streamsize>::max(), '\n');
                return true;
            }
        }
        if (m_in.fail() && taken == 0) return false;
        // getline counts the line end that it takes away; the last line may have none.
        m_line = {m_buffer.data(), m_in.eof() ? taken : taken - 1};
        return true;
    }

    enum class Fault { none, too_long, no_memory };
    /// Of a line with a fault nothing is kept.
    [[nodiscard]] Fault fault() const { return m_fault; }
    [[nodiscard]] std::string_view line() const { return m_line; }

    static constexpr std::size_t longest = 1U << 20U;  // bytes: far beyond any request

  private:
    bool grow() {
        if (m_buffer.size() > longest) {
            m_fault = Fault::too_long;
            return false;
        }
        try {
            m_buffer.resize(std::min(2 * m_buffer.size(), longest + 1));
        } catch (const std::bad_alloc&) {
            m_fault = Fault::no_memory;
        }
        return m_fault == Fault::none;
    }

    std::istream& m_in;
    std::vector<char> m_buffer;
    std::string_view m_line;
    Fault m_fault = Fault::none;
};

/// @param id  the request's, as soon as it is known
Answer perform_line(const LineReader& reader, const Environment& environment, SiteMemory& memory,
                    std::string& id) {
    Answer result;
    if (reader.fault() == LineReader::Fault::no_memory) throw std::bad_alloc();
    if (reader.fault() == LineReader::Fault::too_long) {
        result.fail(End::wrong_request,
                    "la riga è più lunga di " + std::to_string(LineReader::longest) + " byte");
        return result;
    }
    JsonRequest line = read_json_request(reader.line());
    id = line.id;
    if (!line.error) {
        result = perform(line.request, environment, memory);
    } else {
        result.kind = line.request.kind;
        result.fail(End::wrong_request, *std::move(line.error));
    }
    result.id = line.id;
    return result;
}

/// The answer to a line. A lack of memory ends this request alone.
std::string answer(const LineReader& reader, const Environment& environment, SiteMemory& memory,
                   std::size_t& failed) {
    std::string id;
    try {
        const Answer result = perform_line(reader, environment, memory, id);
        failed += result.end == End::well ? 0 : 1;
        return to_json(result);
    } catch (const std::bad_alloc&) {
        ++failed;
        return (id.empty() ? "{" : "{\"id\": " + id + ", ") + "\"errore\": \"memoria esaurita\"}";
    }
}

Answer perform_record(const CsvReader& table, const std::vector<CsvColumn>& columns, CsvEncoding& encoding,
                      const Environment& environment, SiteMemory& memory) {
    if (table.fault() == CsvFault::no_memory) throw std::bad_alloc();
    CsvRequest record = read_csv_request(table, columns, encoding);
    if (!record.error) return perform(record.request, environment, memory);
    Answer result;
    result.fail(End::wrong_request, *std::move(record.error));
    return result;
}

/// Writes the cells of the request as they were: as many as the header has.
void write_cells(std::ostream& out, const CsvReader& table, std::size_t columns) {
    const auto fields = table.fields();
    for (std::size_t i = 0; i < columns; ++i) {
        if (i > 0) out << table.separator();
        if (i < fields.size()) out << fields[i];
    }
}

BatchEnd end_of(const BatchOutcome& outcome, const std::istream& in, const std::ostream& out) {
    if (!out) return BatchEnd::output_failed;
    if (in.bad()) return BatchEnd::input_failed;
    return outcome.failed > 0 ? BatchEnd::some_failed : BatchEnd::all_well;
}

}  // namespace

std::string summary(const BatchOutcome& outcome) {
    const auto counted = [](std::size_t count, std::string_view one, std::string_view many) {
        return std::to_string(count) + " " + std::string(count == 1 ? one : many);
    };
    return counted(outcome.requests, "richiesta", "richieste") + ", " +
           (outcome.failed == 0 ? "nessun errore" : counted(outcome.failed, "errore", "errori"));
}

BatchOutcome run_batch(std::istream& in, std::ostream& out, const Environment& environment) {
    BatchOutcome outcome;
    SiteMemory memory;
    LineReader reader(in);
    while (out && reader.next()) {
        ++outcome.requests;
        out << answer(reader, environment, memory, outcome.failed) << '\n';
        if (in.rdbuf()->in_avail() <= 0) out.flush();
    }
    out.flush();
    outcome.end = end_of(outcome, in, out);
    return outcome;
}

BatchOutcome run_csv_batch(std::istream& in, std::ostream& out, const Environment& environment) {
    BatchOutcome outcome;
    CsvEncoding encoding = encoding_ahead(in);
    CsvReader table(in);
    const bool has_header = table.next();
    const CsvHeader header = read_csv_header(has_header ? &table : nullptr);
    if (header.error) {
        outcome.end = in.bad() ? BatchEnd::input_failed : BatchEnd::wrong_header;
        outcome.header_error = header.error;
        return outcome;
    }
    if (table.has_byte_order_mark()) {
        encoding = CsvEncoding::utf8;
        out << "\xEF\xBB\xBF";
    }
    std::string cells;
    cells.reserve(4096);  // usual answers need no more, also where memory is short
    append_csv_columns(cells, table.separator());
    write_cells(out, table, header.columns.size());
    out << cells << table.line_end();

    SiteMemory memory;
    while (out) {
        if (!table.more_at_hand()) out.flush();
        if (!table.next()) break;
        ++outcome.requests;
        const auto put = [&](const Answer& answer) {
            cells.clear();
            append_csv_answer(cells, answer, table.separator(), encoding);
            outcome.failed += answer.end == End::well ? 0 : 1;
        };
        try {
            put(perform_record(table, header.columns, encoding, environment, memory));
        } catch (const std::bad_alloc&) {
            Answer answer;  // a lack of memory ends this request alone
            answer.fail(End::failed, "memoria esaurita");
            put(answer);
        }
        write_cells(out, table, header.columns.size());
        out << cells << table.line_end();
    }
    out.flush();
    outcome.end = end_of(outcome, in, out);
    return outcome;
}

}  // namespace coltre::cli
