#include "lornfd/platform.h"

#include <algorithm>
#include <cerrno>
#include <fcntl.h>
#include <filesystem>
#include <memory>
#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>

namespace lornfd {

namespace {

FaultHook hook; // NOLINT: process-wide by design, set by tests only

} // namespace

void setFaultHook(FaultHook newHook) {
    hook = std::move(newHook);
}

namespace platform {

namespace {

// A call that is interrupted without end must not hang a save.
constexpr int mostInterruptions = 100;
// No system reads more in one call.
constexpr std::size_t mostRead = std::size_t{1} << 30;
// Written in one call; from half of that on the disk is told to begin at once.
constexpr std::size_t mostWritten = std::size_t{8} << 20;
#ifdef MAP_POPULATE // all of it is going to be read, and one call is cheaper than a fault a page
constexpr int mapFlags = MAP_PRIVATE | MAP_POPULATE;
#else
constexpr int mapFlags = MAP_PRIVATE;
#endif

std::error_code systemError(int code) {
    return {code, std::generic_category()};
}

/// Repeats a system call while it is interrupted.
template <typename Call>
std::error_code repeat(Call call) {
    for (int attempt = 0;; ++attempt) {
        if (call() >= 0)
            return {};
        if (errno != EINTR || attempt == mostInterruptions)
            return systemError(errno);
    }
}

/// The same for a call that a test may make fail.
template <typename Call>
std::error_code repeat(DiskOperation operation, Call call) {
    return repeat([&]() -> std::int64_t {
        if (hook) {
            if (const int fault = hook(operation, nullptr)) {
                errno = fault;
                return -1;
            }
        }
        return call();
    });
}

FileStamp stampOf(const struct stat& status) {
    return {.size = status.st_size,
            .changed = status.st_mtim.tv_sec * std::int64_t{1'000'000'000} + status.st_mtim.tv_nsec,
            .file = status.st_ino,
            .device = status.st_dev,
            .mode = status.st_mode & 07777U,
            .regular = S_ISREG(status.st_mode)};
}

/// Lets the disk work on a large piece while the next is written. Only a hint: File::flush waits
/// for all of it and tells of failures.
void beginFlush(int descriptor, std::int64_t offset, ssize_t size) {
#ifdef SYNC_FILE_RANGE_WRITE
    if (size >= static_cast<ssize_t>(mostWritten / 2))
        ::sync_file_range(descriptor, offset, size, SYNC_FILE_RANGE_WRITE);
#else
    static_cast<void>(descriptor);
    static_cast<void>(offset);
    static_cast<void>(size);
#endif
}

std::error_code openAs(int& descriptor, const std::string& path, int flags) {
    return repeat(DiskOperation::Open,
                  [&] { return descriptor = ::open(path.c_str(), flags | O_CLOEXEC, 0666); });
}

} // namespace

File& File::operator=(File&& other) noexcept {
    if (this != &other) {
        close();
        m_descriptor = std::exchange(other.m_descriptor, -1);
    }
    return *this;
}

std::error_code File::open(const std::string& path) {
    close();
    return repeat(
        [&] { return m_descriptor = ::open(path.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC); });
}

std::error_code File::create(const std::string& path) {
    close();
    return openAs(m_descriptor, path, O_RDWR | O_CREAT | O_EXCL | O_NOFOLLOW);
}

std::error_code File::openForWriting(const std::string& path) {
    close();
    return openAs(m_descriptor, path, O_RDWR | O_CREAT);
}

void File::close() noexcept {
    if (m_descriptor >= 0)
        ::close(std::exchange(m_descriptor, -1));
}

std::error_code File::stamp(FileStamp& stamp) const {
    struct stat status = {};
    const std::error_code error = repeat([&] { return ::fstat(m_descriptor, &status); });
    stamp = stampOf(status);
    return error;
}

std::error_code File::read(std::int64_t offset, void* buffer, std::size_t count,
                           std::size_t& got) const {
    got = 0;
    while (got < count) {
        ssize_t read = 0;
        const std::error_code error = repeat([&] {
            return read =
                       ::pread(m_descriptor, static_cast<char*>(buffer) + got,
                               std::min(count - got, mostRead), offset + static_cast<off_t>(got));
        });
        if (error || read == 0)
            return error;
        got += static_cast<std::size_t>(read);
    }
    return {};
}

std::error_code File::write(std::int64_t offset, std::string_view bytes) {
    while (!bytes.empty()) {
        ssize_t written = 0;
        const std::error_code error = repeat([&]() -> ssize_t {
            std::size_t count = std::min(bytes.size(), mostWritten);
            if (hook) {
                if (const int fault = hook(DiskOperation::Write, &count)) {
                    errno = fault;
                    return -1;
                }
            }
            return written = ::pwrite(m_descriptor, bytes.data(), count, offset);
        });
        if (error)
            return error;
        if (written == 0)
            return systemError(EIO);
        beginFlush(m_descriptor, offset, written);
        bytes.remove_prefix(static_cast<std::size_t>(written));
        offset += written;
    }
    return {};
}

std::error_code File::flush(DiskOperation operation) {
    return repeat(operation, [&] { return ::fsync(m_descriptor); });
}

std::error_code File::truncate(std::int64_t size) {
    return repeat([&] { return ::ftruncate(m_descriptor, size); });
}

std::error_code File::setMode(std::uint32_t mode) {
    return repeat([&] { return ::fchmod(m_descriptor, mode); });
}

Mapping& Mapping::operator=(Mapping&& other) noexcept {
    if (this != &other) {
        unmap();
        m_base = std::exchange(other.m_base, nullptr);
        m_length = std::exchange(other.m_length, 0);
        m_view = std::exchange(other.m_view, {});
    }
    return *this;
}

std::error_code Mapping::map(const File& file, std::int64_t offset, std::size_t size) {
    unmap();
    static const std::int64_t page = ::sysconf(_SC_PAGESIZE);
    const std::int64_t before = offset % page;
    const std::size_t length = size + static_cast<std::size_t>(before);
    void* base = ::mmap(nullptr, length, PROT_READ, mapFlags, file.m_descriptor, offset - before);
    if (base == MAP_FAILED) // NOLINT: the system's own cast
        return systemError(errno);
    m_base = base;
    m_length = length;
    m_view = {static_cast<const char*>(base) + before, size};
    return {};
}

void Mapping::unmap() noexcept {
    if (m_base)
        ::munmap(std::exchange(m_base, nullptr), m_length);
}

void expectUse(void* memory, std::size_t size) noexcept {
#ifdef MADV_HUGEPAGE
    constexpr std::size_t worthIt = std::size_t{4} << 20;
    static const auto page = static_cast<std::size_t>(::sysconf(_SC_PAGESIZE));
    void* start = memory;
    if (size >= worthIt && std::align(page, size - page, start, size))
        ::madvise(start, size / page * page, MADV_HUGEPAGE);
#else
    static_cast<void>(memory);
    static_cast<void>(size);
#endif
}

std::error_code stamp(const std::string& path, FileStamp& stamp) {
    struct stat status = {};
    const std::error_code error = repeat([&] { return ::stat(path.c_str(), &status); });
    stamp = stampOf(status);
    return error;
}

std::error_code rename(const std::string& from, const std::string& to) {
    return repeat(DiskOperation::Rename, [&] { return ::rename(from.c_str(), to.c_str()); });
}

std::error_code flushDirectoryOf(const std::string& path) {
    const std::string directory = std::filesystem::path(path).parent_path().string();
    File opened;
    if (const std::error_code error = opened.open(directory.empty() ? "." : directory))
        return error;
    const std::error_code error = opened.flush(DiskOperation::FlushDirectory);
    // Some file systems keep no directories that could be flushed, and say so.
    return error == std::errc::invalid_argument ? std::error_code() : error;
}

std::error_code remove(const std::string& path) {
    const std::error_code error = repeat([&] { return ::unlink(path.c_str()); });
    return error == std::errc::no_such_file_or_directory ? std::error_code() : error;
}

} // namespace platform

} // namespace lornfd
