#include "lornfd/replacefile.h"

#include "lornfd/lockfile.h"
#include "lornfd/newcontent.h"
#include "lornfd/paths.h"

#include <utility>

namespace lornfd {

struct FileReplacement::Data {
    std::unique_ptr<TargetLock> lock;
    std::unique_ptr<NewContent> content; // goes first, while the lock is held
};

FileReplacement::FileReplacement(std::unique_ptr<Data> data) : m(std::move(data)) {}

FileReplacement::~FileReplacement() = default;

std::unique_ptr<FileReplacement> FileReplacement::begin(std::string_view target) {
    const std::string path = realPath(target);
    auto data = std::make_unique<Data>();
    data->lock = TargetLock::take(path);
    if (data->lock)
        data->content = NewContent::begin(path);
    if (!data->content)
        return nullptr;
    return std::unique_ptr<FileReplacement>(new FileReplacement(std::move(data)));
}

bool FileReplacement::write(std::string_view bytes) {
    return m->content->write(bytes);
}

bool FileReplacement::commit() {
    return m->content->commit();
}

bool replaceFile(std::string_view target, std::string_view content) {
    const auto replacement = FileReplacement::begin(target);
    return replacement && replacement->write(content) && replacement->commit();
}

} // namespace lornfd
