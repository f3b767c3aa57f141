// One INI file as a store of text values by key ("", "TE", "main\icons") and name.
#pragma once

#include <QString>

#include <optional>
#include <string>
#include <string_view>
#include <vector>

class SettingsStore {
public:
    struct Entry {
        std::string name;
        std::optional<std::string> value; ///< none deletes the entry
    };

    explicit SettingsStore(QString File);

    /// What stands in the file now, other programs' writes included. None if it is missing or
    /// broken.
    [[nodiscard]] std::optional<std::string> Read(std::string_view Key,
                                                  std::string_view Name) const;
    /// Writes all entries at once; false if the file could not be replaced, it is then as before.
    /// Other values of the file stay.
    [[nodiscard]] bool Write(std::string_view Key, const std::vector<Entry>& Entries);
    /// Names of the values directly below a key, and of its sub-keys.
    [[nodiscard]] std::vector<std::string> Names(std::string_view Key) const;
    [[nodiscard]] std::vector<std::string> SubKeys(std::string_view Key) const;

private:
    QString m_file;
};
