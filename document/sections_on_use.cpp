#include <algorithm>
#include <array>
#include <cmath>

#include "document/formula_text.h"
#include "document/independent_check.h"
#include "document/sections.h"
#include "document/sensitivity.h"
#include "report/formatta_cond.h"
#include "report/unit_systems.h"
#include "version/maker.h"

namespace coltre {

namespace {

using namespace results;

/// The units of a system, and the decimals that a conversion's shift leaves.
struct UnitColumn {
    UnitSystem system;
    std::string_view heading, area, line;
};
constexpr std::array<UnitColumn, 3> unit_columns{
    {{1, "kN, m", "kN/m²", "kN/m"}, {2, "kgf, m", "kgf/m²", "kgf/m"}, {3, "kgf, cm", "kgf/cm²", "kgf/cm"}}};

std::string converted(double value, const Quantity& quantity, const UnitColumn& column) {
    const bool area = quantity.unit == area_load.unit;
    const ConversionDirectives conversion = conversion_directives(column.system);
    const std::string_view directive = area ? conversion.area_load : conversion.line_load;
    std::int16_t shift = 0;
    Messages messages;  // the directives are the program's own
    if (!directive.empty()) static_cast<void>(converti_unita(value, directive, shift, messages));
    const std::string_view unit = area ? column.area : column.line;
    return with_unit(value_text(value, {unit, quantity.decimals + shift}), unit);
}

std::string percent(double part) {
    return fixed_text(100 * part, 2) + " %";
}

void write_independent_check(Composer& write, const Subject& subject) {
    const std::vector<IndependentCheck> checks = independent_checks(subject);
    if (checks.empty()) return;
    constexpr double usual = 0.001;  // of numbers of four digits
    const double most = std::ranges::max(checks, {}, &IndependentCheck::deviation).deviation;
    write.paragraph(
        "Controllo indipendente: ogni risultato rifatto con la stessa formula e con i soli valori "
        "arrotondati stampati in questa relazione. Scarto massimo " +
        percent(most) +
        (most <= usual ? ", non superiore allo 0,1 %."
                       : ", superiore allo 0,1 %: valori piccoli, di cui restano poche cifre stampate."));
    Table rows{{ColumnAlign::left, ColumnAlign::left, ColumnAlign::right, ColumnAlign::right},
               {plain("Grandezza"), plain("Con i valori stampati"), plain("Risultato"), plain("Scarto")},
               {}};
    for (const IndependentCheck& check : checks)
        rows.rows.push_back(
            {symbol_text(check.symbol), formula_text(check.numbers),
             plain(with_unit(value_text(check.recomputed, check.quantity), check.quantity.unit)),
             plain(percent(check.deviation))});
    write.table(std::move(rows));
}

}  // namespace

void write_sensitivity(Composer& write, const Subject& subject) {
    const auto now = worst_load(subject.fields.kind, subject.outcome.calculation);
    if (!now) return;
    // A coefficient that an earlier calculation left is not among the inputs.
    const LoadInputs inputs = subject.load_inputs();
    if (worst_load(inputs) != now->value) return;
    const LoadName load = greatest_load_name(subject.fields.kind);
    write.section("Sensibilità");
    write.paragraph((load.symbol == "Fs" ? "La forza Fs è " : "Il carico massimo è ") +
                    with_unit(value_text(now->value, load.quantity), load.quantity.unit) +
                    ". Se cambia un solo dato:");
    write.table(variation_table(inputs));
}

void write_unit_systems(Composer& write, const Subject& subject) {
    Table rows{{ColumnAlign::left, ColumnAlign::right, ColumnAlign::right, ColumnAlign::right},
               {plain("Grandezza")},
               {}};
    for (const UnitColumn& column : unit_columns)
        rows.header.push_back(plain(column.heading));
    const auto row = [&rows](std::string_view symbol, double value, const Quantity& quantity) {
        std::vector<Pieces> cells{symbol_text(symbol)};
        for (const UnitColumn& column : unit_columns)
            cells.push_back(plain(converted(value, quantity, column)));
        rows.rows.push_back(std::move(cells));
    };
    if (subject.outcome.qsk && subject.calculation().needs_ground_load)
        row("qsk", *subject.outcome.qsk, area_load);
    for (const Result& result : subject.outcome.calculation.results) {
        const Quantity& quantity = result.cell->quantity;
        if (quantity.unit == area_load.unit || quantity.unit == line_load.unit)
            row(result.cell->name, result.value, quantity);
    }
    if (rows.rows.empty()) return;
    write.section("Unità di misura");
    write.table(std::move(rows));
    write.note("Carichi per unità di superficie e per unità di lunghezza, dai valori non arrotondati.");
}

void write_program(Composer& write, const Subject& subject) {
    write.section("Codice di calcolo");
    write.paragraph("Titolo, versione e build: " + subject.program + ".");
    std::string maker;
    for (const std::string_view line : maker_lines)
        maker.append(maker.empty() ? "" : ", ").append(line);
    write.paragraph("Produttore e distributore: " + maker + ".");
    write.paragraph("Licenza e condizioni d'uso: " + std::string(program_terms));
    write.paragraph(
        "Tipo di elaborazione: formule in forma chiusa, in doppia precisione, senza arrotondamenti "
        "intermedi. Campo "
        "d'impiego: carico neve sulle coperture secondo i testi citati, per altitudini fino a 1500 m.");
    write.paragraph(
        Pieces{{"Casi di prova: i casi svolti per esteso senza il programma, con i dati per ripeterli, "
                "sono nel documento casi-di-prova, accanto al manuale (menu Strumenti, o comando "
                "coltre-calcolo prova); riprodotti il ",
                Style::plain},
               {"", Style::blank},
               {" con esito ", Style::plain},
               {"", Style::blank}});
    write_independent_check(write, subject);
    write.paragraph(
        Pieces{{"Giudizio motivato di accettabilità dei risultati (a cura del progettista): ", Style::plain},
               {"", Style::blank}});
}

void write_reproduction(Composer& write, const Subject& subject) {
    if (subject.request.empty()) return;
    write.section("Dati per la riproduzione");
    const auto& data = subject.trace().data;
    const auto left_over = std::ranges::find_if(
        data, [](const Datum& datum) { return datum.symbol.ends_with("_precedente") && datum.value != 0; });
    write.paragraph(
        Pieces{{"La richiesta che segue, in un file di una riga, ", Style::plain},
               {left_over == data.end() ? "dà gli stessi risultati" : "ripete il calcolo", Style::plain},
               {" con ", Style::plain},
               {"coltre-calcolo lotto FILE", Style::code},
               {".", Style::plain}});
    // Deliberate: a request begins with fresh coefficients.
    if (left_over != data.end())
        write.paragraph(Pieces{{"Non dà gli stessi risultati: " + plain_text(symbol_text(left_over->symbol)) +
                                    " = " + number_text(left_over->value) +
                                    " viene da un calcolo precedente della stessa sessione, che la richiesta "
                                    "non riporta; il comando prende 0.",
                                Style::emphasis}});
    write.code(subject.request);
}

void write_signature(Composer& write) {
    const auto line = [&write](std::string what, std::string behind) {
        write.paragraph(
            Pieces{{std::move(what), Style::plain}, {"", Style::blank}, {std::move(behind), Style::plain}});
    };
    line("Luogo e data ", "");
    line("Il progettista ", " (timbro e firma)");
}

}  // namespace coltre
