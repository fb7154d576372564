#include "document/illustrated_report.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>

#include "calculate/Calcola.h"
#include "document/formula_text.h"
#include "document/sensitivity.h"
#include "drawings/diagrams.h"
#include "drawings/sketches.h"
#include "engine/ground_load.h"
#include "report/formatta_cond.h"
#include "report/unit_systems.h"
#include "site/regions.h"
#include "text/characters.h"
#include "text/number_reading.h"

namespace coltre {

namespace {

using namespace results;

/// The chapters that the steps of a calculation fall into.
enum class Chapter { ground, coefficients, loads, further };

Chapter chapter_of(const Step& step) {
    const std::string& symbol = step.symbol;
    if (symbol == "q0" || symbol == "cT" || symbol == "qsk") return Chapter::ground;
    for (const std::string_view start : {"mu", "alfa", "R", "L1", "L2"})
        if (symbol.starts_with(start)) return Chapter::coefficients;
    for (const std::string_view start : {"d_", "k_", "qe_", "ls"})
        if (symbol.starts_with(start)) return Chapter::further;
    return Chapter::loads;
}

Pieces plain(std::string text) {
    return {{std::move(text), Style::plain}};
}

Pieces blank_if_empty(const std::string& text) {
    return text.empty() ? Pieces{{"", Style::blank}} : plain(text);
}

std::string zone_name(SnowZone zone) {
    const std::string caption(zone_caption(zone));
    return caption.substr(1, caption.size() - 2);
}

std::string with_unit(double value, const Quantity& quantity) {
    std::string text = fixed_text(value, quantity.decimals);
    if (!quantity.unit.empty()) text.append(" ").append(quantity.unit);
    return text;
}

/// What was typed and what was read of it, where the two are not the same; empty where they are.
std::string reading(const std::string& typed, double read) {
    if (read_leniently(typed).wholly_understood) return {};
    return " (scritto «" + typed + "», letto " + number_text(read) + ")";
}

bool is_roof(Kind kind) {
    return describe(kind).window == Window::main;
}

/// Writes the document, section by section.
class Writer {
  public:
    Writer(const Subject& subject, const TitleBlock& title_block)
        : m_subject(subject), m_title_block(title_block), m_calculation(describe(subject.fields.kind)) {
        for (const Result& result : subject.outcome.calculation.results)
            m_cells.*result.cell->cell = result.value;
        if (subject.outcome.qsk) m_cells.qsk = *subject.outcome.qsk;
        const std::string work = title_block.work.empty() ? "" : title_block.work + " — ";
        m_document.title = work + "Azione della neve sulla copertura — " + std::string(m_calculation.meaning);
        m_document.page_header = m_document.title;
        if (!title_block.sheet.empty()) m_document.page_header += " — Elaborato " + title_block.sheet;
        if (!title_block.revision.empty()) m_document.page_header += " rev. " + title_block.revision;
        m_document.page_footer = subject.program + " — " + title_block.date;
    }

    Document take() { return std::move(m_document); }

    /// Without a summary, which is section 0, the sections count from 1.
    void count_from_1() { m_section = 1; }
    void title();
    void summary();
    void references();
    void data();
    void steps(Chapter chapter, std::string_view heading);
    void ground_load_diagram();
    void shape_coefficient_diagram();
    void arrangements();
    void sketch_figure();
    void remarks();
    void sensitivity();
    void unit_systems();
    void program();
    void reproduction();
    void signature();
    void stop();

  private:
    void heading(int level, std::string text) {
        m_document.blocks.emplace_back(Heading{level, std::move(text)});
    }
    /// A section's heading, numbered as the sections come.
    void section(std::string_view text) {
        heading(2, std::to_string(m_section++) + "  " + std::string(text));
    }
    void paragraph(Pieces pieces) { m_document.blocks.emplace_back(Paragraph{std::move(pieces)}); }
    void note(std::string text) { paragraph({{std::move(text), Style::note}}); }
    void table(Table table) { m_document.blocks.emplace_back(std::move(table)); }
    void figure(Drawing drawing, std::map<std::string, std::string> labels, std::string_view caption) {
        m_document.blocks.emplace_back(
            Figure{std::move(drawing), std::move(labels),
                   "Fig. " + std::to_string(++m_figure) + " — " + std::string(caption)});
    }
    [[nodiscard]] const Trace& trace() const { return *m_subject.outcome.trace; }
    [[nodiscard]] const Entries& entries() const { return m_subject.outcome.entries; }
    [[nodiscard]] bool complete() const { return m_subject.outcome.complete; }
    [[nodiscard]] double value(const ResultCell& result) const { return m_cells.*result.cell; }
    [[nodiscard]] double datum(std::string_view symbol) const {
        const auto found = std::ranges::find(trace().data, symbol, &Datum::symbol);
        return found == trace().data.end() ? 0 : found->value;
    }
    [[nodiscard]] LoadInputs load_inputs() const {
        return {m_subject.zone, *m_subject.outcome.altitude, factor(), datum("CE"), datum("Ct"), entries()};
    }
    [[nodiscard]] double factor() const {
        const auto step = std::ranges::find(trace().steps, "cT", &Step::symbol);
        return step == trace().steps.end() ? 1 : step->value.value_or(1);
    }

    const Subject& m_subject;
    const TitleBlock& m_title_block;
    const Description& m_calculation;
    ProgramCells m_cells;  // the results
    Document m_document;
    int m_section = 0;
    int m_figure = 0;
};

void Writer::title() {
    heading(1, "Relazione di calcolo — Azione della neve");
    const TitleBlock& block = m_title_block;
    Table lines{{ColumnAlign::left, ColumnAlign::left}, {}, {}};
    const auto line = [&](std::string_view name, const std::string& text) {
        lines.rows.push_back({plain(std::string(name)), blank_if_empty(text)});
    };
    line("Lavoro", block.work);
    line("Committente", block.client);
    line("Ubicazione", block.place);
    line("Progettista", block.designer);
    line("Data", block.date);
    line("Elaborato, revisione",
         block.sheet + (block.sheet.empty() || block.revision.empty() ? "" : ", rev. ") + block.revision);
    table(std::move(lines));
}

void Writer::stop() {
    if (complete()) return;
    for (const Message& message : m_subject.outcome.messages) {
        std::string text = message.text;
        std::ranges::replace(text, '\r', ' ');
        paragraph({{text, Style::emphasis}});
    }
    note("I passaggi seguenti sono quelli compiuti prima dell'interruzione.");
}

void Writer::summary() {
    section("Sintesi");
    stop();
    Table rows{{ColumnAlign::left, ColumnAlign::right}, {plain("Grandezza"), plain("Valore")}, {}};
    const auto row = [&](std::string_view what, std::string value) {
        rows.rows.push_back({plain(std::string(what)), {{std::move(value), Style::strong}}});
    };
    if (m_subject.outcome.qsk && m_calculation.needs_ground_load)
        row("Carico neve al suolo qsk", with_unit(*m_subject.outcome.qsk, area_load));
    if (complete()) {
        const auto worst = worst_load(m_subject.outcome.calculation);
        row((is_roof(m_calculation.kind) ? "Carico massimo sulla copertura: " : "Carico massimo: ") +
                std::string(worst->cell->meaning),
            with_unit(worst->value, worst->cell->quantity));
        const ResultCell* worst_overhang = nullptr;
        for (const Result& result : m_subject.outcome.calculation.results) {
            if (std::ranges::find(overhang_loads, result.cell) == overhang_loads.end()) continue;
            if (worst_overhang == nullptr || result.value > value(*worst_overhang))
                worst_overhang = result.cell;
        }
        if (worst_overhang != nullptr)
            row("Carico massimo in gronda: " + std::string(worst_overhang->meaning),
                with_unit(value(*worst_overhang), line_load));
        for (const ResultCell* length : {&level_ls, &wall_ls})
            for (const Result& result : m_subject.outcome.calculation.results)
                if (result.cell == length)
                    row("Lunghezza di accumulo ls", with_unit(result.value, results::length));
    }
    if (!rows.rows.empty()) table(std::move(rows));

    // The limit that governed each quantity; the k of the overhang loads that agree are listed once.
    Pieces governed{{"Valori che governano: ", Style::plain}};
    std::vector<std::pair<std::string, std::string>> listed;
    for (const Step& step : trace().steps) {
        if (step.governs.empty()) continue;
        const bool overhang = step.symbol.starts_with("k_");
        const std::string limit =
            overhang ? (step.governs.starts_with("3 *") ? "3 * d" : "3 / d") : step.governs;
        const std::string symbol = overhang ? "k" : step.symbol;
        if (std::ranges::find(listed, std::pair{symbol, limit}) != listed.end()) continue;
        if (!listed.empty()) governed.push_back({"; ", Style::plain});
        listed.emplace_back(symbol, limit);
        std::ranges::copy(symbol_text(symbol), std::back_inserter(governed));
        governed.push_back({": ", Style::plain});
        std::ranges::copy(formula_text(limit), std::back_inserter(governed));
    }
    if (listed.empty()) governed = plain("Nessun limite è intervenuto.");
    paragraph(std::move(governed));
    if (m_calculation.kind != Kind::snow_guard)
        paragraph(
            plain("Il carico agisce in direzione verticale ed è riferito alla proiezione orizzontale della "
                  "copertura."));
}

void Writer::references() {
    section("Riferimenti e ipotesi");
    paragraph(
        plain("Formule applicate: D.M. 16 gennaio 1996 e circolare 4 luglio 1996, nella forma riportata per "
              "esteso nei paragrafi che seguono. Il progettista verifica che siano applicabili all'opera; la "
              "normativa vigente alla data della relazione può essere un'altra."));
    paragraph(plain(
        "Le formule del carico al suolo in funzione dell'altitudine hanno la forma che si trova anche nei "
        "decreti successivi, dove valgono per un periodo di ritorno di 50 anni. Il coefficiente del periodo "
        "di ritorno le moltiplica soltanto quando il progettista ha confermato un periodo."));
    if (m_calculation.kind == Kind::level_change)
        paragraph(plain("Non è considerata la neve che scivola dalla copertura superiore."));
    if (is_roof(m_calculation.kind))
        paragraph(plain("Nessun impedimento allo scivolamento della neve ai bordi della falda."));
    if (!m_calculation.needs_ground_load) return;
    if (!m_subject.outcome.qsk) return;
    const double CE = datum("CE");
    const double Ct = datum("Ct");
    if (Ct < 1) paragraph(plain("Ct = " + number_text(Ct) + " richiede uno studio specifico."));
    if (CE != 0.9 && CE != 1 && CE != 1.1)
        paragraph(plain("CE = " + number_text(CE) + " non è tra i valori della tabella (0,9; 1,0; 1,1)."));
}

void Writer::data() {
    section("Dati");
    Table rows{{ColumnAlign::left, ColumnAlign::left}, {}, {}};
    const auto row = [&](std::string what, std::string text) {
        rows.rows.push_back({plain(std::move(what)), plain(std::move(text))});
    };
    if (m_subject.municipality.empty()) {
        row("Sito", "comune non indicato");
    } else {
        row("Sito", m_subject.municipality + " (" + m_subject.province + ")");
    }
    row("Zona", zone_name(m_subject.zone) +
                    (m_subject.zone_of_province ? ", assegnata per provincia" : ", scelta dal progettista"));
    if (m_subject.outcome.altitude) {
        const double as = *m_subject.outcome.altitude;
        std::string altitude = number_text(as) + " m" + reading(m_subject.fields.asinput, as);
        if (!m_subject.listed_altitude.empty()) {
            const double listed = read_leniently(m_subject.listed_altitude).value;
            altitude +=
                listed == *m_subject.outcome.altitude
                    ? " (dall'elenco dei comuni)"
                    : " (modificata dal progettista; l'elenco dei comuni ha " + number_text(listed) + " m)";
        }
        row("Altitudine as", altitude);
    }
    for (const Datum& datum : trace().data) {
        if (datum.symbol == "CE")
            row("Coefficiente di esposizione CE",
                number_text(datum.value) + reading(datum.text, datum.value));
        if (datum.symbol == "Ct")
            row("Coefficiente termico Ct", number_text(datum.value) + reading(datum.text, datum.value));
    }
    row("Periodo di ritorno",
        m_subject.confirmed_return_period
            ? number_text(*m_subject.confirmed_return_period) + " anni, confermato, coefficiente " +
                  fixed_text(factor(), 4)
            : number_text(m_subject.return_period) + " anni, non confermato, coefficiente 1");
    std::size_t i = 0;
    for (const Entry& entry : m_calculation.entries) {
        const std::string& typed = m_subject.fields.entries[i++];
        const double number = entries().*entry.number;
        std::string text = number_text(number) + " " + std::string(entry.unit);
        if (entry.reading == Reading::lenient) text += reading(typed, number);
        row(plain_text(symbol_text(entry.symbol)) + " — " + std::string(entry.meaning), text);
    }
    table(std::move(rows));
}

void Writer::steps(Chapter chapter, std::string_view heading) {
    std::vector<FormulaLine> lines;
    std::string_view source;  // named once as long as it stays the same
    for (Step step : trace().steps) {
        if (chapter_of(step) != chapter) continue;
        if (step.source == source) {
            step.source = {};
        } else {
            source = step.source;
        }
        lines.push_back(step_line(step));
    }
    if (lines.empty()) return;
    section(heading);
    for (FormulaLine& line : lines)
        m_document.blocks.emplace_back(std::move(line));
}

void Writer::ground_load_diagram() {
    if (!m_subject.outcome.qsk || !m_calculation.needs_ground_load) return;
    if (*m_subject.outcome.altitude > highest_regulated_altitude) {
        LoadInputs at_limit = load_inputs();
        at_limit.altitude = highest_regulated_altitude;
        ProgramCells cells;
        cells.zone = at_limit.zone;
        cells.return_period_factor = at_limit.factor;
        set_base_load(cells, at_limit.altitude);
        apply_load_factors(cells, at_limit.CE, at_limit.Ct);
        paragraph(plain(
            "Oltre 1500 m valgono le condizioni locali di clima e di esposizione, con valori non inferiori "
            "a quelli previsti per 1500 m. Calcolo eseguito con l'altitudine scritta, " +
            number_text(*m_subject.outcome.altitude) +
            " m; a 1500 m sarebbe qsk = " + with_unit(cells.qsk, area_load) + "."));
    }
    figure(ground_load_over_altitude(m_subject.zone, factor(), datum("CE"), datum("Ct"),
                                     *m_subject.outcome.altitude),
           {}, "qsk in funzione dell'altitudine, " + zone_name(m_subject.zone) + "; il sito è segnato");
}

void Writer::shape_coefficient_diagram() {
    const Kind kind = m_calculation.kind;
    if (kind != Kind::one_pitch && kind != Kind::two_pitches && kind != Kind::several_pitches) return;
    figure(shape_coefficients_over_slope(entries()), {},
           "coefficienti di forma in funzione dell'inclinazione");
}

void Writer::arrangements() {
    if (m_calculation.kind != Kind::two_pitches || !complete()) return;
    struct Arrangement {
        std::string_view name;
        double side1, side2;
    };
    const std::array<Arrangement, 3> all{{{"I — entrambe le falde cariche", value(qs_2a), value(qs_2c)},
                                          {"II — falda 1 dimezzata", value(qs_2b), value(qs_2c)},
                                          {"III — falda 2 dimezzata", value(qs_2a), value(qs_2d)}}};
    const double most1 = std::max(value(qs_2a), value(qs_2b));
    const double most2 = std::max(value(qs_2c), value(qs_2d));
    const Arrangement* most_uneven = &all[0];
    Table rows{{ColumnAlign::left, ColumnAlign::right, ColumnAlign::right, ColumnAlign::right},
               {plain("Disposizione di carico"), plain("qs falda 1 [kN/m²]"), plain("qs falda 2 [kN/m²]"),
                plain("differenza [kN/m²]")},
               {}};
    const auto number = [](double value, bool worst) {
        return Pieces{{fixed_text(value, 4), worst ? Style::strong : Style::plain}};
    };
    for (const Arrangement& it : all) {
        const double difference = std::abs(it.side1 - it.side2);
        if (difference > std::abs(most_uneven->side1 - most_uneven->side2)) most_uneven = &it;
        rows.rows.push_back({plain(std::string(it.name)), number(it.side1, it.side1 == most1),
                             number(it.side2, it.side2 == most2), number(difference, false)});
    }
    table(std::move(rows));
    const std::string name(most_uneven->name);
    paragraph(
        plain("In grassetto il massimo su ciascuna falda. La massima differenza tra le falde si ha con la "
              "disposizione " +
              name.substr(0, name.find(' ')) + ": " +
              with_unit(std::abs(most_uneven->side1 - most_uneven->side2), area_load) + "."));
}

void Writer::sketch_figure() {
    if (!complete()) return;
    std::map<std::string, std::string> labels;
    for (const ResultPlace& place : m_calculation.places)
        labels[std::string(place.label)] = fixed_text(value(*place.result), place.result->quantity.decimals);
    if (m_calculation.kind == Kind::cylindrical) {
        labels["L1output"] = fixed_text(value(L1), 2);
        labels["L2output"] = fixed_text(value(L2), 2) + " [m]";
    }
    figure(sketch(entries(), &m_cells), std::move(labels),
           std::string(m_calculation.meaning) + ", schema in scala; qs riferito alla proiezione orizzontale");
}

void Writer::remarks() {
    const Entries& typed = entries();
    switch (m_calculation.kind) {
        case Kind::one_pitch:
            if (typed.alfa >= 60)
                paragraph(plain(
                    "µ1 = 0: la neve non resta sulla falda; qs = 0, qe non si calcola. Non è un errore di "
                    "calcolo."));
            break;
        case Kind::two_pitches:
            break;
        case Kind::several_pitches:
            paragraph(
                plain("Condizione aggiuntiva: va affiancata alle disposizioni delle due falde. L'andamento è "
                      "lineare tra colmo e compluvio. La neve sporgente non si calcola per questo tipo."));
            break;
        case Kind::cylindrical:
            if (complete() && value(L1) > typed.L) {
                const double slope = 2 * std::atan(2 * typed.H / typed.L) * 180 / std::numbers::pi;
                paragraph(
                    plain("Pendenza all'imposta " + fixed_text(slope, 1) +
                          "°: l'arco è ovunque meno inclinato di 60°, la zona caricata comprende tutta la "
                          "copertura; L1 è il valore della formula."));
            }
            break;
        case Kind::level_change:
            note(
                "<In corrisponenza di bruschi cambiamenti di quota delle coperture si considererà la "
                "distribuzione di "
                "carico più gravosa tra quelle indicate in assenza di discontinuità e quella qui riportata> "
                "(Circ. 4 "
                "luglio 96 - C.6.4)");
            break;
        case Kind::wall:
            paragraph(plain("Nessun confronto con la larghezza della copertura: verificare che ls vi stia."));
            break;
        case Kind::snow_guard:
            if (complete() && typed.alfa > 0 && typed.alfa < 90) {
                const double cosine = std::cos(typed.alfa * std::numbers::pi / 180);
                paragraph(plain("b è la distanza in pianta: con la lunghezza di falda, " +
                                fixed_text(typed.b / cosine, 2) + " m, si otterrebbe il " +
                                fixed_text(100 * (1 / cosine - 1), 1) + " % in più."));
            }
            note(
                "<La forza esercitata da una massa di neve contro una protezione viene calcolata "
                "nell'ipotesi che il "
                "coefficiente di attrito tra neve e manto sia nullo. La forza va considerata nella direzione "
                "dello "
                "slittamento per unità di lunghezza dell' ostacolo.> (Circ. 4 luglio 96 - C.6.6)");
            break;
    }
}

void Writer::sensitivity() {
    if (!complete()) return;
    const LoadInputs inputs = load_inputs();
    const auto now = worst_load(inputs);
    if (!now) return;
    section("Sensibilità");
    paragraph(plain("Il carico massimo è " +
                    with_unit(*now, m_calculation.needs_ground_load ? area_load : line_load) +
                    ". Se cambia un solo dato:"));
    table(variation_table(inputs));
}

void Writer::unit_systems() {
    if (!complete()) return;
    section("Unità di misura");
    Table rows{{ColumnAlign::left, ColumnAlign::right, ColumnAlign::right, ColumnAlign::right},
               {plain("Grandezza"), plain("kN, m"), plain("kgf, m"), plain("kgf, cm")},
               {}};
    const auto row = [&](Pieces name, double value, bool area) {
        std::vector<Pieces> cells{std::move(name)};
        for (const UnitSystem system : {UnitSystem{1}, UnitSystem{2}, UnitSystem{3}}) {
            const ConversionDirectives conversion = conversion_directives(system);
            const std::string_view directive = area ? conversion.area_load : conversion.line_load;
            double converted = value;
            std::int16_t shift = 0;
            Messages messages;  // the directives are the program's own
            if (!directive.empty()) static_cast<void>(converti_unita(converted, directive, shift, messages));
            cells.push_back(plain(number_text(converted)));
        }
        rows.rows.push_back(std::move(cells));
    };
    if (m_calculation.needs_ground_load) row(symbol_text("qsk"), *m_subject.outcome.qsk, true);
    for (const Result& result : m_subject.outcome.calculation.results) {
        const std::string_view unit = result.cell->quantity.unit;
        if (unit == area_load.unit || unit == line_load.unit)
            row(symbol_text(result.cell->name), result.value, unit == area_load.unit);
    }
    table(std::move(rows));
    note("Carichi per unità di superficie e per unità di lunghezza, dai valori non arrotondati.");
}

void Writer::program() {
    section("Codice di calcolo");
    paragraph(plain("Titolo, versione e build: " + m_subject.program + "."));
    paragraph(plain(
        "Tipo di elaborazione: formule in forma chiusa, in doppia precisione, senza arrotondamenti "
        "intermedi. Campo d'impiego: carico neve sulle coperture secondo i testi citati, per altitudini "
        "fino a 1500 m."));
    paragraph(plain(
        "Controllo indipendente: ogni formula è riportata con i numeri e il risultato, e si può rifare senza "
        "il programma."));
    paragraph({{"Giudizio motivato di accettabilità dei risultati (a cura del progettista): ", Style::plain},
               {"", Style::blank}});
}

void Writer::reproduction() {
    if (m_subject.request.empty()) return;
    section("Dati per la riproduzione");
    paragraph({{"La richiesta che segue, in un file di una riga, dà gli stessi risultati con ", Style::plain},
               {"coltre-calcolo lotto FILE", Style::code},
               {".", Style::plain}});
    m_document.blocks.emplace_back(CodeBlock{m_subject.request});
}

void Writer::signature() {
    paragraph({{"Luogo e data ", Style::plain}, {"", Style::blank}});
    paragraph({{"Il progettista ", Style::plain}, {"", Style::blank}});
}

std::string_view further_heading(Kind kind) {
    return is_roof(kind) ? "Neve sporgente" : "Lunghezza di accumulo";
}

}  // namespace

Document illustrated_report(const Subject& subject, const TitleBlock& title_block, Layout layout) {
    Writer write(subject, title_block);
    const Kind kind = subject.fields.kind;
    if (layout == Layout::steps_alone) {
        write.count_from_1();
        write.stop();
    } else {
        write.title();
        write.summary();
        if (layout == Layout::complete) write.references();
        write.data();
    }
    if (layout == Layout::brief) {
        write.arrangements();
        write.sketch_figure();
        write.signature();
        return write.take();
    }
    if (describe(kind).needs_ground_load) {
        write.steps(Chapter::ground, "Carico neve al suolo");
        if (layout == Layout::complete) write.ground_load_diagram();
    }
    write.steps(Chapter::coefficients,
                kind == Kind::cylindrical ? "Geometria e coefficienti di forma" : "Coefficienti di forma");
    if (layout == Layout::complete) write.shape_coefficient_diagram();
    write.steps(Chapter::loads, kind == Kind::snow_guard ? "Forza sull'ostacolo" : "Carico sulla copertura");
    write.arrangements();
    write.sketch_figure();
    write.remarks();
    write.steps(Chapter::further, further_heading(kind));
    if (layout == Layout::steps_alone) return write.take();
    write.sensitivity();
    write.unit_systems();
    write.program();
    write.reproduction();
    write.signature();
    return write.take();
}

Document steps_document(const Subject& subject) {
    return illustrated_report(subject, {}, Layout::steps_alone);
}

std::string suggested_file_name(const Subject& subject, const TitleBlock& title_block) {
    std::string name = "relazione-";
    if (!title_block.work.empty()) name += title_block.work + "-";
    name += describe(subject.fields.kind).name;
    // What file systems do not take, and what paths are made of.
    std::ranges::replace_if(
        name,
        [](char c) {
            return static_cast<unsigned char>(c) < ' ' ||
                   std::string_view("/\\:*?\"<>|").find(c) != std::string_view::npos;
        },
        '-');
    return name;
}

}  // namespace coltre
