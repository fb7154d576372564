#include "ui/sketch_setup.h"

#include <string>

#include "ui/result_label.h"

namespace coltre {

void set_up_sketch(SketchWidget& sketch, const char* suggested_name, UserDialogs& dialogs) {
    sketch.set_suggested_name(suggested_name);
    sketch.tell_error = [&dialogs](const QString& text) {
        dialogs.show({Icon::error, std::string(program_title), text.toStdString()});
    };
    for (ResultLabel* const label : sketch.findChildren<ResultLabel*>())
        sketch.host(label, label->objectName());
}

}  // namespace coltre
