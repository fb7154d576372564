#include <algorithm>
#include <map>
#include <tuple>

#include "calculate/return_period.h"
#include "document/formula_text.h"
#include "document/sections.h"
#include "engine/exposure.h"
#include "engine/ground_load.h"
#include "engine/special_loads.h"
#include "site/regions.h"
#include "text/number_reading.h"

namespace coltre {

namespace {

using namespace results;

/// What was typed, where something else was read of it.
std::string reading(const Datum& datum) {
    if (datum.text.empty() || read_leniently(datum.text).wholly_understood) return {};
    // A comma is read where the locale has it.
    std::string with_point = datum.text;
    std::ranges::replace(with_point, ',', '.');
    const LenientNumber number = read_leniently(with_point);
    if (number.wholly_understood && number.value == datum.value) return {};
    return " (scritto «" + datum.text + "», letto " + number_text(datum.value) + ")";
}

/// A number as it was typed, with so many decimals at least.
std::string with_decimals(double value, int decimals) {
    const std::string few = fixed_text(value, decimals);
    const std::string all = number_text(value);
    const std::size_t comma = all.find(',');
    const std::size_t shown = comma == std::string::npos ? 0 : all.size() - comma - 1;
    return shown > static_cast<std::size_t>(decimals) || all.find('e') != std::string::npos ? all : few;
}

/// Whether the text is a number that the calculation takes, were it to come so far.
bool is_usable(const std::string& typed, Reading reading, char decimal_separator) {
    if (reading == Reading::lenient) return !read_leniently(typed).beyond_range;
    return read_strictly(typed, decimal_separator).verdict == StrictNumber::Verdict::number;
}

/// The datum as the table of data prints it; of one that was never read what was typed.
std::string datum_text(const Subject& subject, std::string_view symbol, std::string_view unit, int decimals,
                       const std::string& typed, Reading how = Reading::lenient) {
    const Datum* const datum = subject.datum(symbol);
    if (datum == nullptr)
        return "scritto «" + typed + "», non letto" +
               (is_usable(typed, how, subject.fields.decimal_separator) ? ": calcolo già interrotto" : "");
    return with_unit(with_decimals(datum->value, decimals), unit) + reading(*datum);
}

std::string years(double Tr) {
    return number_text(Tr) + (Tr == 1 ? " anno" : " anni");
}

std::string exposure_text(double CE) {
    const auto row = std::ranges::find(exposures, CE, &Exposure::CE);
    if (row == exposures.end()) return ", non tra i valori della tabella";
    std::string text = " — " + std::string(row->topography) + ":";
    for (const std::string_view line : row->description)
        if (!line.empty()) text.append(" ").append(line);
    return text;
}

std::string return_period_text(const Subject& subject) {
    const double Tr = subject.return_period;
    const std::string& typed = subject.return_period_text;
    std::string text;
    if (!typed.empty() && read_leniently(typed).beyond_range) {
        text = "«" + typed + "», rifiutato: il numero è troppo grande";
    } else if (is_refused_return_period(Tr)) {
        text = years(Tr) + ", rifiutato: " +
               (Tr <= 1 ? "deve essere maggiore di 1" : "il coefficiente non si può calcolare");
    } else if (!subject.confirmed_return_period) {
        text = years(Tr) + ", non confermato";
    }
    if (subject.confirmed_return_period)
        text += (text.empty() ? "" : "; vale ") + years(*subject.confirmed_return_period) + ", confermato";
    const Step* const factor = subject.step("cT");
    if (factor == nullptr || !factor->value) return text;
    return text + ", coefficiente " + (subject.confirmed_return_period ? fixed_text(*factor->value, 4) : "1");
}

/// Where a load of two pitches acts.
std::string_view arrangements_of(const ResultCell* load) {
    if (load == &qs_2a) return " (disposizioni I e III)";
    if (load == &qs_2c) return " (disposizioni I e II)";
    return {};
}

/// The greatest load of the snow overhanging the eaves; null without one.
const Result* worst_overhang(const Subject& subject) {
    const Result* worst = nullptr;
    for (const Result& result : subject.outcome.calculation.results) {
        const bool overhang = std::ranges::find(overhang_loads, result.cell) != overhang_loads.end();
        if (overhang && (worst == nullptr || result.value > worst->value)) worst = &result;
    }
    return worst;
}

/// Whether the drift of a level change is cut at the end of the lower roof.
bool is_cut(const Subject& subject) {
    const Step* const whole = subject.step("ls_intero");
    return whole != nullptr && whole->value && drift_is_cut(*whole->value, subject.outcome.entries.b2);
}

/// The limits that governed, each with the quantities that it governed.
void write_governing(Composer& write, const Subject& subject) {
    std::vector<std::tuple<std::string, Pieces, Pieces>> limits;  // symbol, limit, of which loads
    for (const Step& step : subject.trace().steps) {
        if (step.governs.empty() || !step.value || step.governs.ends_with("_formula")) continue;
        const bool overhang = step.symbol.starts_with("k_");
        // The k of overhang loads that agree are listed once, for all their loads.
        Step shown = step;
        if (overhang) shown.governs = step.governs.starts_with("3 *") ? "3 * d" : "3 / d";
        const std::string symbol = overhang ? "k" : step.symbol;
        const Pieces limit = governing_text(shown);
        auto known = std::ranges::find_if(
            limits, [&](const auto& it) { return std::get<0>(it) == symbol && std::get<1>(it) == limit; });
        if (known == limits.end()) known = limits.insert(limits.end(), {symbol, limit, {}});
        if (!overhang) continue;
        Pieces& loads = std::get<2>(*known);
        loads.push_back({loads.empty() ? " per " : ", ", Style::plain});
        std::ranges::copy(symbol_text(step.symbol.substr(2)), std::back_inserter(loads));
    }
    if (limits.empty() && subject.outcome.complete) write.paragraph("Nessun limite è intervenuto.");
    if (limits.empty()) return;
    Pieces governed = plain("Valori che governano: ");
    for (const auto& [symbol, limit, loads] : limits) {
        if (governed.size() > 1) governed.push_back({"; ", Style::plain});
        for (const Pieces& pieces : {symbol_text(symbol), plain(": "), limit, loads})
            governed.insert(governed.end(), pieces.begin(), pieces.end());
    }
    governed.push_back({".", Style::plain});
    write.paragraph(std::move(governed));
}

}  // namespace

void write_title(Composer& write, const Subject& subject, const TitleBlock& block) {
    write.heading(1, "Relazione di calcolo — Azione della neve");
    Table lines{{ColumnAlign::left, ColumnAlign::left}, {}, {}};
    const auto filled = [](const std::string& text) {
        return text.empty() ? Piece{"", Style::blank} : Piece{text, Style::plain};
    };
    const auto line = [&](std::string_view name, const std::string& text) {
        lines.rows.push_back({plain(name), {filled(text)}});
    };
    line("Lavoro", block.work);
    line("Committente", block.client);
    line("Ubicazione", block.place.empty() ? subject.site() : block.place);
    line("Progettista", block.designer);
    line("Data", block.date);
    lines.rows.push_back({plain("Elaborato, revisione"),
                          {filled(block.sheet), {", rev. ", Style::plain}, filled(block.revision)}});
    write.table(std::move(lines));
}

void write_stop(Composer& write, const Subject& subject) {
    if (const Datum* const pitch = subject.steep_pitch()) {
        const std::string side = pitch->symbol.substr(std::string_view("alfa").size());
        write.paragraph(
            Pieces{{plain_text(symbol_text(pitch->symbol)) + " = " + number_text(pitch->value) +
                        "°, µ1 = 0: la neve non resta sulla falda" + (side.empty() ? "" : " " + side) +
                        "; qs = 0, qe non si calcola. Non è un errore di calcolo.",
                    Style::emphasis}});
        if (subject.outcome.calculation.end.cell == &qe_2a)
            write.paragraph(
                "Il programma termina a questo punto e non calcola i carichi della falda 2: ricavarli come "
                "copertura ad una falda.");
        return;
    }
    if (subject.outcome.fault == Fault::none) return;
    for (const Message& message : subject.outcome.messages) {
        std::string text = message.text;
        std::ranges::replace(text, '\r', ' ');
        write.paragraph(Pieces{{text, Style::emphasis}});
    }
    write.note(subject.trace().steps.empty()
                   ? "Il calcolo si è interrotto prima del primo passaggio: il documento riporta i soli dati."
                   : "Il calcolo è riportato fino al passaggio che non si è potuto eseguire.");
}

void write_summary(Composer& write, const Subject& subject) {
    write.section("Sintesi");
    write_stop(write, subject);
    Table rows{{ColumnAlign::left, ColumnAlign::right}, {plain("Grandezza"), plain("Valore")}, {}};
    const auto row = [&rows](std::string what, double value, const Quantity& quantity) {
        rows.rows.push_back(
            {plain(what), {{with_unit(value_text(value, quantity), quantity.unit), Style::strong}}});
    };
    const auto row_of = [&row](std::string_view before, const Result* result) {
        if (result != nullptr)
            row(std::string(before) + std::string(result->cell->meaning) +
                    std::string(arrangements_of(result->cell)),
                result->value, result->cell->quantity);
    };
    const std::string_view load = subject.is_roof() ? " sulla copertura: " : ": ";
    if (subject.outcome.qsk && subject.calculation().needs_ground_load)
        row("Carico neve al suolo qsk", *subject.outcome.qsk, area_load);
    const auto worst = worst_load(subject.fields.kind, subject.outcome.calculation);
    for (const Result& result : subject.outcome.calculation.results) {
        if (result.cell->quantity.unit != area_load.unit) continue;
        if (!worst) row_of(subject.is_roof() ? "Carico sulla copertura: " : "Calcolato: ", &result);
        if (worst && worst->cell == result.cell) row_of("Carico massimo" + std::string(load), &result);
    }
    row_of("Carico massimo in gronda: ", worst_overhang(subject));
    for (const ResultCell* drift : {&level_ls, &wall_ls})
        if (const auto value = subject.computed(*drift))
            row(std::string("Lunghezza di accumulo ls") + (is_cut(subject) ? ", tagliata al bordo" : ""),
                *value, drift->quantity);
    if (const auto force = subject.computed(Fs))
        row("Forza Fs sull'ostacolo, per unità di lunghezza", *force, Fs.quantity);
    write.table(std::move(rows));

    if (!subject.trace().steps.empty() && subject.fields.kind != Kind::snow_guard)
        write_governing(write, subject);
    write.paragraph(
        subject.fields.kind == Kind::snow_guard
            ? "La forza Fs agisce nella direzione dello slittamento, parallela alla falda, per unità di "
              "lunghezza dell'ostacolo."
            : "Il carico agisce in direzione verticale ed è riferito alla proiezione orizzontale della "
              "copertura.");
}

void write_references(Composer& write, const Subject& subject, bool formulas_follow) {
    write.section("Riferimenti e ipotesi");
    write.paragraph(
        "Formule applicate: D.M. 16 gennaio 1996 e circolare 4 luglio 1996" +
        std::string(formulas_follow ? ", nella forma riportata per esteso nei paragrafi che seguono" : "") +
        ". Il progettista verifica che siano applicabili all'opera; la normativa vigente alla data della "
        "relazione può essere un'altra.");
    if (subject.calculation().needs_ground_load)
        write.paragraph(
            "Le formule del carico al suolo in funzione dell'altitudine hanno la forma che si trova anche "
            "nei "
            "decreti successivi, dove valgono per un periodo di ritorno di 50 anni. Il coefficiente del "
            "periodo di "
            "ritorno le moltiplica soltanto quando il progettista ha confermato un periodo.");
    if (subject.fields.kind == Kind::level_change)
        write.paragraph("Non è considerata la neve che scivola dalla copertura superiore.");
    if (subject.is_roof())
        write.paragraph("Nessun impedimento allo scivolamento della neve ai bordi della falda.");
    if (!subject.calculation().needs_ground_load || !subject.outcome.qsk) return;
    const double CE = subject.datum("CE")->value;
    const double Ct = subject.datum("Ct")->value;
    if (Ct < 1) write.paragraph("Ct = " + number_text(Ct) + " richiede uno studio specifico.");
    if (std::ranges::find(exposures, CE, &Exposure::CE) == exposures.end())
        write.paragraph("CE = " + number_text(CE) + " non è tra i valori della tabella (0,9; 1,0; 1,1).");
}

void write_data(Composer& write, const Subject& subject) {
    write.section("Dati");
    Table rows{{ColumnAlign::left, ColumnAlign::left}, {}, {}};
    const auto row = [&rows](std::string_view what, std::string_view text) {
        rows.rows.push_back({plain(what), plain(text)});
    };
    const Fields& fields = subject.fields;
    row("Sito", subject.municipality.empty() ? "comune non indicato" : subject.site());
    // What plays no part in the results is left out, unless it has stopped the calculation.
    if (subject.calculation().needs_ground_load || !subject.outcome.qsk) {
        row("Zona",
            std::string(zone_name(subject.zone)) +
                (subject.zone_of_province ? ", assegnata per provincia" : ", scelta dal progettista"));
        std::string altitude = datum_text(subject, "as", "m", 0, fields.asinput);
        if (!subject.listed_altitude.empty() && subject.outcome.altitude) {
            const double listed = read_leniently(subject.listed_altitude).value;
            altitude +=
                listed == *subject.outcome.altitude
                    ? " (dall'elenco dei comuni)"
                    : " (modificata dal progettista; l'elenco dei comuni ha " + number_text(listed) + " m)";
        }
        row("Altitudine as", altitude);
        const Datum* const CE = subject.datum("CE");
        row("Coefficiente di esposizione CE", datum_text(subject, "CE", "", 1, fields.ComboEsp) +
                                                  (CE != nullptr ? exposure_text(CE->value) : ""));
        row("Coefficiente termico Ct", datum_text(subject, "Ct", "", 1, fields.TextCTermico));
        row("Periodo di ritorno Tr", return_period_text(subject));
    }
    std::size_t i = 0;
    for (const Entry& entry : subject.calculation().entries) {
        const int decimals = entry.unit == "°"              ? 0
                             : entry.unit == area_load.unit ? area_load.decimals
                                                            : length.decimals;
        row(plain_text(symbol_text(entry.symbol)) + " — " +
                std::string(entry.meaning.substr(0, entry.meaning.find(" ["))),
            datum_text(subject, entry.symbol, entry.unit, decimals, fields.entries[i++], entry.reading));
    }
    write.table(std::move(rows));
}

}  // namespace coltre
