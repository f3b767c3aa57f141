// Lists a catalog or the merged view, directory by directory.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

class CatalogListing {
public:
    struct Row {
        std::string Name; ///< without its directory
        bool IsDirectory = false;
    };

    CatalogListing() = default;
    CatalogListing(const CatalogListing&) = delete;
    CatalogListing& operator=(const CatalogListing&) = delete;
    ~CatalogListing() { Close(); }

    /// Closes what was open and opens a catalog, or the view by "vfs://". False if the driver does
    /// not open it: LornFDErrorText tells why. Throws KeshError if it cannot be listed.
    [[nodiscard]] bool Open(const std::string& Catalog);
    void Close();

    /// Directories and what any of the masks matches, in name order, directories first. Nothing if
    /// no catalog is open.
    [[nodiscard]] std::vector<Row> List(const std::string& Directory,
                                        const std::vector<std::string>& Masks) const;
    /// The file's name as it is spelled there, with the extension that was left out; none if it is
    /// nowhere. "*" and "?" stand in no name.
    [[nodiscard]] std::optional<std::string> FindFile(const std::string& Entry) const;
    /// How much of a path is directories there, as spelled there.
    [[nodiscard]] std::string ExistingDirectory(std::string_view Path) const;

private:
    [[nodiscard]] std::optional<std::string> FindDirectory(const std::string& Path) const;

    std::int32_t m_catalog = 0;
    std::int32_t m_context = 0;
};
