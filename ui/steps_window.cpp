#include "ui/steps_window.h"

#include <QEvent>
#include <QMimeData>
#include <QScrollBar>

#include "ui/clipboard.h"
#include "ui/document_copy.h"
#include "ui/document_text.h"
#include "ui/window_setup.h"
#include "ui_steps_window.h"

namespace coltre {

StepsWindow::StepsWindow(QWidget* parent)
    : QDialog(parent, Qt::Window), m_ui(std::make_unique<Ui::StepsWindow>()) {
    m_ui->setupUi(this);
    m_ui->passaggi->setPlainText(QString::fromUtf8(no_calculation_yet.data()));
    m_ui->passaggi->viewport()->installEventFilter(this);
    answer_mnemonics_at_once(*this);
    fit_to_screen(*this);
    connect(m_ui->copia_testo, &QPushButton::clicked, this, &StepsWindow::copy_as_text);
    connect(m_ui->copia_tabella, &QPushButton::clicked, this, &StepsWindow::copy_as_table);
    connect(m_ui->chiudi, &QPushButton::clicked, this, &StepsWindow::close);
}

StepsWindow::~StepsWindow() = default;

void StepsWindow::show_document(const Document& document) {
    m_document = document;
    m_ui->copia_testo->setEnabled(true);
    m_ui->copia_tabella->setEnabled(true);
    redraw();
}

void StepsWindow::redraw() {
    if (!m_document) return;
    const DocumentLook look{font(), palette().color(QPalette::Text), palette().color(QPalette::Base)};
    m_drawn_width = line_width();
    QScrollBar* const bar = m_ui->passaggi->verticalScrollBar();
    const int height = bar->value();
    write_text(*m_document, look, {.width = m_drawn_width, .dots = devicePixelRatioF()},
               *m_ui->passaggi->document());
    m_ui->passaggi->moveCursor(QTextCursor::Start);
    bar->setValue(height);
}

double StepsWindow::line_width() const {
    constexpr double document_margin = 4;
    return m_ui->passaggi->viewport()->width() - 2 * document_margin;
}

bool StepsWindow::eventFilter(QObject* object, QEvent* event) {
    if (event->type() == QEvent::Resize && m_drawn_width != line_width()) redraw();
    return QDialog::eventFilter(object, event);
}

void StepsWindow::changeEvent(QEvent* event) {
    if (event->type() == QEvent::PaletteChange || event->type() == QEvent::FontChange) redraw();
    QDialog::changeEvent(event);
}

void StepsWindow::copy_as_text() const {
    auto copied = std::make_unique<QMimeData>();
    copied->setText(copied_text(*m_document));
    if (!put_on_clipboard(std::move(copied))) emit clipboard_refused();
}

void StepsWindow::copy_as_table() const {
    const CopiedTable table = copied_table(*m_document);
    auto copied = std::make_unique<QMimeData>();
    copied->setText(table.text);
    copied->setHtml(table.html);
    if (!put_on_clipboard(std::move(copied))) emit clipboard_refused();
}

}  // namespace coltre
