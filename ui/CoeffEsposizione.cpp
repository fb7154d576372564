#include "ui/CoeffEsposizione.h"

#include "ui/pictures.h"
#include "ui_CoeffEsposizione.h"

namespace coltre {

CoeffEsposizione::CoeffEsposizione(QWidget* parent)
    : QDialog(parent), m_ui(std::make_unique<Ui::CoeffEsposizione>()) {
    m_ui->setupUi(this);
    load_pictures();
    m_ui->Image1->load(":/images/coefficiente_esposizione.svg");
    connect(m_ui->ChiudiButt, &QPushButton::clicked, this, &CoeffEsposizione::close);
}

CoeffEsposizione::~CoeffEsposizione() = default;

}  // namespace coltre
