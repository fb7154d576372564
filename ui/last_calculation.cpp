#include "ui/last_calculation.h"

#include "document/html.h"
#include "document/request_line.h"
#include "platform/date.h"
#include "ui/clipboard.h"
#include "ui/window_setup.h"
#include "version/version.h"

namespace coltre {

LastCalculation::LastCalculation(QWidget& main_window, UserDialogs& dialogs)
    : m_main_window(main_window), m_dialogs(dialogs) {
    m_choices.title_block.date = document_date().text;
}

void LastCalculation::keep(Subject subject) {
    subject.last_roof_load = m_last_roof_load;
    const auto load = worst_load(subject.fields.kind, subject.outcome.calculation);
    if (subject.is_roof() && load) m_last_roof_load = load->value;
    subject.program = "Coltre " + std::string(version_and_build());
    subject.request = request_line(subject);
    m_subject = std::move(subject);
    if (m_steps != nullptr) m_steps->show_document(steps_document(*m_subject));
}

void LastCalculation::show_steps() {
    if (m_steps == nullptr) {
        m_steps = new StepsWindow(&m_main_window);
        QObject::connect(m_steps, &StepsWindow::clipboard_refused, &m_main_window, [this] {
            m_dialogs.show({Icon::error, std::string(program_title), clipboard_refuses.toStdString()});
        });
        if (m_subject) m_steps->show_document(steps_document(*m_subject));
    }
    bring_to_front(*m_steps);
}

std::optional<Document> LastCalculation::report() const {
    if (!m_subject) return std::nullopt;
    return illustrated_report(*m_subject, m_choices.title_block, m_choices.layout);
}

void LastCalculation::write_report(QWidget* parent, const std::string& job_name) {
    std::optional<ReportSource> source;
    if (m_subject) {
        if (const Failure error = document_date().error) m_dialogs.show(no_document_date(*error));
        if (m_choices.title_block.work.empty()) m_choices.title_block.work = job_name;
        source = ReportSource{
            .document = [this](const TitleBlock& title_block,
                               Layout layout) { return illustrated_report(*m_subject, title_block, layout); },
            .html = to_html,
            .suggested_path =
                [this](const TitleBlock& title_block) {
                    return QString::fromStdString(suggested_file_name(*m_subject, title_block));
                },
            .site = QString::fromStdString(m_subject->site())};
    }
    ask_for_report(std::move(source), m_choices, m_dialogs, parent);
}

}  // namespace coltre
