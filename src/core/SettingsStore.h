// One settings file as a store of text values by key ("", "TE", "main\icons") and name.
#pragma once

#include "core/SettingsFile.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

class SettingsStore {
public:
    struct Entry {
        std::string key;
        std::string name;
        std::optional<std::string> value; ///< none deletes the entry
    };

    /// `File` is a native path; the file and its directory need not exist.
    explicit SettingsStore(const std::string& File);

    // Each access reads what stands in the file now, other programs' writes included. A file that
    // is missing or cannot be read has no values.
    [[nodiscard]] std::optional<std::string> Read(std::string_view Key,
                                                  std::string_view Name) const;
    /// The values directly below a key.
    [[nodiscard]] SettingsValues Values(std::string_view Key) const;
    /// Names of the keys directly below a key, in byte order.
    [[nodiscard]] std::vector<std::string> SubKeys(std::string_view Key) const;

    /// Writes all entries at once; other values of the file stay. False if the file could not be
    /// read or replaced, or a key or name is longer than LongestSettingsName.
    [[nodiscard]] bool Write(const std::vector<Entry>& Entries);

private:
    std::string m_file;
};
