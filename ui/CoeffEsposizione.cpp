#include "ui/CoeffEsposizione.h"

#include <QScreen>

#include "drawings/exposure_table.h"
#include "ui_CoeffEsposizione.h"

namespace coltre {

CoeffEsposizione::CoeffEsposizione(QWidget* parent)
    : QDialog(parent), m_ui(std::make_unique<Ui::CoeffEsposizione>()) {
    m_ui->setupUi(this);
    m_ui->Image1->set_drawing(exposure_table());
    // On a small screen smaller, so that its button is within reach.
    const QSize whole = m_ui->Image1->sizeHint();
    const QSize room = screen()->availableSize() - QSize(40, 140);
    m_ui->Image1->setFixedSize(whole.scaled(whole.boundedTo(room), Qt::KeepAspectRatio));
    connect(m_ui->ChiudiButt, &QPushButton::clicked, this, &CoeffEsposizione::close);
}

CoeffEsposizione::~CoeffEsposizione() = default;

}  // namespace coltre
