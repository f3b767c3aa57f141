// The recovery journal of an open window, as it stands on the disk.
#pragma once

#include "core/surroundings.h"
#include "lornfd/paths.h"
#include "txteditor/JournalFormat.h"
#include "txteditor/frmTXTEditor.h"

#include <QTest>

/// Waits until the only journal holds so many commands behind its last base.
inline bool waitForJournal(std::size_t commands) {
    const QDir directory(QString::fromStdString(lornfd::nativePath(RecoveryDirectory())));
    return QTest::qWaitFor([&] {
        const auto files = directory.entryInfoList({QStringLiteral("*.journal")});
        if (files.isEmpty())
            return false;
        QFile file(files.first().filePath());
        const std::string bytes =
            file.open(QIODevice::ReadOnly) ? file.readAll().toStdString() : std::string();
        const JournalContent content = ReadJournal(bytes);
        return !content.Parts.empty() && content.Parts.back().Commands.size() == commands;
    });
}
