#include "ui/Form2.h"

#include "text/number_reading.h"
#include "ui_Form2.h"

namespace coltre {

Form2::Form2(ProgramCells& cells, QWidget* parent)
    : QDialog(parent), m_cells(cells), m_ui(std::make_unique<Ui::Form2>()) {
    m_ui->setupUi(this);
    setAttribute(Qt::WA_DeleteOnClose);
    connect(m_ui->OK, &QPushButton::clicked, this, &Form2::ok_clicked);
}

Form2::~Form2() = default;

void Form2::ok_clicked() {
    m_cells.working_value = read_leniently(m_ui->Text1->utf8()).value;
    close();
}

}  // namespace coltre
