#include "document/request_line.h"

#include "calculate/return_period.h"
#include "text/json_text.h"
#include "text/number_reading.h"
#include "text/number_text.h"

namespace coltre {

namespace {

/// The return period that was confirmed or, without one, the refused one; empty where none was given.
std::string return_period(const Subject& subject) {
    if (!subject.return_period_text.empty()) return subject.return_period_text;
    if (subject.confirmed_return_period) return shortest_number_text(*subject.confirmed_return_period);
    return is_refused_return_period(subject.return_period) ? shortest_number_text(subject.return_period) : "";
}

}  // namespace

std::string request_line(const Subject& subject) {
    const Fields& fields = subject.fields;
    const Description& calculation = describe(fields.kind);
    std::string json;
    JsonObject object(json);
    object.text("calcolo", calculation.name);
    if (!subject.municipality.empty()) {
        object.text("provincia", subject.province);
        object.text("comune", subject.municipality);
    }
    if (!subject.zone_of_province) object.number("zona", subject.zone);
    object.text("altitudine", fields.asinput);
    if (const std::string Tr = return_period(subject); !Tr.empty()) object.text("periodo-ritorno", Tr);
    object.text("ce", fields.ComboEsp);
    object.text("ct", fields.TextCTermico);
    object.text("unita", fields.udmcombo);
    if (!subject.job_name.empty()) object.text("lavoro", subject.job_name);
    auto typed = fields.entries.begin();
    for (const Entry& entry : calculation.entries) {
        // A comma counts as the locale has it, a point everywhere.
        const StrictNumber number = read_strictly(*typed, fields.decimal_separator);
        const bool as_read =
            entry.reading == Reading::strict && number.verdict == StrictNumber::Verdict::number;
        object.text(entry.key, as_read ? shortest_number_text(number.value) : *typed);
        ++typed;
    }
    object.close();
    return json;
}

}  // namespace coltre
