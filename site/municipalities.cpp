#include "site/municipalities.h"

#include <utility>

#include "platform/code_page.h"
#include "platform/files.h"
#include "site/ScriviAltitudini_cond.h"
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

std::optional<std::vector<std::string>> municipalities(std::string_view bytes, std::string_view province) {
    std::optional<FieldReader> reader = find_field(bytes, province);
    if (!reader) return std::nullopt;
    std::vector<std::string> names;
    while (reader->next()) {
        if (reader->field().empty()) {
            // Without a municipality there is no first one to select.
            if (names.empty()) return std::nullopt;
            return names;
        }
        const std::optional<std::string_view> name = municipality_of(reader->field());
        if (!name) return std::nullopt;
        names.push_back(from_code_page(*name));
    }
    return std::nullopt;
}

std::optional<std::string> altitude(std::string_view bytes, std::string_view province,
                                    std::string_view municipality) {
    std::optional<FieldReader> reader = find_field(bytes, province);
    if (!reader) return std::nullopt;
    while (reader->next()) {
        const std::optional<std::string_view> name = municipality_of(reader->field());
        if (!name) return std::nullopt;
        if (*name == municipality || reader->at_end()) return from_code_page(altitude_of(reader->field()));
    }
    return std::nullopt;
}

/// Runs the read, after a failure once more on the file written anew.
/// @param read  takes the file's bytes; gives an optional, empty on failure
template <typename Read>
auto read_with_retry(std::string_view ProgramDirectory, Messages& messages, Read read)
    -> decltype(read(std::string_view())) {
    for (bool retried = false;; retried = true) {
        if (const std::optional<std::string> bytes = read_file(altitude_file_name(ProgramDirectory))) {
            if (auto result = read(std::string_view(*bytes))) return result;
        }
        if (retried) break;
        if (!WriteAltitudeFile(ProgramDirectory, messages)) return std::nullopt;
    }
    // Deliberate: the message names "altitudine.txt".
    messages.push_back(
        {Icon::error, std::string(program_title), "Errore in lettura del file altitudine.txt ."});
    return std::nullopt;
}

}  // namespace

std::optional<MunicipalityList> FillMunicipalities(std::string_view ProgramDirectory,
                                                   std::string_view province, Messages& messages) {
    const std::string header = name_in_file(province);
    std::optional<std::vector<std::string>> names = read_with_retry(
        ProgramDirectory, messages, [&](std::string_view bytes) { return municipalities(bytes, header); });
    if (!names) return std::nullopt;
    std::optional<std::string> first_altitude =
        ReadAltitude(ProgramDirectory, province, names->front(), messages);
    if (!first_altitude) return std::nullopt;
    return MunicipalityList{std::move(*names), std::move(*first_altitude)};
}

std::optional<std::string> ReadAltitude(std::string_view ProgramDirectory, std::string_view province,
                                        std::string_view municipality, Messages& messages) {
    const std::string header = name_in_file(province);
    const std::string name = name_in_file(municipality);
    return read_with_retry(ProgramDirectory, messages,
                           [&](std::string_view bytes) { return altitude(bytes, header, name); });
}

}  // namespace coltre
