#include "app/Main.h"

#include "app/Translations.h"

#include <QApplication>
#include <QLocale>

int main(int argc, char** argv) {
    const QApplication application(argc, argv);
    InstallTranslations(QLocale());
    return Main();
}
