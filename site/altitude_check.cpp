#include "site/altitude_check.h"

#include <algorithm>
#include <optional>
#include <unordered_set>
#include <utility>
#include <vector>

#include "platform/code_page.h"
#include "platform/files.h"
#include "site/altitude_fields.h"
#include "site/altitude_file.h"
#include "site/altitude_line.h"
#include "site/built_in_altitudes.h"
#include "site/built_in_blocks.h"
#include "text/characters.h"

namespace coltre {

namespace {

constexpr std::string_view line_end = "\r\n";

/// Goes through a file once, field by field as a reader does, and notes the faults and the repaired file.
class Inspection {
  public:
    explicit Inspection(std::string_view file);

    std::vector<AltitudeFault> faults;
    std::string repaired;

  private:
    /// Where the field stands: outside the blocks that count, inside one, or behind the empty line of one.
    enum class Place { outside, inside, behind };

    static std::size_t number_of(const AltitudeBlock& block) {
        return static_cast<std::size_t>(&block - built_in_blocks().data());
    }
    void outside();
    void inside();
    void municipality();
    void open(const AltitudeBlock& block);
    void close();
    void leave();
    void finish();
    [[nodiscard]] bool is_stray() const;
    void report(std::string_view reason) { faults.push_back({m_line, m_block->province, reason}); }
    void report_comma();
    void put(std::string_view bytes);
    void put_field();

    FieldReader m_reader;
    std::size_t m_line = 1;
    bool m_after_comma = false;    ///< the field follows a comma in its line
    std::size_t m_comma_line = 0;  ///< the last line whose comma was reported

    Place m_place = Place::outside;
    std::vector<bool> m_seen = std::vector<bool>(built_in_blocks().size());  ///< of the built-in blocks
    // The block that was opened last.
    const AltitudeBlock* m_block = nullptr;
    std::size_t m_header_line = 0;
    std::unordered_set<std::string> m_names;  ///< municipalities that the repaired block holds
    std::size_t m_block_end = 0;              ///< of its lines in the repaired file
};

Inspection::Inspection(std::string_view file) : m_reader(file) {
    repaired.reserve(file.size() + file.size() / 16);
    while (m_reader.next()) {
        if (m_place == Place::inside) {
            inside();
        } else {
            outside();
        }
        m_after_comma = m_reader.ending() == ",";
        if (!m_after_comma) ++m_line;
    }
    finish();
    std::ranges::stable_sort(faults, {}, [](const AltitudeFault& fault) {
        return fault.line - 1;  // puts 0 last
    });
}

void Inspection::outside() {
    const AltitudeBlock* const block = find_built_in_block(m_reader.field());
    if (block != nullptr) {
        leave();
        const auto seen = m_seen[number_of(*block)];
        if (!seen) {
            m_seen[number_of(*block)] = true;
            open(*block);
        } else {
            put_field();
        }
    } else if (m_place == Place::behind && is_stray()) {
        report("la riga segue la riga vuota che chiude la provincia");
        // Without that empty line it belongs to the block again.
        repaired.resize(m_block_end);
        m_place = Place::inside;
        inside();
    } else {
        if (!m_reader.field().empty()) leave();
        put_field();
    }
}

void Inspection::inside() {
    const std::string_view field = m_reader.field();
    const AltitudeBlock* const header = find_built_in_block(field);
    if (header != nullptr && header != m_block) {
        report("manca la riga vuota prima della provincia che segue");
        close();
        put(line_end);
        outside();
        return;
    }
    report_comma();
    if (!field.empty()) {
        municipality();
    } else if (!m_after_comma && m_reader.ending() != ",") {
        close();
        put_field();
    }
}

void Inspection::municipality() {
    const std::string_view field = m_reader.field();
    const std::string_view end = m_reader.ending() == "," ? line_end : m_reader.ending();
    std::string_view line = m_reader.raw();
    std::optional<std::string> reshaped;
    if (const std::string_view fault = line_fault(field); !fault.empty()) {
        if (m_line != m_comma_line) report(fault);
        reshaped = reshaped_line(field);
        if (reshaped) {
            line = *reshaped;
        } else {
            // The header once more would bring the chief town, which often has its name, before its own line.
            const auto known = m_block->line_of.find(first_word(field));
            if (field == m_block->header || known == m_block->line_of.end()) return;
            line = known->second;
        }
    }
    m_names.emplace(first_word(line));
    put(line);
    put(end);
}

void Inspection::open(const AltitudeBlock& block) {
    m_block = &block;
    m_header_line = m_line;
    m_names.clear();
    m_place = Place::inside;
    report_comma();
    put(m_reader.raw());
    put(m_reader.ending() == "," ? line_end : m_reader.ending());
}

void Inspection::close() {
    m_place = Place::behind;
    m_block_end = repaired.size();
}

/// Nothing that follows belongs to the closed block any more.
void Inspection::leave() {
    if (m_place != Place::behind) return;
    m_place = Place::outside;
    if (!m_names.empty()) return;
    faults.push_back({m_header_line, m_block->province, "la provincia non contiene comuni"});
    std::string lines;
    for (const std::string_view line : m_block->lines)
        lines.append(line).append(line_end);
    repaired.insert(m_block_end, lines);
}

void Inspection::finish() {
    const auto end_line = [this] {
        if (!repaired.empty() && repaired.back() != '\r' && repaired.back() != '\n') put(line_end);
    };
    end_line();
    if (m_place == Place::inside) {
        m_line = m_after_comma ? m_line : m_line - 1;
        report("manca la riga vuota che chiude la provincia alla fine del file");
        close();
        put(line_end);
    }
    leave();
    for (const AltitudeBlock& block : built_in_blocks()) {
        if (m_seen[number_of(block)]) continue;
        faults.push_back({0, block.province, "manca la riga con il nome della provincia"});
        put(block.header);
        put(line_end);
        for (const std::string_view line : block.lines) {
            put(line);
            put(line_end);
        }
        put(line_end);
    }
}

/// A municipality that the closed block lacks. A copy of the block, whose first name the block holds, is
/// none.
bool Inspection::is_stray() const {
    const std::string_view field = m_reader.field();
    return !field.empty() && line_fault(field).empty() && !m_names.contains(std::string(first_word(field)));
}

void Inspection::report_comma() {
    if (m_reader.ending() != "," || m_line == m_comma_line) return;
    m_comma_line = m_line;
    report("una virgola divide la riga");
}

/// Appends to the repaired file. A CR and a LF of different line ends must not become one line end.
void Inspection::put(std::string_view bytes) {
    if (bytes.starts_with('\n') && repaired.ends_with('\r')) repaired += '\n';
    repaired += bytes;
}

void Inspection::put_field() {
    put(m_reader.raw());
    put(m_reader.ending());
}

/// The file in Windows-1252 if it is in UTF-8, as many editors save it.
std::optional<std::string> from_utf8(std::string_view file) {
    constexpr std::string_view byte_order_mark = "\xEF\xBB\xBF";
    const bool has_mark = file.starts_with(byte_order_mark);
    const std::string_view text = has_mark ? file.substr(byte_order_mark.size()) : file;
    const auto is_accent = [](char c) { return (static_cast<unsigned char>(c) & 0x80U) != 0; };
    auto accent = std::ranges::find_if(text, is_accent);
    if (accent == text.end() && !has_mark) return std::nullopt;
    while (accent != text.end()) {
        const std::size_t size = first_character({accent, text.end()}).size();
        if (size == 1) return std::nullopt;  // no UTF-8: as a rule, an accent of the code page
        accent = std::find_if(accent + static_cast<std::ptrdiff_t>(size), text.end(), is_accent);
    }
    std::string bytes = to_code_page(text);
    if (from_code_page(bytes) != text) return std::nullopt;
    return bytes;
}

}  // namespace

AltitudeInspection inspect_altitudes(std::string_view file) {
    const std::optional<std::string> converted = from_utf8(file);
    Inspection inspection(converted ? *converted : file);
    if (converted) inspection.faults.push_back({0, {}, "il file è scritto in UTF-8 e non in Windows-1252"});
    return {std::move(inspection.faults), std::move(inspection.repaired)};
}

std::string text_of(const AltitudeFault& fault) {
    std::string text;
    if (fault.line > 0) text = "riga " + std::to_string(fault.line) + ": ";
    if (!fault.province.empty()) text.append(fault.province).append(": ");
    return text.append(fault.reason);
}

AltitudeFileCheck check_altitude_file(std::string_view ProgramDirectory) {
    const FileContent file = read_content_at_rest(altitude_file_name(ProgramDirectory));
    if (file.end == ReadEnd::disturbed) return {file.reason, {}, {}};
    if (file.end != ReadEnd::read) return {"il file manca o non si può leggere", {}, {}};
    return {{}, inspect_altitudes(file.bytes).faults, {}};
}

AltitudeFileCheck repair_altitude_file(std::string_view ProgramDirectory) {
    const FileContent file = read_content_at_rest(altitude_file_name(ProgramDirectory));
    if (file.end == ReadEnd::disturbed) return {file.reason, {}, {}};
    if (file.end == ReadEnd::unreadable) return {"il file non si può leggere", {}, {}};
    const bool missing = file.end == ReadEnd::missing;
    AltitudeInspection inspection = inspect_altitudes(missing ? built_in_altitude_file() : file.bytes);
    if (inspection.faults.empty()) return {};
    TableReplacement replaced = replace_altitude_file(ProgramDirectory, inspection.repaired);
    return {std::move(replaced.failure), std::move(inspection.faults), std::move(replaced.kept_name)};
}

}  // namespace coltre
