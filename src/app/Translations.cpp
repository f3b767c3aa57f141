#include "app/Translations.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

void InstallTranslations(const QLocale& Language) {
    const std::pair<QString, QString> sources[] = {
        {QStringLiteral("qtbase"), QLibraryInfo::path(QLibraryInfo::TranslationsPath)},
        {QStringLiteral("kesheditor"), QStringLiteral(":/translations")}};
    for (const auto& [name, directory] : sources) {
        auto* translator = new QTranslator(QCoreApplication::instance());
        if (translator->load(Language, name, QStringLiteral("_"), directory))
            QCoreApplication::installTranslator(translator);
        else
            delete translator;
    }
}
