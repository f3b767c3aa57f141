#include "core/SettingsFile.h"

#include <QByteArray>
#include <QIODevice>
#include <QMap>

#include <algorithm>

namespace {

constexpr const char* RootSection = "General";
constexpr char EncodedSign = '@';

QByteArray decoded(const QByteArray& text) {
    if (text.startsWith(EncodedSign))
        return QByteArray::fromPercentEncoding(text.mid(1));
    const bool quoted = text.size() >= 2 && text.startsWith('"') && text.endsWith('"');
    return quoted && text.count('"') == 2 ? text.mid(1, text.size() - 2) : text;
}

QByteArray encoded(const QByteArray& value) {
    const bool control = std::any_of(value.begin(), value.end(),
                                     [](char c) { return static_cast<unsigned char>(c) < ' '; });
    return !control && decoded(value.trimmed()) == value ? value
                                                         : EncodedSign + value.toPercentEncoding();
}

bool readSettings(QIODevice& device, QSettings::SettingsMap& map) {
    QString section;
    for (const QByteArray& rawLine : device.readAll().split('\n')) {
        const QByteArray line = rawLine.trimmed();
        const qsizetype equals = line.indexOf('=');
        if (line.startsWith('[') && line.endsWith(']')) {
            const QByteArray key = line.mid(1, line.size() - 2);
            section =
                key == RootSection ? QString() : QString::fromUtf8(key).replace(u'\\', u'/') + u'/';
        } else if (equals > 0 && !line.startsWith(';') && !line.startsWith('#')) {
            const QString name = QString::fromUtf8(line.left(equals).trimmed());
            map[section + name] = decoded(line.mid(equals + 1).trimmed());
        }
    }
    return true;
}

bool writeSettings(QIODevice& device, const QSettings::SettingsMap& map) {
    QMap<QByteArray, QByteArray> sections;
    for (auto at = map.begin(); at != map.end(); ++at) {
        const qsizetype slash = at.key().lastIndexOf(u'/');
        const QString section = at.key().left(std::max<qsizetype>(slash, 0)).replace(u'/', u'\\');
        sections[section.toUtf8()] +=
            at.key().mid(slash + 1).toUtf8() + '=' + encoded(at.value().toByteArray()) + '\n';
    }
    QByteArray text;
    for (auto at = sections.begin(); at != sections.end(); ++at)
        text += '[' + (at.key().isEmpty() ? QByteArray(RootSection) : at.key()) + "]\n" +
                at.value() + '\n';
    return text.size() <= LargestSettingsFile && device.write(text) == text.size();
}

} // namespace

QSettings::Format SettingsFormat() {
    static const QSettings::Format format =
        QSettings::registerFormat(QStringLiteral("ini"), readSettings, writeSettings);
    return format;
}
