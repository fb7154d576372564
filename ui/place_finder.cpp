#include "ui/place_finder.h"

#include <QApplication>
#include <QKeyEvent>
#include <utility>

#include "platform/messages.h"
#include "ui/window_setup.h"
#include "ui_place_finder.h"

namespace coltre {

PlaceFinder::PlaceFinder(std::string ProgramDirectory, UserDialogs& dialogs, QWidget* parent)
    : QDialog(parent, Qt::Window),
      m_directory(std::move(ProgramDirectory)),
      m_dialogs(dialogs),
      m_ui(std::make_unique<Ui::PlaceFinder>()),
      m_model(new PlaceModel(this)) {
    m_ui->setupUi(this);
    m_ui->comuni->setModel(m_model);
    const int character = fontMetrics().averageCharWidth();
    const std::pair<int, int> widths[] = {{PlaceModel::name, 29},
                                          {PlaceModel::province, 18},
                                          {PlaceModel::zone, 22},
                                          {PlaceModel::altitude, 15},
                                          {PlaceModel::qsk, 13}};
    for (const auto& [column, characters] : widths)
        m_ui->comuni->setColumnWidth(column, characters * character);
    set_row_height(*m_ui->comuni);
    m_ui->comuni->installEventFilter(this);
    m_ui->cerca->installEventFilter(this);
    m_ui->avviso->hide();
    answer_mnemonics_at_once(*this);
    fit_to_screen(*this);

    connect(m_ui->cerca, &QLineEdit::textChanged, this, &PlaceFinder::search);
    connect(m_ui->comuni, &QTableView::doubleClicked, this, &PlaceFinder::choose);
    connect(m_ui->imposta, &QPushButton::clicked, this, &PlaceFinder::choose);
    connect(m_ui->segna, &QPushButton::clicked, this, &PlaceFinder::mark);
    // So that the next place can be searched for at once.
    connect(m_ui->segna, &QPushButton::clicked, m_ui->cerca, qOverload<>(&QWidget::setFocus));
    connect(m_ui->confronta, &QPushButton::clicked, this, &PlaceFinder::comparison_wanted);
    connect(m_ui->chiudi, &QPushButton::clicked, this, &PlaceFinder::close);
    connect(m_model, &PlaceModel::marks_changed, this, &PlaceFinder::show_marks);
    connect(m_model, &PlaceModel::marks_changed, this, &PlaceFinder::marks_changed);
    show_marks();
}

PlaceFinder::~PlaceFinder() = default;

void PlaceFinder::read_places() {
    const int row = current_row();
    auto [places, failure] = places_in_force(m_directory);
    m_model->set_places(std::move(places));
    m_ui->avviso->setVisible(failure.has_value());
    if (failure)
        m_ui->avviso->setText(
            QStringLiteral("Impossibile leggere il file altitudini.txt: %1. Le altitudini sono quelle "
                           "della tabella del programma.")
                .arg(QString::fromStdString(*failure)));
    show_hits();
    if (row > 0 && row < m_model->rowCount())
        m_ui->comuni->setCurrentIndex(m_model->index(row, PlaceModel::name));
}

void PlaceFinder::search() {
    m_model->search(m_ui->cerca->text().toStdString());
    show_hits();
}

void PlaceFinder::show_hits() {
    const int count = m_model->rowCount();
    m_ui->quanti->setText(count == 0   ? QStringLiteral("Nessun comune")
                          : count == 1 ? QStringLiteral("1 comune")
                                       : QStringLiteral("%1 comuni").arg(count));
    m_ui->imposta->setEnabled(count > 0);
    m_ui->segna->setEnabled(count > 0);
    if (count > 0) m_ui->comuni->setCurrentIndex(m_model->index(0, PlaceModel::name));
}

int PlaceFinder::current_row() const {
    return m_ui->comuni->currentIndex().row();
}

void PlaceFinder::choose() {
    const int row = current_row();
    if (row < 0) return;
    const Place& place = m_model->place(row);
    const std::string province(place.province), name = place.name;
    if (!place.selectable)
        return m_dialogs.show({Icon::warning, std::string(program_title),
                               "La provincia " + province +
                                   " non si legge dal file altitudini.txt.\rRiparare prima il file: menu "
                                   "Strumenti, «Verifica e ripara altitudini.txt»."});
    close();
    emit chosen(province, name);
}

void PlaceFinder::mark() {
    if (const int row = current_row(); row >= 0) m_model->toggle_mark(row);
}

void PlaceFinder::show_marks() {
    const std::size_t count = m_model->marked_places().size();
    m_ui->confronta->setEnabled(count > 0);
    m_ui->confronta->setText(count == 0 ? QStringLiteral("Con&fronta siti")
                                        : QStringLiteral("Con&fronta siti (%1)").arg(count));
}

bool PlaceFinder::eventFilter(QObject* object, QEvent* event) {
    if (event->type() != QEvent::KeyPress) return QDialog::eventFilter(object, event);
    const int key = static_cast<QKeyEvent*>(event)->key();
    if (object == m_ui->cerca && (key == Qt::Key_Down || key == Qt::Key_PageDown)) {
        m_ui->comuni->setFocus();
        QApplication::sendEvent(m_ui->comuni, event);
        return true;
    }
    if (object == m_ui->comuni && key == Qt::Key_Space) {
        mark();
        return true;
    }
    return QDialog::eventFilter(object, event);
}

void PlaceFinder::showEvent(QShowEvent* event) {
    read_places();
    m_ui->cerca->setFocus();
    m_ui->cerca->selectAll();
    QDialog::showEvent(event);
}

void PlaceFinder::changeEvent(QEvent* event) {
    if (event->type() == QEvent::ActivationChange && isActiveWindow()) read_places();
    QDialog::changeEvent(event);
}

}  // namespace coltre
