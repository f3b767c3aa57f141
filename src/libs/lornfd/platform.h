// What the driver asks of the operating system. Everything else in the library is portable.
//
// Operations give an empty std::error_code on success. Interrupted calls are repeated and short
// writes continued here, so that callers see only success or a final failure.
#pragma once

#include "lornfd/faults.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <system_error>
#include <utility>

namespace lornfd::platform {

/// What tells one state of a file from another.
struct FileStamp {
    std::int64_t size = 0;    ///< bytes
    std::int64_t changed = 0; ///< time of the last change, nanoseconds
    std::uint64_t file = 0;   ///< number of the file on its device
    std::uint64_t device = 0;
    std::uint32_t mode = 0; ///< permissions
    bool regular = false;   ///< neither directory nor device

    bool operator==(const FileStamp&) const = default;
};

/// An open file; closes itself.
class File {
public:
    File() = default;
    File(File&& other) noexcept : m_descriptor(std::exchange(other.m_descriptor, -1)) {}
    File& operator=(File&& other) noexcept;
    ~File() { close(); }

    /// Opens for reading; does not wait for the other end of a pipe.
    std::error_code open(const std::string& path);
    /// Makes a new file for writing; fails if the name is taken.
    std::error_code create(const std::string& path);
    /// Opens an existing file, or makes one, for writing.
    std::error_code openForWriting(const std::string& path);
    void close() noexcept;
    [[nodiscard]] bool isOpen() const noexcept { return m_descriptor >= 0; }

    std::error_code stamp(FileStamp& stamp) const;
    /// Reads up to `count` bytes from `offset`; `got` is smaller only at the end of the file.
    std::error_code read(std::int64_t offset, void* buffer, std::size_t count,
                         std::size_t& got) const;
    /// Writes all bytes at `offset`, or fails after any part of them.
    std::error_code write(std::int64_t offset, std::string_view bytes);
    /// Waits until the disk has what was written. `operation` is what a test sees of it.
    std::error_code flush(DiskOperation operation = DiskOperation::Flush);
    std::error_code truncate(std::int64_t size);
    std::error_code setMode(std::uint32_t mode);

private:
    friend class Mapping;
    int m_descriptor = -1;
};

/// A part of a file shown in memory; ends with the object, may outlive the File.
class Mapping {
public:
    Mapping() = default;
    Mapping(Mapping&& other) noexcept
        : m_base(std::exchange(other.m_base, nullptr)),
          m_length(std::exchange(other.m_length, 0)),
          m_view(std::exchange(other.m_view, {})) {}
    Mapping& operator=(Mapping&& other) noexcept;
    ~Mapping() { unmap(); }

    /// Maps `size` bytes from `offset`, both within the file and `size` not 0.
    std::error_code map(const File& file, std::int64_t offset, std::size_t size);
    [[nodiscard]] std::string_view view() const noexcept { return m_view; }

private:
    void unmap() noexcept;
    void* m_base = nullptr;
    std::size_t m_length = 0;
    std::string_view m_view;
};

/// Tells the system that all of a piece of memory is going to be used, so that it may be given in
/// large pages.
void expectUse(void* memory, std::size_t size) noexcept;

std::error_code stamp(const std::string& path, FileStamp& stamp);
/// Gives a file a new name in one step; takes the place of one that has it.
std::error_code rename(const std::string& from, const std::string& to);
/// Waits until the disk has the names of the directory that holds `path`.
std::error_code flushDirectoryOf(const std::string& path);
/// Removes a file; one that is not there is no failure.
std::error_code remove(const std::string& path);

} // namespace lornfd::platform
