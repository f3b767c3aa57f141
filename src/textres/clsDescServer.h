// The service that names every object: finds a language's files in the view, loads them into the
// one store of texts and answers texts by page and id.
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
    /// Replaces the store by the files of a language; false if any failed or none was found. A file
    /// that fails does not keep the others out.
    bool LoadResources(std::int32_t Lang);
    /// String handle in page 17 (object names), 0 if there is none.
    [[nodiscard]] std::int32_t GetObjectString(std::int32_t Id) const { return GetString(17, Id); }
    [[nodiscard]] std::int32_t GetString(std::int32_t Page, std::int32_t Id) const;
    /// The text; if missing the default, else "[string PAGE:ID]".
    [[nodiscard]] std::string GetStringDirect(std::int32_t Page, std::int32_t Id,
                                              const std::optional<std::string>& Default = {}) const;
    void Unload();
    /// Loads one file as an object apart from the store, 0 on failure. The caller frees it with
    /// Kesh_DeleteHandle(0, object).
    std::int32_t OpenFile(const std::string& Path);
    /// Does nothing and gives false: who shows a file saves it.
    static bool SaveFile(std::int32_t Object);

    /// The language for which files were last found; 0 before.
    [[nodiscard]] std::int32_t CurrentLanguage() const noexcept { return m_currentLanguage; }
    /// Real places of a language's files, sorted by file name (case-sensitive), equal names as
    /// found. The newer names are "t\*-L044", the older ones "t\44" and digits. Sets the last error
    /// if there is none.
    std::vector<std::string> FindFiles(std::int32_t Lang, bool NewerNames);

private:
    std::string m_lastError;
    std::int32_t m_currentLanguage = 0;
};

/// The text of a string handle; empty for any other.
[[nodiscard]] std::string TextOfString(std::int32_t String);
/// The pages of a file (or of the store, 1), the strings of a page.
[[nodiscard]] std::vector<std::int32_t> EnumChildren(std::int32_t Object);

/// Made by Main, lives until the process ends.
extern std::unique_ptr<clsDescServer> DescServer;
