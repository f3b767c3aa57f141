// The text of a settings file: "[key]" lines and "name=value" lines, values as bytes. Rules:
// docs/formats.md, "Settings".
#pragma once

#include <cstddef>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <string_view>

/// Values by name, and those by key ("" for the root, "TE", "main\icons").
using SettingsValues = std::map<std::string, std::string, std::less<>>;
using SettingsMap = std::map<std::string, SettingsValues, std::less<>>;

/// Largest file that is read or written, in bytes.
inline constexpr std::size_t LargestSettingsFile = 1 << 20;
/// Longest key or name, in bytes.
inline constexpr std::size_t LongestSettingsName = 255;

/// Takes any bytes: remarks, lines that are no values, and values whose key or name is too long
/// are passed over.
[[nodiscard]] SettingsMap ReadSettings(std::string_view Text);
/// The text that reads back as the map, byte for byte.
[[nodiscard]] std::string WriteSettings(const SettingsMap& Map);

/// What stands in a file, which is named by its native path; an empty map if there is no such file.
/// None if it is no plain file, larger than LargestSettingsFile, or could not be read to its end.
[[nodiscard]] std::optional<SettingsMap> LoadSettings(const std::string& File);
