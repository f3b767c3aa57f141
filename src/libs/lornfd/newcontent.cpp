#include "lornfd/newcontent.h"

#include "lornfd/catalogcache.h"
#include "lornfd/errors.h"

#include <utility>

namespace lornfd {

namespace {

constexpr std::size_t blockSize = std::size_t{256} << 10;

/// The permissions of the target go to the file that replaces it.
bool takeMode(const std::string& target, platform::File& file) {
    platform::FileStamp stamp;
    const std::error_code error = platform::stamp(target, stamp);
    if (error == std::errc::no_such_file_or_directory)
        return true;
    if (error)
        return fail(LORNFD_E_WRITE, target, error);
    if (!stamp.regular)
        return fail(LORNFD_E_WRITE, {.file = target, .place = {}, .reason = "it is not a file"});
    const std::error_code refused = file.setMode(stamp.mode);
    return !refused || fail(LORNFD_E_WRITE, target, refused);
}

} // namespace

BlockWriter::BlockWriter(platform::File file, std::int64_t offset, std::string name)
    : m_file(std::move(file)), m_offset(offset), m_name(std::move(name)) {}

std::int64_t BlockWriter::position() const noexcept {
    return m_offset + static_cast<std::int64_t>(m_block.size());
}

bool BlockWriter::write(std::string_view bytes) {
    if (m_block.size() + bytes.size() >= blockSize) {
        if (!writeNow(m_block))
            return false;
        m_block.clear();
        if (bytes.size() >= blockSize)
            return writeNow(bytes);
    }
    m_block += bytes;
    return true;
}

bool BlockWriter::writeNow(std::string_view bytes) {
    if (const std::error_code error = m_file.write(m_offset, bytes))
        return fail(LORNFD_E_WRITE, m_name, error);
    m_offset += static_cast<std::int64_t>(bytes.size());
    return true;
}

bool BlockWriter::flush() {
    if (!writeNow(std::exchange(m_block, {})))
        return false;
    const std::error_code error = m_file.flush();
    return !error || fail(LORNFD_E_WRITE, m_name, error);
}

std::unique_ptr<NewContent> NewContent::begin(const std::string& target) {
    std::string temporary = target + ".kesh-new";
    platform::File file;
    std::error_code error = platform::remove(temporary);
    if (!error)
        error = file.create(temporary);
    if (error) {
        fail(LORNFD_E_WRITE, target, error);
        return nullptr;
    }
    std::unique_ptr<NewContent> content(
        new NewContent(target, std::move(temporary), std::move(file)));
    return takeMode(target, content->m_writer.file()) ? std::move(content) : nullptr;
}

NewContent::NewContent(std::string target, std::string temporary, platform::File file)
    : m_target(std::move(target)),
      m_temporary(std::move(temporary)),
      m_writer(std::move(file), 0, m_target) {}

NewContent::~NewContent() {
    if (!m_replaced)
        platform::remove(m_temporary);
}

bool NewContent::commit() {
    if (!m_writer.flush())
        return false;
    m_writer.file().close();
    if (const std::error_code error = platform::rename(m_temporary, m_target))
        return fail(LORNFD_E_WRITE, m_target, error);
    m_replaced = true;
    expectCatalogChange();
    const std::error_code error = platform::flushDirectoryOf(m_target);
    return !error || fail(LORNFD_E_WRITE, m_target, error);
}

} // namespace lornfd
