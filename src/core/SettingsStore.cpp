#include "core/SettingsStore.h"

#include "core/SettingsFile.h"

#include <QFileInfo>
#include <QStringList>

#include <utility>

namespace {

QByteArray toBytes(std::string_view text) {
    return {text.data(), static_cast<qsizetype>(text.size())};
}

/// A part of a key, or a name, without any character that means something in a settings file.
QString escaped(const QByteArray& part) {
    return QString::fromLatin1(part.toPercentEncoding(" "));
}

std::vector<std::string> unescaped(const QStringList& parts) {
    std::vector<std::string> names;
    for (const QString& part : parts)
        names.push_back(QByteArray::fromPercentEncoding(part.toUtf8()).toStdString());
    return names;
}

/// "main\icons" as the group "main/icons"; empty for the root.
QString groupOf(std::string_view key) {
    QStringList parts;
    for (const QByteArray& part : toBytes(key).split('\\'))
        parts << escaped(part);
    return parts.join(u'/');
}

QString pathOf(std::string_view key, std::string_view name) {
    return key.empty() ? escaped(toBytes(name)) : groupOf(key) + u'/' + escaped(toBytes(name));
}

void put(QSettings& ini, const QString& path, const QVariant& value) {
    if (value.isValid())
        ini.setValue(path, value);
    else
        ini.remove(path);
}

bool usable(const QString& file) {
    return QFileInfo(file).size() <= LargestSettingsFile;
}

} // namespace

SettingsStore::SettingsStore(QString File) : m_file(std::move(File)) {}

std::optional<std::string> SettingsStore::Read(std::string_view Key, std::string_view Name) const {
    if (!usable(m_file))
        return {};
    const QVariant value = QSettings(m_file, SettingsFormat()).value(pathOf(Key, Name));
    return value.isValid() ? std::optional(value.toByteArray().toStdString()) : std::nullopt;
}

bool SettingsStore::Write(std::string_view Key, const std::vector<Entry>& Entries) {
    if (!usable(m_file))
        return false;
    QSettings ini(m_file, SettingsFormat());
    std::vector<std::pair<QString, QVariant>> former;
    for (const Entry& entry : Entries) {
        const QString path = pathOf(Key, entry.name);
        const QVariant value = entry.value ? QVariant(toBytes(*entry.value)) : QVariant();
        if (ini.value(path) == value)
            continue;
        former.emplace_back(path, ini.value(path));
        put(ini, path, value);
    }
    ini.sync();
    if (ini.status() == QSettings::NoError)
        return true;
    // Objects on one file share what is not written yet: later reads must not see it.
    for (const auto& [path, value] : former)
        put(ini, path, value);
    return false;
}

std::vector<std::string> SettingsStore::Names(std::string_view Key) const {
    if (!usable(m_file))
        return {};
    QSettings ini(m_file, SettingsFormat());
    ini.beginGroup(groupOf(Key));
    return unescaped(ini.childKeys());
}

std::vector<std::string> SettingsStore::SubKeys(std::string_view Key) const {
    if (!usable(m_file))
        return {};
    QSettings ini(m_file, SettingsFormat());
    ini.beginGroup(groupOf(Key));
    return unescaped(ini.childGroups());
}
