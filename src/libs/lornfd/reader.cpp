#include "lornfd/reader.h"

#include "lornfd/errors.h"
#include "lornfd/packing.h"
#include "lornfd/paths.h"

#include <algorithm>
#include <cstring>
#include <libdeflate.h>

namespace lornfd {

namespace {

// Below this reading is cheaper than mapping.
constexpr std::int64_t smallPart = std::int64_t{4} << 20;
constexpr std::size_t signatureSize = 4;

bool notFound(std::string_view name) {
    return fail(LORNFD_E_NOT_FOUND,
                {.file = FileName::parse(name).shown(), .place = {}, .reason = {}});
}

std::optional<StoredPart> openPlain(const FileName& name) {
    platform::File file;
    platform::FileStamp stamp;
    std::string path = nativePath(name.path);
    std::error_code error = file.open(path);
    if (error == std::errc::no_such_file_or_directory ||
        error == std::errc::not_a_directory) { // perhaps in another spelling
        path = resolvePath(name.path);
        error = file.open(path);
    }
    if (!error)
        error = file.stamp(stamp);
    if (!error && !stamp.regular)
        error = std::make_error_code(std::errc::is_a_directory);
    if (!error)
        return StoredPart{std::make_shared<const platform::File>(std::move(file)), 0, stamp.size};
    if (error == std::errc::no_such_file_or_directory || error == std::errc::not_a_directory)
        notFound(name.path);
    else
        fail(LORNFD_E_OPEN, path, error);
    return std::nullopt;
}

std::optional<StoredPart> openEntry(const FileName& name) {
    const auto catalog = openCatalog(name.path, Look::InBurst);
    if (!catalog)
        return std::nullopt;
    const std::size_t position = catalog->index->find(name.entry);
    if (position == CatalogIndex::npos) {
        fail(LORNFD_E_NOT_FOUND, {.file = name.shown(), .place = {}, .reason = {}});
        return std::nullopt;
    }
    const CatalogEntry entry = catalog->index->entry(position);
    return StoredPart{std::shared_ptr<const platform::File>(catalog, &catalog->data), entry.offset,
                      entry.size, entry.crc};
}

} // namespace

Reader::Reader(std::string_view name, StoredPart part) : OpenFile(name), m_part(std::move(part)) {}

std::unique_ptr<Reader> Reader::open(std::string_view name) {
    const FileName parts = FileName::parse(name);
    auto part = parts.inCatalog ? openEntry(parts) : openPlain(parts);
    return part ? std::unique_ptr<Reader>(new Reader(name, std::move(*part))) : nullptr;
}

bool Reader::readStored(std::int64_t from, char* buffer, std::size_t count) {
    std::size_t got = 0;
    const std::error_code error =
        count > 0 ? m_part.file->read(m_part.offset + from, buffer, count, got) : std::error_code();
    if (!error && got == count)
        return true;
    return fail(LORNFD_E_READ,
                {.file = name(),
                 .place = offsetPlace(from + static_cast<std::int64_t>(got)),
                 .reason = error ? error.message() : "it ends there, before its time"});
}

bool Reader::checkSum(std::string_view stored) {
    if (!m_part.crc || libdeflate_crc32(0, stored.data(), stored.size()) == *m_part.crc)
        return true;
    return fail(LORNFD_E_CHECKSUM, {.file = name(),
                                    .place = offsetPlace(m_part.offset),
                                    .reason = std::to_string(m_part.size) + " bytes"});
}

/// Brings all stored bytes into memory, checked.
bool Reader::loadStored() {
    if (m_stored.data())
        return true;
    const auto size = static_cast<std::size_t>(m_part.size);
    std::string_view stored;
    if (m_part.size < smallPart) {
        Buffer buffer(size);
        if (!buffer.data() || !readStored(0, buffer.data(), size))
            return false;
        m_buffer = std::move(buffer);
        stored = m_buffer;
    } else {
        if (const std::error_code error = m_mapping.map(*m_part.file, m_part.offset, size))
            return fail(
                LORNFD_E_READ,
                {.file = name(), .place = offsetPlace(m_part.offset), .reason = error.message()});
        stored = m_mapping.view();
    }
    if (!checkSum(stored))
        return false;
    m_stored = stored;
    m_form = packedForm(stored);
    return true;
}

bool Reader::learnForm() {
    if (m_form != 0)
        return true;
    if (m_part.size < smallPart)
        return loadStored();
    char signature[signatureSize];
    if (!readStored(0, signature, sizeof signature))
        return false;
    m_form = packedForm({signature, sizeof signature});
    return true;
}

bool Reader::unpackFrom(std::string_view stored) {
    auto unpacked = unpack(stored, name());
    if (!unpacked)
        return false;
    m_buffer = std::move(*unpacked);
    m_mapping = {};
    m_content = m_stored = m_buffer;
    return true;
}

bool Reader::loadContent() {
    if (m_content.data())
        return true;
    if (!loadStored())
        return false;
    if (m_form != LORNFD_PLAIN)
        return unpackFrom(m_stored);
    m_content = m_stored;
    return true;
}

std::int32_t Reader::form() {
    return learnForm() ? m_form : 0;
}

std::int64_t Reader::size() {
    if (!learnForm())
        return -1;
    if (m_form == LORNFD_PLAIN)
        return m_part.size;
    if (!loadStored())
        return -1;
    if (const auto claimed = claim())
        return *claimed;
    return loadContent() ? static_cast<std::int64_t>(m_content.size()) : -1;
}

std::string_view Reader::view() {
    return loadContent() ? m_content : std::string_view();
}

std::optional<ContentMark> Reader::contentMark() {
    const std::string_view content = view();
    if (!content.data())
        return {};
    return ContentMark{.size = static_cast<std::int64_t>(content.size()),
                       .crc = libdeflate_crc32(0, content.data(), content.size())};
}

/// Reads all stored bytes to where the caller wants them, without holding them.
std::int64_t Reader::readWhole(char* buffer, std::int64_t count) {
    const std::string_view stored(buffer, static_cast<std::size_t>(m_part.size));
    if (!readStored(0, buffer, stored.size()) || !checkSum(stored))
        return -1;
    m_form = packedForm(stored);
    if (m_form == LORNFD_PLAIN)
        return m_position = m_part.size;
    return unpackFrom(stored) ? readContent(buffer, count) : -1;
}

/// The size of the content before it is unpacked, where it tells that.
std::optional<std::int64_t> Reader::claim() const {
    return m_stored.data() && !m_content.data() ? claimedSize(m_stored) : std::nullopt;
}

std::int64_t Reader::readContent(char* buffer, std::int64_t count) {
    const std::string_view piece =
        m_content.substr(static_cast<std::size_t>(m_position), static_cast<std::size_t>(count));
    if (!piece.empty())
        std::memcpy(buffer, piece.data(), piece.size());
    m_position += static_cast<std::int64_t>(piece.size());
    return static_cast<std::int64_t>(piece.size());
}

std::int64_t Reader::read(char* buffer, std::int64_t count) {
    if (!m_stored.data() && m_position == 0 && count >= m_part.size)
        return readWhole(buffer, count);
    if (!learnForm())
        return -1;
    // Unpacked to where the caller wants it, without holding it.
    const auto claimed = m_position == 0 ? claim() : std::nullopt;
    if (claimed && count >= *claimed &&
        unpackTo(buffer, static_cast<std::size_t>(*claimed), m_stored))
        return m_position = *claimed;
    // Only a whole entry can be checked, so that one is not read in pieces.
    if (m_form == LORNFD_PLAIN && !m_stored.data() && !m_part.crc) {
        count = std::min(count, m_part.size - m_position);
        if (!readStored(m_position, buffer, static_cast<std::size_t>(count)))
            return -1;
        m_position += count;
        return count;
    }
    return loadContent() ? readContent(buffer, count) : -1;
}

std::optional<std::int32_t> storedForm(std::string_view name) {
    const auto reader = Reader::open(name);
    if (reader) {
        const std::int32_t form = reader->form();
        return form != 0 ? std::optional(form) : std::nullopt;
    }
    if (lastError().code() != LORNFD_E_NOT_FOUND)
        return std::nullopt;
    lastError().clear();
    return 0;
}

} // namespace lornfd
