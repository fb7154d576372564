// How long the illustrated report takes as PDF, beside a plain text of as many characters that the same
// library puts on pages, and the window of the steps to show those of the next calculation. On the offscreen
// platform.

#include <QApplication>
#include <QBuffer>
#include <QPageSize>
#include <QPdfWriter>
#include <QTextBrowser>
#include <QTextDocument>
#include <algorithm>
#include <vector>

#include "bench/action_time.h"
#include "bench/figure.h"
#include "calculate/Calcola.h"
#include "document/html.h"
#include "document/illustrated_report.h"
#include "tests/support/sample_document.h"
#include "ui/document_copy.h"
#include "ui/document_pdf.h"
#include "ui/steps_window.h"

namespace {

using namespace coltre;

constexpr double at_most_of_plain_text = 4;
constexpr double steps_at_most_ms = 5;
constexpr double html_at_most_ms = 3;

void print_plain_text(const QString& text) {
    QTextDocument document;
    document.setPlainText(text);
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    QPdfWriter writer(&buffer);
    writer.setPageSize(QPageSize(QPageSize::A4));
    document.print(&writer);
}

double median(std::vector<double>& times) {
    std::ranges::nth_element(times, times.begin() + static_cast<std::ptrdiff_t>(times.size() / 2));
    return times[times.size() / 2];
}

void measure_pdf() {
    const Document report = sample_report();
    const QString text = copied_text(report);
    constexpr int runs = 21;
    std::vector<double> pages, plain_text;
    for (int i = 0; i < runs; ++i) {
        pages.push_back(time_of([&] { static_cast<void>(to_pdf(report)); }));
        plain_text.push_back(time_of([&] { print_plain_text(text); }));
    }
    print({"illustrated report as PDF", "ms", median(pages), median(plain_text), at_most_of_plain_text});
}

/// The whole document of a roof of two pitches, from its calculation to its bytes.
void measure_html() {
    Program program;
    Subject subject;
    subject.fields = {.asinput = "239",
                      .ComboEsp = "1.0",
                      .TextCTermico = "1.0",
                      .kind = Kind::two_pitches,
                      .entries = {"20", "40"},
                      .traced = true};
    subject.outcome = Calcola(subject.fields, program);
    constexpr int runs = 101;
    std::vector<double> times;
    for (int i = 0; i < runs; ++i)
        times.push_back(
            time_of([&] { static_cast<void>(to_html(illustrated_report(subject, {}, Layout::complete))); }));
    print({"illustrated report as HTML", "ms", median(times), std::nullopt, html_at_most_ms});
}

void measure_steps() {
    const Document steps = sample_steps();
    StepsWindow window;
    window.show();
    window.show_document(steps);  // loads the fonts
    QApplication::processEvents();
    auto* const page = window.findChild<QTextBrowser*>("passaggi")->viewport();
    const double slowest = slowest_time_of([&] {
        window.show_document(steps);
        page->repaint();
    });
    print({"steps shown anew, slowest", "ms", slowest, std::nullopt, steps_at_most_ms});
}

}  // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_LOGGING_RULES", "*.warning=false");  // what this platform cannot do
    QApplication application(argc, argv);
    measure_html();
    measure_pdf();
    measure_steps();
    return 0;
}
