#include "app/Main.h"

#include <QApplication>

int main(int argc, char** argv) {
    const QApplication application(argc, argv);
    return Main();
}
