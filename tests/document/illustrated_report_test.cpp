#include "document/illustrated_report.h"

#include <gmock/gmock.h>

#include "document/html.h"
#include "document/independent_check.h"
#include "document/sensitivity.h"
#include "tests/support/sample_document.h"

namespace coltre {
namespace {

using testing::HasSubstr;
using testing::Not;

std::string html(const Subject& subject, Layout layout = Layout::complete) {
    return to_html(illustrated_report(subject, {.work = "Scuola <A> & B", .date = "21/11/2026"}, layout));
}

/// One of each calculation, and what its document must say besides. Computed by hand from the rules.
TEST(IllustratedReport, TellsTheStepsAndWhatGovernedOfEachCalculation) {
    struct Case {
        Kind kind;
        std::vector<std::string> entries;
        std::vector<const char*> says;
    };
    for (const Case& c : {
             Case{Kind::one_pitch,
                  {"35"},
                  {"0,6667", "0,361 kN/m", "30 &lt; <i>α</i> = 35 ≤ 60", "ramo discendente", "(50) = 0,8056",
                   "Normale: Aree"}},
             Case{Kind::two_pitches,
                  {"20", "40"},
                  {"falda 1: I e III; per il massimo sulla falda 2: I e II; "
                   "massima differenza tra le falde: III (0,8212 kN/m²)",
                   "<td class=\"right\">2</td><td class=\"right\">0,2667</td><td class=\"right\">0,4106</td>"
                   "<td class=\"right\">0,023</td>",
                   "0,623 kN/m"}},
             Case{Kind::several_pitches, {"20", "40"}, {"2,4637 kN/m²", "nel compluvio"}},
             Case{Kind::cylindrical,
                  {"20", "4"},
                  {"14,5000", "43,6°", "3,0796 kN/m²", "9,239 kN/m", "2,2000", "limite superiore 2,0",
                   "qs ≥ 3 kN/m²)</em> per <i>q</i><sub>s,4c</sub>", "0,5µ3 a sinistra", ">6,28 m<"}},
             Case{Kind::level_change,
                  {"3", "4", "2", "10"},
                  {"1,5244", "1,75", "C.6.4", "2,5977", "(la larghezza delle coperture)", "taglio",
                   "limite inferiore 5 m", "qs2/2 = 1,35 m, minore",
                   "α = 15° (+ 5°)</td><td class=\"right\">2,6947"}},
             Case{Kind::wall,
                  {"2.30"},
                  {"3,0796 kN/m²", "verificare che ls vi stia", "2,9874", "h = 2,3 m",
                   "limite superiore 2,0"}},
             Case{Kind::snow_guard, {"1.2318", "5", "20"}, {"Forza Fs", "2,107", "5,32 m", "6,4 % in più"}},
         }) {
        const Subject subject = calculated(c.kind, c.entries);
        const std::string complete = html(subject);
        SCOPED_TRACE(std::string(describe(c.kind).name));
        for (const char* text : c.says)
            EXPECT_THAT(complete, HasSubstr(text));
        EXPECT_THAT(complete, HasSubstr("Scuola &lt;A&gt; &amp; B"));
        EXPECT_THAT(complete, HasSubstr("non superiore allo 0,1 %"));
        EXPECT_THAT(complete, HasSubstr("Elaborato ..... rev. .....</span></header>"));
        EXPECT_THAT(complete, HasSubstr("<td>Ubicazione</td><td>Torino (Torino)</td>"));
        for (const Step& step : subject.outcome.trace->steps)
            EXPECT_EQ(formula_value(step.numbers), FormulaReader(step.numbers, {}).formula()) << step.numbers;
        EXPECT_EQ(complete, html(calculated(c.kind, c.entries))) << "the same request gives the same bytes";
        EXPECT_LT(html(subject, Layout::brief).size(), complete.size());
    }
}

TEST(IllustratedReport, TellsAStopAndTheStepThatCouldNotBeComputed) {
    struct Case {
        Kind kind;
        std::vector<std::string> entries;
        const char* says;
        bool has_all_loads = false;
    };
    for (const Case& c :
         {Case{Kind::one_pitch, {"75"}, "non si può calcolare: divisione per zero", true},
          Case{Kind::two_pitches, {"20", "70"}, "α2 = 70°, µ1 = 0: la neve non resta sulla falda 2", true},
          Case{Kind::cylindrical, {"4", "3"}, "Dimensioni copertura non congruenti"},
          Case{Kind::several_pitches, {"-5", "1e400"}, "scritto «1e400», non letto<"},
          Case{Kind::two_pitches, {"1e400", "20"}, "scritto «20», non letto: calcolo già interrotto"},
          Case{Kind::two_pitches, {"70", "20"}, "non calcola i carichi della falda 2"},
          Case{Kind::two_pitches, {"-5", "20"}, "conserva il valore che il coefficiente aveva prima"},
          Case{Kind::wall, {"due"}, "non è un numero"}}) {
        const std::string text = html(calculated(c.kind, c.entries));
        SCOPED_TRACE(c.says);
        EXPECT_THAT(text, HasSubstr(c.says));
        for (const char* of_all_loads : {"Carico massimo sulla copertura", "Sensibilità"})
            EXPECT_EQ(text.find(of_all_loads) != std::string::npos, c.has_all_loads);
    }
}

TEST(IllustratedReport, SaysWhereItsRequestGivesOtherResults) {
    Subject subject = calculated(Kind::two_pitches, {"-5", "20"});
    EXPECT_THAT(html(subject), HasSubstr("dà gli stessi risultati con"));
    subject.outcome.trace->data.back() = {"mu1_precedente", 0.8, "", ""};
    EXPECT_THAT(html(subject), HasSubstr("Non dà gli stessi risultati: µ1,prec = 0,8 viene"));
}

TEST(IllustratedReport, TellsARefusedReturnPeriodAndAsksForItAgain) {
    Subject subject = calculated(Kind::one_pitch, {"15"});
    subject.return_period = 1;
    subject.request = request_line(subject);
    EXPECT_THAT(html(subject), HasSubstr("1 anno, rifiutato"));
    EXPECT_THAT(subject.request, HasSubstr(R"("periodo-ritorno": "1")"));
    subject.confirmed_return_period = 200;
    EXPECT_THAT(html(subject), HasSubstr("vale 200 anni, confermato"));
    EXPECT_THAT(request_line(subject), HasSubstr(R"("periodo-ritorno": "200")"));
}

// Two pitches of 20 and 40 degrees, the numbers of the calculation made anew with one input changed.
TEST(Sensitivity, ChangesOneInputAtATime) {
    const Subject subject = calculated(Kind::two_pitches, {"20", "40"});
    const LoadInputs inputs{0, 239, 1, 1, 1, subject.outcome.entries};
    std::map<std::string, double> loads;
    for (const Variation& variation : variations(inputs))
        loads[variation.what] = variation.load.value_or(-1);
    for (const auto& [what, load] : std::vector<std::pair<const char*, double>>{
             {"altitudine 289 m (+ 50 m)", 1.287},
             {"CE = 0,9", 1.109},
             {"periodo di ritorno di 50 anni confermato (0,8056)", 0.992},
             {"Zona I Mediterranea", 1.250},
         }) {
        ASSERT_TRUE(loads.contains(what)) << what;
        EXPECT_NEAR(loads[what], load, 0.0006) << what;
    }
}

}  // namespace
}  // namespace coltre
