#include "core/SettingsStore.h"

#include <QFileInfo>
#include <QMetaType>
#include <QSettings>
#include <QStringList>
#include <QUrl>

#include <utility>

namespace {

// A larger file is no settings file; reading it would only eat memory.
constexpr qint64 LargestFile = 16 << 20;

QByteArray toBytes(std::string_view text) {
    return {text.data(), static_cast<qsizetype>(text.size())};
}

/// A part of a key or a name: "/" and "\" would separate groups.
QString escaped(std::string_view part) {
    return QString::fromLatin1(toBytes(part).toPercentEncoding(" "));
}

std::string unescaped(const QString& part) {
    return QByteArray::fromPercentEncoding(part.toLatin1()).toStdString();
}

/// "main\icons" as the group "main/icons"; empty for the root.
QString groupOf(std::string_view key) {
    QStringList parts;
    for (const QByteArray& part : toBytes(key).split('\\'))
        parts << escaped(part.toStdString());
    return parts.join(u'/');
}

QString pathOf(std::string_view key, std::string_view name) {
    return key.empty() ? escaped(name) : groupOf(key) + u'/' + escaped(name);
}

/// Text that is not UTF-8 is kept as bytes, so that it reads back the same.
QVariant toVariant(const std::optional<std::string>& value) {
    if (!value)
        return {};
    const QString text = QString::fromStdString(*value);
    return text.toStdString() == *value ? QVariant(text) : QVariant(toBytes(*value));
}

std::optional<std::string> fromVariant(const QVariant& value) {
    switch (value.typeId()) {
    case QMetaType::QString:
        return value.toString().toStdString();
    case QMetaType::QByteArray:
        return value.toByteArray().toStdString();
    case QMetaType::QStringList: // a value written by hand with a bare comma
        return value.toStringList().join(u',').toStdString();
    default:
        return {};
    }
}

void put(QSettings& ini, const QString& path, const QVariant& value) {
    if (value.isValid())
        ini.setValue(path, value);
    else
        ini.remove(path);
}

std::vector<std::string> unescaped(const QStringList& parts) {
    std::vector<std::string> names;
    for (const QString& part : parts)
        names.push_back(unescaped(part));
    return names;
}

} // namespace

SettingsStore::SettingsStore(QString File) : m_file(std::move(File)) {}

bool SettingsStore::Usable() const {
    return QFileInfo(m_file).size() <= LargestFile;
}

std::optional<std::string> SettingsStore::Read(std::string_view Key, std::string_view Name) const {
    if (!Usable())
        return {};
    return fromVariant(QSettings(m_file, QSettings::IniFormat).value(pathOf(Key, Name)));
}

bool SettingsStore::Write(std::string_view Key, const std::vector<Entry>& Entries) {
    if (!Usable())
        return false;
    // The first object to read a broken file keeps that as its status; the second one's tells of
    // the write alone.
    const QSettings reader(m_file, QSettings::IniFormat);
    QSettings ini(m_file, QSettings::IniFormat);
    std::vector<std::pair<QString, QVariant>> former;
    for (const Entry& entry : Entries) {
        const QString path = pathOf(Key, entry.name);
        const QVariant value = toVariant(entry.value);
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
    if (!Usable())
        return {};
    QSettings ini(m_file, QSettings::IniFormat);
    ini.beginGroup(groupOf(Key));
    return unescaped(ini.childKeys());
}

std::vector<std::string> SettingsStore::SubKeys(std::string_view Key) const {
    if (!Usable())
        return {};
    QSettings ini(m_file, QSettings::IniFormat);
    ini.beginGroup(groupOf(Key));
    return unescaped(ini.childGroups());
}
