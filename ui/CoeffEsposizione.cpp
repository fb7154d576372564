#include "ui/CoeffEsposizione.h"

#include "drawings/exposure_table.h"
#include "ui_CoeffEsposizione.h"

namespace coltre {

CoeffEsposizione::CoeffEsposizione(QWidget* parent)
    : QDialog(parent), m_ui(std::make_unique<Ui::CoeffEsposizione>()) {
    m_ui->setupUi(this);
    m_ui->Image1->set_drawing(exposure_table());
    connect(m_ui->ChiudiButt, &QPushButton::clicked, this, &CoeffEsposizione::close);
}

CoeffEsposizione::~CoeffEsposizione() = default;

}  // namespace coltre
