#include "ui/table_window.h"

#include <algorithm>

#include "platform/environment.h"
#include "ui/clipboard.h"
#include "ui/document_copy.h"
#include "ui/file_choice.h"
#include "ui/sketch_export.h"
#include "ui/window_setup.h"
#include "ui_table_window.h"

namespace coltre {

namespace {

/// The table with the user's decimal separator in its numbers, which stand at the right.
Table localised(Table table) {
    for (auto& row : table.rows)
        for (std::size_t i = 0; i < row.size(); ++i)
            if (table.columns[i] == ColumnAlign::right)
                for (Piece& piece : row[i])
                    std::ranges::replace(piece.text, ',', user_decimal_separator());
    return table;
}

QString text_of(const Pieces& pieces) {
    return QString::fromStdString(plain_text(pieces));
}

}  // namespace

QByteArray to_csv(const Table& table) {
    const char separator = user_decimal_separator() == ',' ? ';' : ',';
    QString csv = QChar(QChar::ByteOrderMark);
    const auto add = [&](const std::vector<Pieces>& row) {
        for (std::size_t i = 0; i < row.size(); ++i) {
            QString cell = text_of(row[i]);
            if (cell.contains(separator) || cell.contains('"')) cell = '"' + cell.replace('"', "\"\"") + '"';
            csv += (i == 0 ? "" : QString(separator)) + cell;
        }
        csv += "\r\n";
    };
    add(table.header);
    for (const auto& row : localised(table).rows)
        add(row);
    return csv.toUtf8();
}

TableWindow::TableWindow(const QString& name, const QString& file_name, UserDialogs& dialogs, QWidget* parent)
    : QDialog(parent, Qt::Window),
      m_dialogs(dialogs),
      m_file_name(file_name),
      m_ui(std::make_unique<Ui::TableWindow>()) {
    m_ui->setupUi(this);
    setWindowTitle("Coltre - " + name);
    m_ui->tabella->setAccessibleName(name);
    m_ui->diagramma->setAccessibleName(QStringLiteral("Diagramma: carico massimo secondo l'altitudine"));
    m_ui->diagramma->set_suggested_name(file_name);
    m_ui->diagramma->hide();
    set_row_height(*m_ui->tabella);
    m_ui->tabella->setMinimumHeight(6 * fontMetrics().lineSpacing());
    ask_file = [this](const QString& title, const QString& suggested, const QString& filter) {
        return choose_file_to_save(this, title, suggested, filter);
    };
    let_contents_scroll(*this);
    answer_mnemonics_at_once(*this);
    fit_to_screen(*this);
    connect(m_ui->copia, &QPushButton::clicked, this, &TableWindow::copy);
    connect(m_ui->salva, &QPushButton::clicked, this, &TableWindow::save);
    connect(m_ui->chiudi, &QPushButton::clicked, this, &TableWindow::close);
}

TableWindow::~TableWindow() = default;

void TableWindow::show_table(const QString& heading, Table table, std::optional<Drawing> diagram) {
    m_table = std::move(table);
    m_ui->intestazione->setText(heading);
    m_ui->diagramma->setVisible(diagram.has_value());
    if (diagram) m_ui->diagramma->set_drawing(std::move(*diagram));

    QTableWidget& shown = *m_ui->tabella;
    QStringList headings;
    for (const Pieces& cell : m_table.header)
        headings += text_of(cell);
    shown.setColumnCount(static_cast<int>(headings.size()));
    shown.setHorizontalHeaderLabels(headings);
    shown.setRowCount(static_cast<int>(m_table.rows.size()));
    for (int row = 0; row < shown.rowCount(); ++row) {
        for (int column = 0; column < shown.columnCount(); ++column) {
            const auto i = static_cast<std::size_t>(column);
            auto* const item = new QTableWidgetItem(text_of(m_table.rows[static_cast<std::size_t>(row)][i]));
            if (m_table.columns[i] == ColumnAlign::right)
                item->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
            shown.setItem(row, column, item);
        }
    }
    shown.resizeColumnsToContents();
    const bool filled = shown.rowCount() > 0;
    m_ui->copia->setEnabled(filled);
    m_ui->salva->setEnabled(filled);
}

void TableWindow::copy() const {
    Document document;
    document.blocks.emplace_back(localised(m_table));
    const CopiedTable table = copied_table(document);
    auto copied = std::make_unique<QMimeData>();
    copied->setText(table.text);
    copied->setHtml(table.html);
    if (!put_on_clipboard(std::move(copied)))
        m_dialogs.show({Icon::error, std::string(program_title), clipboard_refuses.toStdString()});
}

void TableWindow::save() {
    const QString path =
        ask_file(QStringLiteral("Salva come CSV"), m_file_name + ".csv", QStringLiteral("Fogli CSV (*.csv)"));
    if (path.isEmpty()) return;
    const QString reason = replace_file(path, to_csv(m_table));
    if (reason.isEmpty()) return;
    m_dialogs.show({Icon::error, std::string(program_title),
                    QStringLiteral("Impossibile salvare il file %1: %2").arg(path, reason).toStdString()});
}

}  // namespace coltre
