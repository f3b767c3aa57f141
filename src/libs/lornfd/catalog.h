// A catalog's index in memory, and the one way to change a catalog. Format: docs/formats.md,
// "Catalogs".
#pragma once

#include "lornfd/buffer.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace lornfd {

/// One entry of an index. Offsets and sizes are checked against the data file before they are given
/// out.
struct CatalogEntry {
    std::int64_t offset;   ///< in the data file, bytes
    std::int64_t size;     ///< stored bytes
    std::uint32_t crc;     ///< CRC-32 of the stored bytes
    std::string_view name; ///< "\" separated, as spelled in the index; lives as long as the index
};

/// A read index. It never changes: an update of the catalog makes a new one.
class CatalogIndex {
public:
    /// Reads and checks an index, or null with the library's last error set (file and line).
    static std::shared_ptr<const CatalogIndex> open(std::string_view catalog);
    /// As open, from text of less than 4 GB; `dataSize` is the size of the data file that it names.
    static std::shared_ptr<const CatalogIndex> parse(Buffer text, std::int64_t dataSize,
                                                     std::string_view nameForMessages);
    ~CatalogIndex();

    [[nodiscard]] std::size_t size() const noexcept;
    [[nodiscard]] CatalogEntry entry(std::size_t position) const;
    /// Position of a name without regard to ASCII case and with either separator; npos if absent.
    [[nodiscard]] std::size_t find(std::string_view name) const;
    static constexpr std::size_t npos = static_cast<std::size_t>(-1);

    /// Native path of the index and of the data file.
    [[nodiscard]] const std::string& path() const noexcept;
    [[nodiscard]] const std::string& dataPath() const noexcept;

private:
    struct Data;
    explicit CatalogIndex(std::unique_ptr<Data> data);
    std::unique_ptr<Data> m;
};

/// The index of a catalog handle; null for a bad handle.
std::shared_ptr<const CatalogIndex> catalogOfHandle(std::int32_t handle);

/// Collects changes of one catalog and makes them in one step. Holds the catalog's lock while it
/// lives.
class CatalogUpdate {
public:
    /// Null with the last error set if the catalog is missing (unless `create`), broken or locked.
    static std::unique_ptr<CatalogUpdate> begin(std::string_view catalog, bool create);
    ~CatalogUpdate(); ///< without commit: nothing has changed

    /// Appends stored bytes (already packed if they shall be) under a name; replaces an entry of
    /// that name. False with the last error set for a name that is not allowed or a failed write.
    [[nodiscard]] bool put(std::string_view name, std::string_view storedBytes);
    /// Takes an entry out; false if there is none.
    [[nodiscard]] bool remove(std::string_view name);
    /// Flushes the data, replaces the index by one rename, compacts when dead bytes outweigh living
    /// ones.
    [[nodiscard]] bool commit();

private:
    struct Data;
    explicit CatalogUpdate(std::unique_ptr<Data> data);
    std::unique_ptr<Data> m;
};

/// True for a name that may stand in a catalog and may be written below a directory: relative, no
/// "..", no drive, no control character, 1 to 255 bytes.
bool isSafeEntryName(std::string_view name) noexcept;

} // namespace lornfd
