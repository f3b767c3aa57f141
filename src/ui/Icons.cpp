#include "ui/Icons.h"

#include <QFile>

/// Outside any namespace, as the resource macro wants it; a static library is asked for its
/// pictures once.
static void loadIcons() {
    Q_INIT_RESOURCE(icons);
}

QIcon ToolIcon(const char* Key) {
    static const bool loaded = (loadIcons(), true);
    Q_UNUSED(loaded);
    const QString path = QStringLiteral(":/icons/%1.svg");
    const QString named = path.arg(QString::fromLatin1(Key));
    return QIcon(QFile::exists(named) ? named : path.arg(QStringLiteral("empty")));
}
