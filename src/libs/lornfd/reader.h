// Reading a plain file, a packed file, or an entry of a catalog.
#pragma once

#include "lornfd/buffer.h"
#include "lornfd/catalogcache.h"
#include "lornfd/handle.h"
#include "lornfd/platform.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <string_view>

namespace lornfd {

/// Stored bytes: a whole file, or an entry's part of a data file.
struct StoredPart {
    std::shared_ptr<const platform::File> file;
    std::int64_t offset = 0;
    std::int64_t size = 0;
    std::optional<std::uint32_t> crc = {}; ///< of the bytes, where a catalog tells it
};

class Reader : public OpenFile {
public:
    /// Null with the last error set.
    static std::unique_ptr<Reader> open(std::string_view name);

    /// Unpacked size in bytes, of packed content as it claims it; -1 with the last error set.
    std::int64_t size();
    /// Copies up to `count` unpacked bytes from the read position; -1 with the last error set.
    std::int64_t read(char* buffer, std::int64_t count);
    /// The whole unpacked content; null data with the last error set.
    std::string_view view();
    std::optional<ContentMark> contentMark() override;
    /// LORNFD_PLAIN, LORNFD_GZIP or LORNFD_ZSTD; 0 with the last error set.
    std::int32_t form();

private:
    Reader(std::string_view name, StoredPart part);
    bool learnForm();
    bool loadStored();
    bool loadContent();
    bool readStored(std::int64_t from, char* buffer, std::size_t count);
    bool checkSum(std::string_view stored);
    bool unpackFrom(std::string_view stored);
    std::int64_t readWhole(char* buffer, std::int64_t count);
    [[nodiscard]] std::optional<std::int64_t> claim() const;
    std::int64_t readContent(char* buffer, std::int64_t count);

    StoredPart m_part;
    std::int32_t m_form = 0; ///< 0 until known
    std::int64_t m_position = 0;
    Buffer m_buffer;             ///< what was read or unpacked
    platform::Mapping m_mapping; ///< what is shown instead of being read
    std::string_view m_stored;   ///< null until loaded
    std::string_view m_content;  ///< null until loaded; of a plain file the same as m_stored
};

/// The form in which a file or an entry is stored, for one that is to be written in its own form:
/// LORNFD_PLAIN, LORNFD_GZIP, LORNFD_ZSTD, or 0 if it does not exist. Empty with the last error
/// set.
std::optional<std::int32_t> storedForm(std::string_view name);

} // namespace lornfd
