#include "site/municipalities.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "fuzz/input.h"
#include "fuzz/require.h"
#include "platform/code_page.h"
#include "text/characters.h"

// Input: province, municipality, then the bytes of altitudini.txt.

namespace {

using namespace coltre;
using namespace coltre::fuzz;

using Fields = std::vector<std::string>;

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

std::string last_four(const std::string& field) {
    return from_code_page(trim_blanks(field.size() < 4 ? field : field.substr(field.size() - 4)));
}

std::optional<std::vector<std::string>> list_of_municipalities(const Fields& fields,
                                                               std::string_view province) {
    auto field = std::ranges::find(fields, province, from_code_page);
    if (field == fields.end() || ++field == fields.end() || field->empty()) return std::nullopt;
    std::vector<std::string> names;
    for (; field != fields.end() && holds_blank(*field); ++field)
        names.push_back(name_in(*field));
    if (field == fields.end() || !field->empty()) return std::nullopt;
    return names;
}

std::optional<std::string> altitude_of_municipality(const Fields& fields, std::string_view province,
                                                    std::string_view municipality) {
    auto field = std::ranges::find(fields, province, from_code_page);
    while (field != fields.end() && ++field != fields.end() && holds_blank(*field)) {
        if (name_in(*field) == municipality || field + 1 == fields.end()) return last_four(*field);
    }
    return std::nullopt;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    Input input(data, size);
    const std::string_view province = input.line();
    const std::string_view municipality = input.line();
    const std::string_view file = input.rest();
    const Fields fields = fields_of(file);
    require(municipalities_in(file, province) == list_of_municipalities(fields, province),
            "the municipalities are those of the file");
    require(
        altitude_in(file, province, municipality) == altitude_of_municipality(fields, province, municipality),
        "the altitude is that of the file");
    return 0;
}
