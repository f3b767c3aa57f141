// The service that names every object: finds a language's files in the view and answers texts by
// page and id. The store of texts is empty as yet, so every lookup falls back to its default.
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

class clsDescServer {
public:
    /// The errors of the last operation, empty if there were none.
    [[nodiscard]] const std::string& GetLastError() const noexcept { return m_lastError; }
    /// Replaces the store by the files of a language; false if any failed or none was found.
    bool LoadResources(std::int32_t Lang);
    /// String handle in page 17 (object names), 0 if there is none.
    [[nodiscard]] std::int32_t GetObjectString(std::int32_t Id) const { return GetString(17, Id); }
    [[nodiscard]] std::int32_t GetString(std::int32_t Page, std::int32_t Id) const;
    /// The text; if missing the default, else "[string PAGE:ID]".
    [[nodiscard]] std::string GetStringDirect(std::int32_t Page, std::int32_t Id,
                                              const std::optional<std::string>& Default = {}) const;
    void Unload();

    /// Real places of a language's files, sorted by file name (case-sensitive), equal names as
    /// found. The newer names are "t\*-L044", the older ones "t\44" and digits. Sets the last error
    /// if there is none.
    std::vector<std::string> FindFiles(std::int32_t Lang, bool NewerNames);

private:
    std::string m_lastError;
};

/// Made by Main, lives until the process ends.
extern std::unique_ptr<clsDescServer> DescServer;
