#include "calculate/entry_reader.h"

#include <algorithm>

#include "text/characters.h"
#include "text/number_reading.h"

namespace coltre {

namespace {

std::string beyond_range(std::string_view name) {
    return "Il numero scritto per «" + std::string(name) + "» è troppo grande.";
}

}  // namespace

std::string_view fault_text(Fault fault) {
    switch (fault) {
        case Fault::none:
            return {};
        case Fault::division_by_zero:
            return "divisione per zero";
        case Fault::numeric_error:
            return "errore numerico";
        case Fault::invalid_conversion:
            return "conversione non valida";
        case Fault::incongruent_dimensions:
            return "dimensioni non congruenti";
    }
    return {};
}

Message message_of(const Stop& stop) {
    return {Icon::error, std::string(program_title),
            "Calcolo interrotto: " + std::string(fault_text(stop.fault)) + ".\r" + stop.explanation};
}

double EntryReader::lenient(std::string_view name, std::string_view symbol, std::string_view unit,
                            std::string_view text) {
    if (m_stop) return 0;
    const LenientNumber number = read_leniently(text);
    if (number.beyond_range) {
        stop_beyond_range(name, symbol, unit, text);
    } else {
        keep(symbol, number.value, unit, text);
    }
    return number.value;
}

double EntryReader::strict(std::string_view name, std::string_view unit, std::string_view text,
                           char decimal_separator) {
    const StrictNumber number = read_strictly(text, decimal_separator);
    switch (number.verdict) {
        case StrictNumber::Verdict::number:
            keep(name, number.value, unit, text);
            break;
        case StrictNumber::Verdict::beyond_range: {
            std::string with_point(text);
            std::ranges::replace(with_point, decimal_separator, '.');
            stop_beyond_range(name, name, unit, with_point);
            break;
        }
        case StrictNumber::Verdict::not_a_number:
            m_stop = {Fault::invalid_conversion, trim_blanks(text).empty()
                                                     ? "Il campo «" + std::string(name) + "» è vuoto."
                                                     : "Il valore di «" + std::string(name) +
                                                           "» non è un numero: «" + std::string(text) + "»."};
            break;
    }
    return number.value;
}

Entries EntryReader::entries(Kind kind, std::span<const std::string> texts, char decimal_separator) {
    Entries entries{.kind = kind};
    auto text = texts.begin();
    for (const Entry& entry : describe(kind).entries) {
        if (m_stop) break;
        double& number = entries.*entry.number;
        if (entry.reading == Reading::strict) {
            number = strict(entry.symbol, entry.unit, *text, decimal_separator);
        } else {
            number = lenient(entry.symbol, entry.symbol, entry.unit, *text);
        }
        ++text;
    }
    return entries;
}

void EntryReader::keep(std::string_view symbol, double value, std::string_view unit, std::string_view text) {
    if (m_trace == nullptr) return;
    m_trace->data.push_back({std::string(symbol), value, unit, std::string(text)});
}

void EntryReader::stop_beyond_range(std::string_view name, std::string_view symbol, std::string_view unit,
                                    std::string_view text) {
    m_stop = {Fault::numeric_error, beyond_range(name)};
    if (m_trace == nullptr) return;
    std::string digits(read_leniently(text).digits);
    if (digits.starts_with('-')) digits = "(" + digits + ")";
    m_trace->steps.push_back({.symbol = std::string(symbol),
                              .formula = digits,
                              .numbers = digits,
                              .value = {},
                              .fault = Fault::numeric_error,
                              .quantity = {unit, 0},
                              .source = "dato scritto",
                              .words = "numero troppo grande",
                              .stage = m_stage});
}

}  // namespace coltre
