#include "requests/csv_request.h"

#include <algorithm>

#include "platform/code_page.h"
#include "requests/site_choice.h"
#include "text/characters.h"
#include "text/names.h"

namespace coltre {

namespace {

bool is_ascii(char byte) {
    return static_cast<unsigned char>(byte) < 0x80;
}

bool is_utf8(std::string_view text) {
    while (!text.empty()) {
        const std::string_view character = first_character(text);
        if (character.size() == 1 && !is_ascii(character.front())) return false;
        text.remove_prefix(character.size());
    }
    return true;
}

/// The names that a header may hold.
std::vector<std::string> column_names() {
    std::vector<std::string> names{"id", "calcolo"};
    for (const Key& key : common_keys())
        names.emplace_back(key.name);
    for (const Description& calculation : calculations())
        for (const Entry& entry : calculation.entries)
            names.emplace_back(entry.key);
    return names;
}

bool is_column(const std::string& name) {
    return name == "id" || name == "calcolo" || find_key(name);
}

std::string fault_text(CsvFault fault) {
    switch (fault) {
        case CsvFault::open_quotes:
            return "le virgolette aperte non sono chiuse";
        case CsvFault::text_after_quotes:
            return "dopo le virgolette chiuse manca il separatore";
        case CsvFault::too_many_fields:
            return "ha più di " + std::to_string(CsvReader::most_fields) + " colonne";
        case CsvFault::no_memory:
            return "non sta in memoria";
        case CsvFault::too_long:
            return "è più lunga di " + std::to_string(CsvReader::longest) + " byte";
        case CsvFault::none:
            break;
    }
    return {};
}

std::string name_error(std::string_view name, std::size_t column) {
    const std::string place = "la colonna " + std::to_string(column) + " dell'intestazione ";
    if (name.empty()) return place + "non ha nome";
    return not_found(place + "non è una chiave", name, nearest_names(name, column_names(), 1));
}

/// The text of a cell as the request takes it.
std::string value_of(const Key& key, std::string text, char separator) {
    if (key.type == KeyType::number_or_text && separator == ';' && text.find('.') == std::string::npos &&
        std::ranges::count(text, ',') == 1)
        std::ranges::replace(text, ',', '.');
    if (key.type != KeyType::flag) return text;
    std::string flag = lower_case(text);
    if (flag == "vero") return "true";
    if (flag == "falso") return "false";
    return flag;
}

/// Puts a cell into the request.
/// @return what is wrong with it
Failure take(const CsvColumn& column, const std::string& text, char separator, Request& request) {
    if (column.key) {
        std::string value = value_of(*column.key, text, separator);
        if (column.key->type == KeyType::flag && value != "true" && value != "false")
            return in_quotes(column.name) + " deve essere vero o falso: " + in_quotes(text);
        request.set(*column.key, std::move(value));
    } else if (column.name == "calcolo") {
        request.kind = kind_of(text);
        if (!request.kind) return "calcolo sconosciuto: " + in_quotes(text);
    }
    return {};
}

}  // namespace

CsvEncoding encoding_of(std::string_view bytes) {
    const auto* const first = std::ranges::find_if_not(bytes, is_ascii);
    if (first == bytes.end()) return CsvEncoding::ascii_so_far;
    const std::string_view rest = bytes.substr(static_cast<std::size_t>(first - bytes.begin()));
    return first_character(rest).size() > 1 ? CsvEncoding::utf8 : CsvEncoding::windows_1252;
}

CsvEncoding encoding_ahead(std::istream& in) {
    const std::istream::pos_type start = in.tellg();
    if (start == std::istream::pos_type(-1)) {
        in.clear();
        return CsvEncoding::ascii_so_far;
    }
    constexpr std::size_t longest_character = 4;
    std::string block(1U << 16U, '\0');
    std::size_t kept = 0;  // bytes at its front that the block before ended with
    CsvEncoding found = CsvEncoding::ascii_so_far;
    while (in && found == CsvEncoding::ascii_so_far) {
        in.read(block.data() + kept, static_cast<std::streamsize>(block.size() - kept));
        const std::string_view bytes(block.data(), kept + static_cast<std::size_t>(in.gcount()));
        const auto first =
            static_cast<std::size_t>(std::ranges::find_if_not(bytes, is_ascii) - bytes.begin());
        kept = 0;
        if (in && bytes.size() - first < longest_character) {
            kept = bytes.size() - first;
            std::ranges::copy(bytes.substr(first), block.begin());
        } else {
            found = encoding_of(bytes.substr(first));
        }
    }
    in.clear();
    in.seekg(start);
    return found;
}

CsvHeader read_csv_header(const CsvReader* table) {
    constexpr std::string_view missing =
        "manca l'intestazione: la prima riga nomina le chiavi, per esempio calcolo;provincia;comune;alfa";
    if (table == nullptr) return {{}, std::string(missing)};
    if (table->fault() != CsvFault::none)
        return {{}, "l'intestazione è errata: " + fault_text(table->fault())};
    std::vector<std::string> names;
    for (const std::string_view field : table->fields()) {
        if (field.starts_with("\xFF\xFE") || field.starts_with("\xFE\xFF"))
            return {{}, "la tabella è scritta in UTF-16: salvarla come CSV UTF-8"};
        const std::string value = csv_value(field);
        names.push_back(lower_case(trim_blanks(value)));
    }
    const auto is_calculation = [](const std::string& name) { return kind_of(name).has_value(); };
    if (std::ranges::any_of(names, is_calculation) || std::ranges::none_of(names, is_column))
        return {{}, std::string(missing)};
    CsvHeader header;
    for (const std::string& name : names) {
        const std::optional<Key> key = find_key(name);
        if (!is_column(name))
            return {{}, name_error(is_utf8(name) ? name : from_code_page(name), header.columns.size() + 1)};
        if (key && key->name == keys::passaggi.name)
            return {{}, "una tabella non riporta i passaggi: chiederli in JSON, senza --csv"};
        if (std::ranges::find(header.columns, name, &CsvColumn::name) != header.columns.end())
            return {{}, "l'intestazione ripete la colonna " + in_quotes(name)};
        header.columns.push_back({name, key});
    }
    if (std::ranges::find(header.columns, "calcolo", &CsvColumn::name) == header.columns.end())
        return {{}, "nell'intestazione manca la colonna " + in_quotes("calcolo")};
    return header;
}

CsvRequest read_csv_request(const CsvReader& table, const std::vector<CsvColumn>& columns,
                            CsvEncoding& encoding) {
    const std::string place = "riga " + std::to_string(table.line()) + ": ";
    CsvRequest result;
    if (table.fault() != CsvFault::none) return {{}, place + fault_text(table.fault())};
    const auto fields = table.fields();
    if (std::ranges::all_of(fields, &std::string_view::empty)) return {{}, "riga vuota"};
    if (fields.size() != columns.size())
        return {{},
                place + "ha " + std::to_string(fields.size()) + " colonne, l'intestazione " +
                    std::to_string(columns.size())};
    for (std::size_t i = 0; i < fields.size(); ++i) {
        if (encoding == CsvEncoding::ascii_so_far) encoding = encoding_of(fields[i]);
        if (encoding == CsvEncoding::utf8 && !is_utf8(fields[i]))
            return {{}, place + "non è in UTF-8 come le righe precedenti"};
        const std::string value = csv_value(fields[i]);
        const auto text = std::string(trim_blanks(value));
        if (text.empty()) continue;
        Failure error = take(columns[i], encoding == CsvEncoding::windows_1252 ? from_code_page(text) : text,
                             table.separator(), result.request);
        if (!result.error) result.error = std::move(error);
    }
    return result;
}

}  // namespace coltre
