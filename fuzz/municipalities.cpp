#include "site/municipalities.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "fuzz/input.h"
#include "fuzz/require.h"
#include "platform/code_page.h"
#include "site/built_in_altitudes.h"
#include "tests/support/fake_doors.h"
#include "tests/support/temporary_directory.h"
#include "text/characters.h"

// Input: province, municipality, then the bytes of altitudini.txt; if none are left there is no such file.

namespace {

using namespace coltre;
using namespace coltre::fuzz;

using Fields = std::vector<std::string>;
/// What a read gives, the municipalities before the altitude; nothing where it fails.
using Result = std::optional<std::vector<std::string>>;

/// All fields of a file, byte by byte.
Fields fields_of(std::string_view bytes) {
    Fields fields;
    bool field_begins = true;
    for (std::size_t i = 0; i < bytes.size(); ++i) {
        if (field_begins) fields.emplace_back();
        field_begins = std::string_view(",\r\n").find(bytes[i]) != std::string_view::npos;
        if (bytes.substr(i, 2) == "\r\n") ++i;
        if (!field_begins && (bytes[i] != ' ' || !fields.back().empty())) fields.back() += bytes[i];
    }
    return fields;
}

bool holds_blank(const std::string& field) {
    return field.find(' ') != std::string::npos;
}

std::string name_in(const std::string& field) {
    return from_code_page(field.substr(0, field.find(' ')));
}

std::string altitude_in(const std::string& field) {
    return from_code_page(trim_blanks(field.size() < 4 ? field : field.substr(field.size() - 4)));
}

Result list_of_municipalities(const Fields& fields, std::string_view province) {
    auto field = std::ranges::find(fields, province, from_code_page);
    if (field == fields.end() || ++field == fields.end() || field->empty()) return std::nullopt;
    const std::string first_altitude = altitude_in(*field);
    std::vector<std::string> names;
    for (; field != fields.end() && holds_blank(*field); ++field)
        names.push_back(name_in(*field));
    if (field == fields.end() || !field->empty()) return std::nullopt;
    names.push_back(first_altitude);
    return names;
}

Result altitude_of_municipality(const Fields& fields, std::string_view province,
                                std::string_view municipality) {
    auto field = std::ranges::find(fields, province, from_code_page);
    while (field != fields.end() && ++field != fields.end() && holds_blank(*field)) {
        if (name_in(*field) == municipality || field + 1 == fields.end())
            return std::vector{altitude_in(*field)};
    }
    return std::nullopt;
}

/// One read of a fresh directory.
/// @param given     the file; nothing: there is none
/// @param read      the read under test
/// @param expected  what the read of a file with these fields gives
template <typename Read, typename Expected>
void check_read(const std::optional<std::string_view>& given, Read read, Expected expected) {
    static const TemporaryDirectory directory;
    static const std::string built_in = built_in_altitude_file();
    static const Fields built_in_fields = fields_of(built_in);
    constexpr std::string_view earlier = "kept by an earlier repair";
    for (const std::string& name : directory.files())
        std::filesystem::remove(directory.path() / name);
    if (given) directory.put("altitudini.txt", *given);
    directory.put("altitudini.bak", earlier);

    Result wanted = given ? expected(fields_of(*given)) : std::nullopt;
    const bool kept = wanted.has_value();
    if (!kept) wanted = expected(built_in_fields);
    FakeDoors user;
    require(read(directory.text(), user.doors()) == wanted, "a read gives what the file that counts holds");
    require(user.shown.size() == (wanted ? 0U : 1U), "a failure is told once, a success never");
    require(user.ended == (wanted ? 0 : 1), "a failure ends the program");

    require(directory.content("altitudini.txt") == (kept ? *given : built_in),
            "a file that can be read stays, the built-in one takes the place of any other");
    const bool backed_up = given && !kept && *given != earlier && *given != built_in;
    std::vector<std::string> files{"altitudini.bak", "altitudini.txt"};
    if (backed_up) files.insert(files.begin() + 1, "altitudini.bak1");
    require(directory.files() == files, "nothing else is left in the directory");
    require(directory.content("altitudini.bak") == (backed_up ? *given : earlier), "the old file is kept");
    if (backed_up) require(directory.content("altitudini.bak1") == earlier, "what was kept before stays");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    Input input(data, size);
    const std::string_view province = input.line();
    const std::string_view municipality = input.line();
    const auto file = input.rest().empty() ? std::nullopt : std::optional(input.rest());

    check_read(
        file,
        [&](std::string_view directory, Doors doors) -> Result {
            auto list = FillMunicipalities(directory, province, doors);
            if (!list) return std::nullopt;
            list->names.push_back(list->altitude);
            return list->names;
        },
        [&](const Fields& fields) { return list_of_municipalities(fields, province); });
    check_read(
        file,
        [&](std::string_view directory, Doors doors) -> Result {
            const auto altitude = ReadAltitude(directory, province, municipality, doors);
            return altitude ? Result(std::vector{*altitude}) : std::nullopt;
        },
        [&](const Fields& fields) { return altitude_of_municipality(fields, province, municipality); });
    return 0;
}
