#include "core/SettingsStore.h"

#include "lornfd/paths.h"
#include "lornfd/replacefile.h"

#include <QDir>
#include <QFileInfo>

#include <algorithm>
#include <utility>

namespace {

SettingsMap whatStands(const std::string& file) {
    return LoadSettings(file).value_or(SettingsMap());
}

bool isTooLong(const SettingsStore::Entry& entry) {
    return std::max(entry.key.size(), entry.name.size()) > LongestSettingsName;
}

void put(SettingsMap& map, const SettingsStore::Entry& entry) {
    if (entry.value) {
        map[entry.key][entry.name] = *entry.value;
        return;
    }
    const auto key = map.find(entry.key);
    if (key != map.end() && key->second.erase(entry.name) != 0 && key->second.empty())
        map.erase(key);
}

SettingsMap merged(SettingsMap map, const std::vector<SettingsStore::Entry>& entries) {
    for (const SettingsStore::Entry& entry : entries)
        put(map, entry);
    return map;
}

} // namespace

SettingsStore::SettingsStore(const std::string& File) : m_file(lornfd::resolvePath(File)) {}

std::optional<std::string> SettingsStore::Read(std::string_view Key, std::string_view Name) const {
    const SettingsValues values = Values(Key);
    const auto value = values.find(Name);
    return value != values.end() ? std::optional(value->second) : std::nullopt;
}

SettingsValues SettingsStore::Values(std::string_view Key) const {
    SettingsMap map = whatStands(m_file);
    const auto values = map.find(Key);
    return values != map.end() ? std::move(values->second) : SettingsValues();
}

std::vector<std::string> SettingsStore::SubKeys(std::string_view Key) const {
    const std::string above = Key.empty() ? std::string() : std::string(Key) + '\\';
    std::vector<std::string> names;
    for (const auto& [key, values] : whatStands(m_file))
        if (key.size() > above.size() && key.starts_with(above))
            names.push_back(key.substr(above.size(), key.find('\\', above.size()) - above.size()));
    std::ranges::sort(names);
    names.erase(std::unique(names.begin(), names.end()), names.end());
    return names;
}

bool SettingsStore::Write(const std::vector<Entry>& Entries) {
    const auto before = LoadSettings(m_file);
    if (!before || std::ranges::any_of(Entries, isTooLong))
        return false;
    if (merged(*before, Entries) == *before)
        return true;
    QDir().mkpath(QFileInfo(QString::fromStdString(m_file)).path());
    // What another program wrote until the lock was taken counts as well.
    const auto replacement = lornfd::FileReplacement::begin(m_file);
    const auto now = replacement ? LoadSettings(m_file) : std::nullopt;
    if (!now)
        return false;
    const std::string text = WriteSettings(merged(*now, Entries));
    return text.size() <= LargestSettingsFile && replacement->write(text) && replacement->commit();
}
