// What stands behind a handle: a file that is read, a file that is written, or a catalog.
#pragma once

#include "lornfd/catalog.h"
#include "lornfd/lornfd.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

namespace lornfd {

class Handle {
public:
    virtual ~Handle() = default;
};

/// A plain path, or a catalog and an entry of it.
struct FileName {
    std::string_view path;  ///< of the file or the catalog, as given
    std::string_view entry; ///< empty for a plain path
    bool inCatalog;

    static FileName parse(std::string_view name);
    /// For messages: native form, "catalog::entry" for an entry.
    [[nodiscard]] std::string shown() const;
};

/// What tells one content from another.
struct ContentMark {
    std::int64_t size = 0; ///< bytes
    std::uint32_t crc = 0;
};

class OpenFile : public Handle {
public:
    explicit OpenFile(std::string_view name) : m_name(name) {}
    /// For messages, in native form.
    [[nodiscard]] std::string name() const { return FileName::parse(m_name).shown(); }
    [[nodiscard]] std::string_view givenName() const noexcept { return m_name; }
    [[nodiscard]] FileName parts() const { return FileName::parse(m_name); }
    /// Of the unpacked content, or of what was written so far; none with the last error set.
    virtual std::optional<ContentMark> contentMark() = 0;

private:
    std::string m_name;
};

class CatalogHandle : public Handle {
public:
    explicit CatalogHandle(std::shared_ptr<const CatalogIndex> opened) : index(std::move(opened)) {}
    const std::shared_ptr<const CatalogIndex> index;
};

} // namespace lornfd
