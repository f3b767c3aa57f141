#include "ui/ProgramIcon.h"

#include "lornfd/paths.h"

#include <QtWidgets>

#include <algorithm>

namespace {

constexpr qint64 longestEntry = 1 << 16; ///< bytes of a desktop entry that is looked at

struct DesktopEntry {
    QStringList Command;
    QString Icon;
};

DesktopEntry readEntry(const QByteArray& content) {
    DesktopEntry entry;
    bool wanted = false;
    for (const QString& line : QString::fromUtf8(content).split(u'\n')) {
        if (line.startsWith(u'['))
            wanted = line.startsWith(QStringLiteral("[Desktop Entry]"));
        else if (wanted && line.startsWith(QStringLiteral("Exec=")))
            entry.Command = QProcess::splitCommand(line.mid(5).trimmed());
        else if (wanted && line.startsWith(QStringLiteral("Icon=")))
            entry.Icon = line.mid(5).trimmed();
    }
    return entry;
}

/// An entry may start the program by another one, so every word counts.
bool starts(const DesktopEntry& entry, const QFileInfo& program) {
    return std::any_of(entry.Command.begin(), entry.Command.end(), [&](const QString& word) {
        const QString file =
            QDir::isAbsolutePath(word) ? word : QStandardPaths::findExecutable(word);
        return !file.isEmpty() &&
               QFileInfo(file).canonicalFilePath() == program.canonicalFilePath();
    });
}

QIcon iconOfEntry(const QFileInfo& program) {
    const QByteArray name = program.fileName().toUtf8();
    for (const QString& place :
         QStandardPaths::standardLocations(QStandardPaths::ApplicationsLocation)) {
        QDirIterator entries(place, {QStringLiteral("*.desktop")}, QDir::Files);
        while (entries.hasNext()) {
            QFile file(entries.next());
            const QByteArray content =
                file.open(QIODevice::ReadOnly) ? file.read(longestEntry) : QByteArray();
            if (!content.contains(name))
                continue; // most entries are out without being read word by word
            const DesktopEntry entry = readEntry(content);
            if (starts(entry, program))
                return QDir::isAbsolutePath(entry.Icon) ? QIcon(entry.Icon)
                                                        : QIcon::fromTheme(entry.Icon);
        }
    }
    return {};
}

/// Elsewhere the icon of a file tells its kind only.
bool programsCarryIcons() {
    const QString platform = QGuiApplication::platformName();
    return platform == QStringLiteral("windows") || platform == QStringLiteral("cocoa");
}

} // namespace

QIcon ProgramIcon(const std::string& Path) {
    const QFileInfo program(QString::fromStdString(lornfd::resolvePath(Path)));
    if (Path.empty() || !program.isFile())
        return {};
    return programsCarryIcons() ? QFileIconProvider().icon(program) : iconOfEntry(program);
}
