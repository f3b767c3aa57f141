#include "core/TempDirectory.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryFile>

namespace {

constexpr QFile::Permissions OwnerOnly = QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner;

/// The user as the file system sees him: owner of a file that he makes.
uint userId() {
    QTemporaryFile probe;
    return probe.open() ? QFileInfo(probe.fileName()).ownerId() : static_cast<uint>(-2);
}

bool isOwnDirectory(const QString& path) {
    const QFileInfo info(path);
    return info.isDir() && !info.isSymLink() && !info.isJunction() && info.ownerId() == userId();
}

bool prepare(const QString& path) {
    QDir().mkdir(path, OwnerOnly);
    return isOwnDirectory(path) && QFile::setPermissions(path, OwnerOnly);
}

} // namespace

QString MakeTempDirectory() {
    const QString usual = QDir(QDir::tempPath()).filePath(QStringLiteral("Lorn Editor"));
    const QString own = usual + u'-' + QString::number(userId());
    for (const QString& path : {usual, own})
        if (prepare(path))
            return path;
    return {};
}

void RemoveTempDirectory(const QString& Path) {
    if (!isOwnDirectory(Path))
        return;
    const auto everything = QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot;
    for (const QFileInfo& entry : QDir(Path).entryInfoList(everything))
        if (entry.isSymLink() || !entry.isDir())
            QFile::remove(entry.filePath());
    QDir().rmdir(Path);
}
