#include "ui/special_cases.h"

namespace coltre {

QWidget* new_special_cases(Program& /*program*/, UserDialogs& /*dialogs*/,
                           std::function<SiteFields()> /*site_fields*/,
                           std::function<void()> /*show_ground_load*/, QWidget* parent) {
    auto* window = new QWidget(parent, Qt::Window);
    window->setObjectName("casipart");
    window->setWindowTitle("Coltre - Casi particolari");
    return window;
}

}  // namespace coltre
