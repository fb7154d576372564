#include "calculate/entry_reader.h"

#include <string>

#include "text/characters.h"
#include "text/number_reading.h"

namespace coltre {

namespace {

std::string beyond_range(std::string_view name) {
    return "Il numero scritto per «" + std::string(name) + "» è troppo grande.";
}

}  // namespace

double EntryReader::lenient(std::string_view name, std::string_view text) {
    if (m_stop) return 0;
    const LenientNumber number = read_leniently(text);
    if (number.beyond_range) m_stop = {Fault::numeric_error, beyond_range(name)};
    return number.value;
}

double EntryReader::strict(std::string_view name, std::string_view text, char decimal_separator) {
    if (m_stop) return 0;
    const StrictNumber number = read_strictly(text, decimal_separator);
    switch (number.verdict) {
        case StrictNumber::Verdict::number:
            break;
        case StrictNumber::Verdict::beyond_range:
            m_stop = {Fault::numeric_error, beyond_range(name)};
            break;
        case StrictNumber::Verdict::not_a_number:
            m_stop = {Fault::invalid_conversion, trim_blanks(text).empty()
                                                     ? "Il campo «" + std::string(name) + "» è vuoto."
                                                     : "Il testo scritto per «" + std::string(name) +
                                                           "» non è un numero: «" + std::string(text) + "»."};
            break;
    }
    return number.value;
}

EntryReader::Coefficients EntryReader::coefficients(std::string_view ComboEsp,
                                                    std::string_view TextCTermico) {
    const double CE = lenient("coefficiente di esposizione", ComboEsp);
    return {CE, lenient("coefficiente termico", TextCTermico)};
}

}  // namespace coltre
