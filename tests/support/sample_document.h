#pragma once

#include <string>

#include "document/formula_text.h"
#include "drawings/sketches.h"

namespace coltre {

/// The steps of a two-pitch roof, with its figure.
inline Document sample_steps() {
    Document document;
    document.title = "Passaggi";
    const auto step = [&document](const char* symbol, const char* formula, const char* numbers, double value,
                                  const Quantity& quantity, const char* condition = "",
                                  const char* governs = "", const char* source = "") {
        document.blocks.emplace_back(step_line(
            {symbol, formula, numbers, value, Fault::none, condition, "", governs, quantity, source}));
    };
    const auto section = [&document](const char* text) { document.blocks.emplace_back(Heading{2, text}); };
    section("3  Carico neve al suolo");
    step("q0", "1.39 * (1 + (as / 728)^2)", "1.39 * (1 + (239 / 728)^2)", 1.539816258453085,
         quantities::area_load, "as > 200", "", "D.M. 16 gennaio 1996, zona I Alpina");
    step("cT", "1", "1", 1, quantities::coefficient, "", "", "periodo di ritorno non confermato");
    step("qsk", "q0 * cT * CE * Ct", "1.539816258453085 * 1 * 1 * 1", 1.539816258453085,
         quantities::area_load);
    section("4  Coefficienti di forma");
    step("mu1_alfa1", "0.8", "0.8", 0.8, quantities::coefficient, "0 <= alfa1 <= 30");
    step("mu1_alfa2", "0.8 * (60 - alfa2) / 30", "0.8 * (60 - 40) / 30", 0.5333333333333333,
         quantities::coefficient, "30 < alfa2 <= 60");
    section("5  Carico sulla copertura");
    for (const char* name : {"a", "b", "c", "d"})
        step((std::string("qs_2") + name).c_str(), "mu1_alfa1 * qsk", "0.8 * 1.539816258453085",
             1.231853006762468, quantities::area_load);
    section("6  Neve sporgente");
    for (const char* name : {"a", "b", "c", "d"}) {
        const std::string at = std::string("_qs_2") + name;
        const std::string d = "d" + at, k = "k" + at, load = "qs_2" + std::string(name);
        step(d.c_str(), (load + " / 3").c_str(), "1.231853006762468 / 3", 0.4106176689208227,
             quantities::length);
        step(k.c_str(), ("min(3 / " + d + ", 3 * " + d + ")").c_str(),
             "min(3 / 0.4106176689208227, 3 * 0.4106176689208227)", 1.231853006762468,
             quantities::coefficient, "", ("3 * " + d).c_str());
        step((std::string("qe_2") + name).c_str(), (k + " * " + load + "^2 / 3").c_str(),
             "1.231853006762468 * 1.231853006762468^2 / 3", 0.6230882, quantities::line_load, "", "",
             "Circ. 4 luglio 1996");
    }
    ProgramCells loads;
    loads.qs_2a = 1.2319;
    loads.qs_2b = 0.6159;
    loads.qs_2c = 0.8213;
    loads.qs_2d = 0.4106;
    document.blocks.emplace_back(
        Figure{sketch({.kind = Kind::two_pitches, .alfa1 = 20, .alfa2 = 40}, &loads),
               {{"carico_2", "1,2319"}, {"carico_3", "0,8213"}, {"carico_4", "0,6159"}, {"spor_2", "0,623"}},
               "Fig. 1 — due falde, schema in scala; qs riferito alla proiezione orizzontale"});
    return document;
}

/// An illustrated report of some 120 blocks, lines and rows, with what is hard to set: long names, a formula
/// that no line holds, a table that no page holds, lines to write on.
inline Document sample_report() {
    Document document;
    const std::string work =
        "Ampliamento della scuola primaria «Giovanni XXIII» con nuova palestra, mensa e sistemazioni "
        "esterne, "
        "lotto 2 — Comune di San Giovanni Rotondo";
    document.title = work + " — Azione della neve sulla copertura — due falde";
    document.page_header = document.title + " — Elaborato R.07 rev. 3";
    document.page_footer = "Coltre 1.0.0 (build 0eb555fd) — 31/03/2024";
    auto& blocks = document.blocks;
    const auto section = [&blocks](const char* text) { blocks.emplace_back(Heading{2, text}); };
    blocks.emplace_back(Heading{1, "Relazione di calcolo — Azione della neve"});
    blocks.emplace_back(Table{{ColumnAlign::left, ColumnAlign::left},
                              {},
                              {{plain("Lavoro"), plain(work)},
                               {plain("Committente"), {{"Committente", Style::blank}}},
                               {plain("Data"), plain("31/03/2024")}}});
    section("0  Sintesi");
    blocks.emplace_back(Paragraph{
        {{"Carico massimo ", Style::plain},
         {"1,2319", Style::strong},
         {" kN/m² sulla falda 1, disposizioni I e III; ", Style::plain},
         {"governa 3 · d", Style::emphasis},
         {". Il carico agisce in direzione verticale ed è riferito alla proiezione orizzontale della "
          "copertura. Non è considerata la neve che scivola dalla copertura superiore.",
          Style::plain}}});
    for (Block& block : sample_steps().blocks)
        blocks.push_back(std::move(block));
    std::string sum = "qs_2a", numbers = "1.231853006762468";
    for (int i = 1; i < 12; ++i) {
        sum += " + qs_2" + std::string(1, static_cast<char>('a' + i));
        numbers += " + 1.231853006762468";
    }
    blocks.emplace_back(step_line({"qs_tot", sum, numbers, 14.782236081149616, Fault::none,
                                   "0 <= alfa1 <= 30 and 30 < alfa2 <= 60", "", "qs_2a",
                                   quantities::area_load, "Circ. 4 luglio 1996, C.6.4"}));
    section("7  Sensibilità");
    Table rows{{ColumnAlign::left, ColumnAlign::right, ColumnAlign::right},
               {plain("Se cambia"), plain("carico massimo [kN/m²]"), plain("variazione")},
               {}};
    for (int i = 1; i <= 40; ++i)
        rows.rows.push_back({plain("altitudine " + std::to_string(200 + 10 * i) + " m"),
                             {{"1," + std::to_string(200 + i), i == 40 ? Style::strong : Style::plain}},
                             plain("+" + std::to_string(i) + ",0 %")});
    blocks.emplace_back(std::move(rows));
    section("8  Codice di calcolo");
    for (int i = 0; i < 12; ++i)
        blocks.emplace_back(Paragraph{plain(
            "Tipo di elaborazione: formule in forma chiusa, in doppia precisione, senza arrotondamenti "
            "intermedi. Campo d'impiego: carico neve sulle coperture secondo i testi citati, per altitudini "
            "fino a 1500 m. Ogni formula è riportata con i numeri e il risultato.")});
    section("9  Dati per la riproduzione");
    blocks.emplace_back(Paragraph{{{"La richiesta dà gli stessi risultati con ", Style::plain},
                                   {"coltre-calcolo lotto FILE", Style::code},
                                   {".", Style::note}}});
    blocks.emplace_back(CodeBlock{
        R"({"calcolo": "due-falde", "provincia": "Torino", "comune": "Torino", "as": "239", "ce": "1.0", )"
        R"("ct": "1", "alfa1": "20", "alfa2": "40", "lavoro": ")" +
        work + "\"}"});
    blocks.emplace_back(Paragraph{{{"Il progettista ", Style::plain}, {"", Style::blank}}});
    return document;
}

}  // namespace coltre
