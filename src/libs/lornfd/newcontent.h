// The content that is going to take the place of a file's.
#pragma once

#include "lornfd/platform.h"

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

namespace lornfd {

/// Writes a file from an offset on, in large blocks.
class BlockWriter {
public:
    /// `name` is the native file name for messages.
    BlockWriter(platform::File file, std::int64_t offset, std::string name);

    /// False with the last error set if the disk refused; what was written then is unknown.
    [[nodiscard]] bool write(std::string_view bytes);
    /// Brings what is collected to the disk and waits for it.
    [[nodiscard]] bool flush();
    /// Offset of the next byte.
    [[nodiscard]] std::int64_t position() const noexcept;
    platform::File& file() noexcept { return m_file; }

private:
    bool writeNow(std::string_view bytes);

    platform::File m_file;
    std::int64_t m_offset;
    std::string m_name;
    std::string m_block;
};

/// A temporary file beside its target, which it replaces when it is complete. It takes no lock: the
/// caller holds one.
class NewContent {
public:
    /// Null with the last error set. `target` is a native path with its links followed. The
    /// temporary file of a program that died is taken over.
    static std::unique_ptr<NewContent> begin(const std::string& target);
    NewContent(const NewContent&) = delete;
    NewContent& operator=(const NewContent&) = delete;
    ~NewContent();

    [[nodiscard]] bool write(std::string_view bytes) { return m_writer.write(bytes); }
    /// Flushes, renames over the target, flushes the directory.
    [[nodiscard]] bool commit();
    /// True once the target is replaced, even where commit failed behind that.
    [[nodiscard]] bool replaced() const noexcept { return m_replaced; }

private:
    NewContent(std::string target, std::string temporary, platform::File file);

    std::string m_target;
    std::string m_temporary;
    BlockWriter m_writer;
    bool m_replaced = false;
};

} // namespace lornfd
