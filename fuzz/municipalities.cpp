#include "site/municipalities.h"

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "fuzz/input.h"
#include "fuzz/require.h"
#include "site/altitude_fields.h"
#include "site/built_in_altitudes.h"
#include "tests/support/fake_doors.h"
#include "tests/support/temporary_directory.h"

// Input: province, municipality, then the bytes of altitudini.txt; if none are left there is no such file.

namespace {

using namespace coltre;
using namespace coltre::fuzz;

/// find_field() looks for the text first; this reads field by field, as it is meant.
std::optional<FieldReader> find_field_by_field(std::string_view bytes, std::string_view wanted) {
    for (FieldReader reader(bytes); reader.next();) {
        if (reader.field() == wanted) return reader;
    }
    return std::nullopt;
}

void check_find_field(std::string_view bytes, std::string_view wanted) {
    auto found = find_field(bytes, wanted);
    auto expected = find_field_by_field(bytes, wanted);
    require(found.has_value() == expected.has_value(), "find_field finds what stands there");
    if (!found) return;
    const bool goes_on = found->next();
    require(goes_on == expected->next(), "find_field stands at the same place");
    if (goes_on) require(found->field().data() == expected->field().data(), "find_field: the same place");
}

/// One read of a fresh directory.
/// @param given  the file; nothing: there is none
/// @param read   true if it succeeded
template <typename Read>
void check_read(const std::optional<std::string_view>& given, Read read) {
    static const TemporaryDirectory directory;
    static const std::string built_in = built_in_altitude_file();
    constexpr std::string_view earlier = "kept by an earlier repair";
    for (const std::string& name : directory.files())
        std::filesystem::remove(directory.path() / name);
    if (given) directory.put("altitudini.txt", *given);
    directory.put("altitudini.bak", earlier);

    FakeDoors user;
    const bool succeeded = read(directory.text(), user.doors());
    require(user.shown.size() == (succeeded ? 0U : 1U), "a failure is told once, a success never");
    require(user.ended == (succeeded ? 0 : 1), "a failure ends the program");

    const auto after = directory.content("altitudini.txt");
    const bool kept = given && after == *given;
    require(kept || after == built_in, "the file is the given one or the built-in one");
    const bool backed_up = given && !kept && *given != earlier;
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
    check_find_field(input.rest(), province);

    check_read(file, [&](std::string_view directory, Doors doors) {
        return FillMunicipalities(directory, province, doors).has_value();
    });
    check_read(file, [&](std::string_view directory, Doors doors) {
        return ReadAltitude(directory, province, municipality, doors).has_value();
    });
    return 0;
}
