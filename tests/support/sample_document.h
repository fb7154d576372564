#pragma once

#include <string>

#include "document/formula_text.h"
#include "document/illustrated_report.h"
#include "document/request_line.h"
#include "tests/support/steps.h"

namespace coltre {

/// A calculation in Torino, 239 m, zone I Alpina.
inline Subject calculated(Kind kind, std::vector<std::string> entries) {
    Program program;
    Subject subject;
    subject.fields.asinput = "239";
    subject.fields.ComboEsp = subject.fields.TextCTermico = "1.0";
    subject.fields.kind = kind;
    subject.fields.entries = std::move(entries);
    subject.fields.udmcombo = "kN , m";
    subject.fields.traced = true;
    subject.outcome = click(subject.fields, program);
    subject.province = subject.municipality = "Torino";
    subject.listed_altitude = "239";
    subject.zone_of_province = true;
    subject.program = "Coltre 1.2.3";
    subject.request = request_line(subject);
    return subject;
}

/// The steps of a two-pitch roof, with its figure.
inline Document sample_steps() {
    return steps_document(calculated(Kind::two_pitches, {"20", "40"}));
}

/// Its illustrated report, with what is hard to set: long names, a formula that no line holds, a table that
/// no page holds.
inline Document sample_report() {
    Document document = illustrated_report(
        calculated(Kind::two_pitches, {"20", "40"}),
        {.work = "Ampliamento della scuola primaria «Giovanni XXIII» con nuova palestra, mensa e "
                 "sistemazioni esterne, lotto 2 — Comune di San Giovanni Rotondo",
         .sheet = "R.07",
         .revision = "3",
         .date = "31/03/2024"},
        Layout::complete);
    std::string sum = "qs_2a", numbers = "1.231853006762468";
    for (int i = 1; i < 12; ++i) {
        sum += " + qs_2" + std::string(1, static_cast<char>('a' + i));
        numbers += " + 1.231853006762468";
    }
    document.blocks.emplace_back(step_line({"qs_tot", sum, numbers, 14.782236081149616, Fault::none,
                                            "0 <= alfa1 <= 30 and 30 < alfa2 <= 60", "", "qs_2a",
                                            quantities::area_load, "Circ. 4 luglio 1996, C.6.4"}));
    Table rows{{ColumnAlign::left, ColumnAlign::right}, {plain("Prova"), plain("carico [kN/m²]")}, {}};
    for (int i = 1; i <= 60; ++i)
        rows.rows.push_back({plain("altitudine " + std::to_string(200 + 10 * i) + " m"),
                             {{"1," + std::to_string(200 + i), Style::strong}}});
    document.blocks.emplace_back(std::move(rows));
    return document;
}

}  // namespace coltre
