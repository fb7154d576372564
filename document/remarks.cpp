#include "document/remarks.h"

#include <cmath>
#include <numbers>

#include "document/formula_text.h"

namespace coltre {

namespace {

using namespace results;

std::string printed(double value, const Quantity& quantity) {
    return with_unit(value_text(value, quantity), quantity.unit);
}

/// A negative pitch leaves a coefficient as it was: deliberate, no error, but nothing to build on.
void remark_on_negative_pitches(const Subject& subject, std::vector<std::string>& remarks) {
    for (const Step& step : subject.trace().steps) {
        if (!step.symbol.starts_with("mu") || !step.condition.ends_with(" < 0") || !step.value) continue;
        const std::string pitch(step.condition.substr(0, step.condition.find(' ')));
        remarks.push_back(plain_text(symbol_text(pitch)) + " è negativa: le formule non la prevedono. " +
                          plain_text(symbol_text(step.symbol)) +
                          " conserva il valore che il coefficiente aveva prima, " +
                          value_text(*step.value, coefficient) +
                          " (0 se non era mai stato calcolato), e i carichi che ne seguono non dipendono "
                          "dall'inclinazione scritta: verificare il dato.");
    }
}

void remark_on_springing(const Subject& subject, std::vector<std::string>& remarks) {
    const auto width = subject.computed(L1);
    if (!width) return;
    const Entries& entries = subject.outcome.entries;
    const double slope = 2 * std::atan(2 * entries.H / entries.L) * 180 / std::numbers::pi;
    const std::string start = "Pendenza all'imposta " + fixed_text(slope, 1) + "°: ";
    remarks.push_back(
        *width > entries.L
            ? start +
                  "l'arco è ovunque meno inclinato di 60°, la zona caricata comprende tutta la "
                  "copertura; L1 è il valore della formula."
            : start +
                  "presso le imposte l'arco è inclinato di 60° o più; la zona caricata, larga L1, "
                  "non le comprende.");
}

void remark_on_limits(const Subject& subject, std::vector<std::string>& remarks) {
    const Step* const mu = subject.step("mu_w");
    if (mu != nullptr && mu->governs.starts_with("mu_w_"))
        remarks.emplace_back("I limiti 0,8 ≤ µ2 ≤ 4,0 non intervengono.");
}

void remark_on_drift(const Subject& subject, std::vector<std::string>& remarks) {
    const auto qs2 = subject.computed(level_qs2);
    const Step* const qs1 = subject.step("qs1_intero");
    if (!qs2 || qs1 == nullptr || !qs1->value) return;
    const double height = *qs2 / 2;  // snow of 2 kN/m3
    const double h = subject.outcome.entries.h;
    const bool equal = std::abs(height - h) <= 1e-9 * std::abs(h);
    remarks.push_back("Altezza media della neve al gradino qs2/2 = " + printed(height, length) +
                      (equal        ? ", pari al dislivello h."
                       : height < h ? ", minore del dislivello h = " + printed(h, length) + "."
                                    : ", maggiore del dislivello h = " + printed(h, length) + "."));
    remarks.push_back(
        "Confrontare con la distribuzione senza discontinuità sulla copertura inferiore: per una falda "
        "inclinata al più di 30° è uniforme, qs = 0,8 · qsk = " +
        printed(*qs1->value, area_load) + ".");
}

void remark_on_force(const Subject& subject, std::vector<std::string>& remarks) {
    if (!subject.computed(Fs)) return;
    const Entries& entries = subject.outcome.entries;
    std::string source = "qs è scritto dal progettista: " + printed(entries.qs, area_load);
    if (subject.last_roof_load) {
        const std::string last = printed(*subject.last_roof_load, area_load);
        source += "; l'ultimo carico massimo calcolato in questa sessione per una copertura è " + last +
                  (last == printed(entries.qs, area_load) ? ": coincide" : ": differisce");
    }
    remarks.push_back(source + ".");
    if (!(entries.alfa > 0 && entries.alfa < 90)) return;
    const double cosine = std::cos(entries.alfa * std::numbers::pi / 180);
    remarks.push_back("b è la distanza in pianta: con la lunghezza di falda, " + fixed_text(entries.b, 2) +
                      "/cos " + number_text(entries.alfa) + "° = " + printed(entries.b / cosine, length) +
                      ", si otterrebbe il " + fixed_text(100 * (1 / cosine - 1), 1) + " % in più.");
}

}  // namespace

Remarks remarks_on(const Subject& subject) {
    Remarks remarks;
    remark_on_negative_pitches(subject, remarks.on_coefficients);
    switch (subject.fields.kind) {
        case Kind::one_pitch:
        case Kind::two_pitches:
            break;
        case Kind::several_pitches:
            remarks.on_loads.emplace_back(
                "Condizione aggiuntiva: va affiancata alle disposizioni delle due falde. L'andamento è "
                "lineare tra colmo e compluvio. La neve sporgente non si calcola per questo tipo.");
            break;
        case Kind::cylindrical:
            remark_on_springing(subject, remarks.on_coefficients);
            break;
        case Kind::level_change:
            remark_on_limits(subject, remarks.on_coefficients);
            remark_on_drift(subject, remarks.on_loads);
            break;
        case Kind::wall:
            if (subject.computed(wall_ls))
                remarks.on_length.emplace_back(
                    "Nessun confronto con la larghezza della copertura: verificare che ls vi stia.");
            break;
        case Kind::snow_guard:
            remark_on_force(subject, remarks.on_loads);
            break;
    }
    return remarks;
}

}  // namespace coltre
