#include "ui/calculation_tab.h"

#include <algorithm>
#include <limits>

#include "drawings/sketches.h"
#include "platform/environment.h"
#include "ui/qt_text.h"

namespace coltre {

namespace {

template <typename Control>
Control* find(QWidget& window, std::string_view name) {
    auto* const control = window.findChild<Control*>(qt(name));
    Q_ASSERT(control != nullptr);
    return control;
}

/// As the sketches write it: "α1".
std::string on_sketch(std::string_view symbol) {
    constexpr std::string_view alfa = "alfa";
    if (!symbol.starts_with(alfa)) return std::string(symbol);
    return "α" + std::string(symbol.substr(alfa.size()));
}

}  // namespace

CalculationTab::CalculationTab(Kind kind, QWidget& window, UserDialogs& dialogs)
    : m_description(describe(kind)), m_sketch(*find<SketchWidget>(window, m_description.sketch)) {
    for (const Entry& entry : m_description.entries) {
        auto* const field = find<NumberField>(window, entry.control);
        field->set_reading(entry.reading);
        connect(field, &QLineEdit::textChanged, this, &CalculationTab::typed);
        m_fields.push_back(field);
    }
    for (const ResultPlace& place : m_description.places)
        m_labels.push_back(find<ResultLabel>(window, place.label));

    m_sketch.setAccessibleName(QStringLiteral("Schizzo: %1").arg(qt(m_description.meaning)));
    m_sketch.set_suggested_name(qt(m_description.picture));
    m_sketch.report_error = [&dialogs](const QString& text) {
        dialogs.show({Icon::error, std::string(program_title), text.toStdString()});
    };
    for (ResultLabel* const label : m_sketch.findChildren<ResultLabel*>())
        m_sketch.host(label, label->objectName());
}

std::vector<std::string> CalculationTab::texts() const {
    std::vector<std::string> texts;
    for (const NumberField* field : m_fields)
        texts.push_back(field->utf8());
    return texts;
}

void CalculationTab::set_texts(const std::vector<std::string>& texts) {
    for (std::size_t i = 0; i < m_fields.size(); ++i)
        m_fields[i]->setText(qt(texts[i]));
}

std::vector<std::string> CalculationTab::notes(const Inputs& now) const {
    std::vector<std::string> notes;
    if (m_description.needs_ground_load) notes = now.site_notes;
    for (std::size_t i = 0; i < m_fields.size(); ++i)
        if (m_fields[i]->is_marked())
            notes.push_back(on_sketch(m_description.entries[i].symbol) + ' ' +
                            m_fields[i]->reading().toStdString());
    return notes;
}

void CalculationTab::follow(const Inputs& now) {
    const bool calculated = m_last && m_last->inputs == now;
    m_stale = m_last && !calculated;
    EntryReader reader;
    Entries entries = reader.entries(kind(), now.fields.entries, now.fields.decimal_separator);
    // Entries that are no numbers, or beyond all range, make no roof: the sketch says so by its neutral
    // shape.
    if (reader.stop())
        for (const Entry& entry : m_description.entries)
            entries.*entry.number = std::numeric_limits<double>::quiet_NaN();
    if (calculated) m_drift_length_shown = drift_lies_on_roof(entries, m_last->results);
    Drawing drawing = sketch(entries, calculated ? &m_last->results : nullptr, m_drift_length_shown);
    if (!calculated && m_sketch.shows_numbers()) mark_as_pending(drawing);
    add_notes(drawing, notes(now));
    m_sketch.set_drawing(std::move(drawing));
}

void CalculationTab::show_results(const Calculation& calculation, const ProgramCells& results,
                                  const Inputs& inputs) {
    for (std::size_t i = 0; i < m_labels.size(); ++i) {
        const ResultCell& result = *m_description.places[i].result;
        m_labels[i]->show_number(results.*result.cell, result.quantity.decimals);
    }
    m_last = {inputs, results, calculation};
    follow(inputs);
}

std::vector<ShownResult> CalculationTab::shown_results() const {
    if (!m_last) return {};
    std::vector<ShownResult> shown;
    if (m_description.needs_ground_load)
        shown.push_back(
            {QStringLiteral("Carico neve al suolo qsk"), m_last->results.qsk, quantities::area_load});
    for (std::size_t i = 0; i < m_labels.size(); ++i) {
        const ResultCell& cell = *m_description.places[i].result;
        const QString description = m_labels[i]->accessibleDescription();  // ends with ", in kN/m²"
        shown.push_back(
            {description.left(description.lastIndexOf(", in ")), m_last->results.*cell.cell, cell.quantity});
    }
    for (const auto& [cell, value] : m_last->calculation.results)
        if (std::ranges::find(m_description.places, cell, &ResultPlace::result) == m_description.places.end())
            shown.push_back({qt(cell->name), value, cell->quantity});
    return shown;
}

std::vector<std::unique_ptr<CalculationTab>> make_tabs(Window which, QWidget& window, UserDialogs& dialogs) {
    std::vector<std::unique_ptr<CalculationTab>> tabs;
    for (const Description& calculation : calculations())
        if (calculation.window == which)
            tabs.push_back(std::make_unique<CalculationTab>(calculation.kind, window, dialogs));
    return tabs;
}

}  // namespace coltre
