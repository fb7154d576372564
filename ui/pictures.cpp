#include "ui/pictures.h"

#include <QtGlobal>

// Outside any namespace, as the macro wants it. Without it the linker drops the resources of a static
// library.
static void init_resources() {
    Q_INIT_RESOURCE(resources);
}

namespace coltre {

void load_pictures() {
    init_resources();
}

}  // namespace coltre
