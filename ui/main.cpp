#include "ui/application.h"

int main(int argc, char** argv) {
    return coltre::run(argc, argv);
}
