// Cache of parsed T files by base name: parsed at most once, until Clear.
#pragma once

#include "tdata/clsTxtParser.h"

#include <map>
#include <memory>
#include <string>
#include <string_view>

class clsArchive {
public:
    [[nodiscard]] bool ParseError() const noexcept { return m_loadError; }
    [[nodiscard]] std::string LoadError() const; ///< the flag as text: "True" or "False"
    [[nodiscard]] const std::string& NotLoadedFiles() const noexcept {
        return m_notLoaded;
    } ///< with reasons
    [[nodiscard]] const std::string& NotParsedFiles() const noexcept { return m_notParsed; }
    [[nodiscard]] const std::string& GetLastError() const noexcept { return m_lastError; }

    /// `Name` with or without directory and extension; "TShips" is the usual form.
    [[nodiscard]] bool IsFileLoaded(std::string_view Name) const;
    /// The parsed file, from "types" in the view; none if it cannot be read or holds no record. A
    /// failure is kept as text and not remembered: the next call tries again.
    std::shared_ptr<clsTxtParser> GetFile(std::string_view Name);
    void ClearErrors();
    void Clear();

private:
    std::shared_ptr<clsTxtParser> LoadParser(const std::string& Path);
    std::int32_t LoadText(const std::string& Path);

    std::map<std::string, std::shared_ptr<clsTxtParser>> m_files; ///< by base name in lower case
    std::string m_lastError;
    std::string m_notLoaded;
    std::string m_notParsed;
    bool m_loadError = false;
};

/// Made by Main, lives until the process ends.
extern std::unique_ptr<clsArchive> Archive;
/// As GetFile; none also while there is no archive.
[[nodiscard]] std::shared_ptr<clsTxtParser> GameFileOf(std::string_view Name);
