#include "site/municipalities.h"

#include "platform/code_page.h"
#include "platform/files.h"
#include "site/altitude_fields.h"
#include "site/altitude_file.h"

namespace coltre {

namespace {

/// The name as the file holds it. One with characters outside the code page stands nowhere in it: a line end,
/// which no field holds, instead of the "?" that such a character is written as.
std::string name_in_file(std::string_view name) {
    std::string bytes = to_code_page(name);
    return from_code_page(bytes) == name ? bytes : "\n";
}

/// Runs a read of the file as the windows do.
/// @param read  takes the file's bytes; gives an optional, empty on failure
template <typename Read>
auto read_or_write_anew(std::string_view ProgramDirectory, AltitudeNotices& notices, Read read)
    -> decltype(read(std::string_view())) {
    const std::string name = altitude_file_name(ProgramDirectory);
    enum class Try { as_it_is, at_rest, written_anew };
    for (const Try it : {Try::as_it_is, Try::at_rest, Try::written_anew}) {
        if (it == Try::written_anew && !WriteAltitudeFile(ProgramDirectory, notices)) return std::nullopt;
        const FileContent file = it == Try::at_rest ? read_content_at_rest(name) : read_content(name);
        if (file.end == ReadEnd::disturbed) {
            notices.note = "Impossibile leggere il file altitudini.txt: " + file.reason + ".";
            break;
        }
        if (file.end != ReadEnd::read) continue;
        if (auto result = read(std::string_view(file.bytes))) return result;
    }
    notices.messages.push_back(altitude_read_error());
    return std::nullopt;
}

}  // namespace

std::optional<std::vector<std::string_view>> municipality_lines_in(std::string_view file,
                                                                   std::string_view province) {
    std::optional<FieldReader> reader = find_field(file, name_in_file(province));
    if (!reader) return std::nullopt;
    std::vector<std::string_view> lines;
    while (reader->next()) {
        if (reader->field().empty()) {
            // Without a municipality there is no first one to select.
            if (lines.empty()) return std::nullopt;
            return lines;
        }
        if (!municipality_of(reader->field())) return std::nullopt;
        lines.push_back(reader->field());
    }
    return std::nullopt;
}

std::optional<std::vector<std::string>> municipalities_in(std::string_view file, std::string_view province) {
    const auto lines = municipality_lines_in(file, province);
    if (!lines) return std::nullopt;
    std::vector<std::string> names;
    names.reserve(lines->size());
    for (const std::string_view line : *lines)
        names.push_back(from_code_page(*municipality_of(line)));
    return names;
}

std::optional<std::string> altitude_in(std::string_view file, std::string_view province,
                                       std::string_view municipality) {
    std::optional<FieldReader> reader = find_field(file, name_in_file(province));
    if (!reader) return std::nullopt;
    const std::string wanted = name_in_file(municipality);
    while (reader->next()) {
        const std::optional<std::string_view> name = municipality_of(reader->field());
        if (!name) return std::nullopt;
        if (*name == wanted || reader->at_end()) return from_code_page(altitude_of(reader->field()));
    }
    return std::nullopt;
}

std::optional<std::vector<std::string>> FillMunicipalities(std::string_view ProgramDirectory,
                                                           std::string_view province,
                                                           AltitudeNotices& notices) {
    return read_or_write_anew(ProgramDirectory, notices,
                              [&](std::string_view file) { return municipalities_in(file, province); });
}

std::optional<std::string> ReadAltitude(std::string_view ProgramDirectory, std::string_view province,
                                        std::string_view municipality, AltitudeNotices& notices) {
    return read_or_write_anew(ProgramDirectory, notices, [&](std::string_view file) {
        return altitude_in(file, province, municipality);
    });
}

Message altitude_read_error() {
    // Deliberate: the message names "altitudine.txt".
    return {Icon::error, std::string(program_title), "Errore in lettura del file altitudine.txt ."};
}

}  // namespace coltre
