#include "engine/Calcolo_Mu.h"

namespace coltre {

void mu1(ProgramCells& cells, double alfa) {
    if (alfa >= 0 && alfa <= 30) {
        cells.mu1 = 0.8;
    } else if (alfa > 30 && alfa <= 60) {
        cells.mu1 = (60 - alfa) * 0.8 / 30;
    } else if (alfa > 60) {
        cells.mu1 = 0;
    }
}

void mu2(ProgramCells& cells, double alfa) {
    if (alfa >= 0 && alfa <= 30) {
        cells.mu2 = 0.8 / 30 * alfa + 0.8;
    } else if (alfa > 30 && alfa <= 60) {
        cells.mu2 = 1.6;
    } else if (alfa > 60) {
        cells.mu2 = 0;
    }
}

}  // namespace coltre
