#include "ui/steps_window.h"

#include <QEvent>
#include <QMimeData>
#include <QScrollBar>

#include "ui/clipboard.h"
#include "ui/document_copy.h"
#include "ui/document_text.h"
#include "ui/qt_text.h"
#include "ui/window_setup.h"
#include "ui_steps_window.h"

namespace coltre {

namespace {

constexpr int least_width_for_figure_beside = 1100;  // pixels of the window

double line_width(const QTextBrowser& page) {
    constexpr double document_margin = 4;
    return page.viewport()->width() - 2 * document_margin;
}

/// A document with its figures apart.
struct FiguresApart {
    Document steps, figures;
};

FiguresApart apart(const Document& document) {
    FiguresApart parts;
    for (const Block& block : document.blocks)
        (std::holds_alternative<Figure>(block) ? parts.figures : parts.steps).blocks.push_back(block);
    return parts;
}

}  // namespace

StepsWindow::StepsWindow(QWidget* parent)
    : QDialog(parent, Qt::Window), m_ui(std::make_unique<Ui::StepsWindow>()) {
    m_ui->setupUi(this);
    m_ui->passaggi->setPlainText(qt(no_calculation_yet));
    for (const QTextBrowser* page : {m_ui->passaggi, m_ui->figura})
        page->viewport()->installEventFilter(this);
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
    const FiguresApart parts = apart(*m_document);
    const bool beside = width() >= least_width_for_figure_beside && !parts.figures.blocks.empty();
    m_ui->figura->setVisible(beside);
    layout()->activate();  // the text is as wide as the figure leaves it
    m_drawn_widths = line_widths();
    QScrollBar* const bar = m_ui->passaggi->verticalScrollBar();
    const int height = bar->value();
    const auto draw = [&](const Document& document, QTextBrowser& page) {
        write_text(document, look, {.width = line_width(page), .dots = devicePixelRatioF()},
                   *page.document());
    };
    draw(beside ? parts.steps : *m_document, *m_ui->passaggi);
    if (beside) draw(parts.figures, *m_ui->figura);
    m_ui->passaggi->moveCursor(QTextCursor::Start);
    bar->setValue(height);
}

std::pair<double, double> StepsWindow::line_widths() const {
    return {line_width(*m_ui->passaggi), line_width(*m_ui->figura)};
}

void StepsWindow::follow_widths() {
    if (m_drawn_widths != line_widths()) redraw();
}

bool StepsWindow::eventFilter(QObject* object, QEvent* event) {
    // Later, not now: the page is in the middle of laying out what would be written anew.
    if (event->type() == QEvent::Resize)
        QMetaObject::invokeMethod(this, &StepsWindow::follow_widths, Qt::QueuedConnection);
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
