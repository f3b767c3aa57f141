#include "core/TraceLog.h"

#include <QDateTime>

std::int32_t TraceLog::Open(const QString& Path) {
    if (!m_file.isOpen()) {
        m_file.setFileName(Path);
        if (!m_file.open(QIODevice::Append | QIODevice::Text))
            return 0;
    }
    ++m_uses;
    return 1;
}

std::int32_t TraceLog::Close() {
    if (m_uses <= 1)
        ForceClose();
    else
        --m_uses;
    return m_uses;
}

void TraceLog::ForceClose() {
    m_file.close();
    m_uses = 0;
}

bool TraceLog::Reopen(const QString& Path) {
    const std::int32_t uses = m_uses;
    ForceClose();
    QFile::setPermissions(Path, QFile::permissions(Path) | QFile::WriteOwner | QFile::WriteUser);
    if (uses == 0 || Open(Path) == 0)
        return false;
    m_uses = uses;
    return true;
}

bool TraceLog::Write(std::string_view Text) {
    if (!m_file.isOpen())
        return false;
    QByteArray line =
        QDateTime::currentDateTime().toString(u"yyyy-MM-dd HH:mm:ss").toUtf8() + " - ";
    line.append(Text.data(), static_cast<qsizetype>(Text.size())).append('\n');
    return m_file.write(line) == line.size() && m_file.flush();
}
