// The one way a file is replaced: written beside it, flushed, renamed over it, directory flushed.
#pragma once

#include <memory>
#include <string>
#include <string_view>

namespace lornfd {

/// New content of one file. Mode and symbolic link of the target are kept; a lock file guards the
/// target against a second writer for the time of the write.
class FileReplacement {
public:
    /// Null with the library's last error set if the target is locked or its directory refuses a
    /// file.
    static std::unique_ptr<FileReplacement> begin(std::string_view target);
    ~FileReplacement(); ///< without commit: the target is untouched and nothing is left behind

    [[nodiscard]] bool write(std::string_view bytes);
    [[nodiscard]] bool commit();

private:
    struct Data;
    explicit FileReplacement(std::unique_ptr<Data> data);
    std::unique_ptr<Data> m;
};

/// Replaces the whole content of `target`; false with the last error set.
[[nodiscard]] bool replaceFile(std::string_view target, std::string_view content);

} // namespace lornfd
