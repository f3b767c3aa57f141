#include "lornfd/datafile.h"

#include "lornfd/catalog.h"
#include "lornfd/errors.h"
#include "lornfd/paths.h"

#include <filesystem>
#include <utility>

namespace lornfd {

namespace {

namespace fs = std::filesystem;

constexpr std::size_t longestNote = 4096;

std::string beside(const std::string& indexPath, std::string_view name) {
    return (fs::path(indexPath).parent_path() / name).string();
}

std::string notePath(const std::string& indexPath) {
    return indexPath + ".kesh-data";
}

std::string freeName(const std::string& indexPath) {
    const std::string stem = fs::path(indexPath).stem().string();
    std::string name = stem + ".dat";
    std::error_code error;
    for (int number = 2;
         fs::exists(fs::symlink_status(resolvePath(beside(indexPath, name)), error)); ++number)
        name = stem + "-" + std::to_string(number) + ".dat";
    return name;
}

std::error_code writeNote(const std::string& indexPath, std::string_view text) {
    platform::File note;
    std::error_code error = platform::remove(notePath(indexPath));
    if (!error)
        error = note.create(notePath(indexPath));
    if (!error)
        error = note.write(0, text);
    return error ? error : note.flush();
}

std::error_code createLike(const std::string& path, const std::string& model,
                           platform::File& file) {
    const std::error_code error = file.create(path);
    platform::FileStamp stamp;
    if (error || platform::stamp(model, stamp))
        return error;
    return file.setMode(stamp.mode);
}

} // namespace

NewDataFile::NewDataFile(std::string indexPath, std::string name, std::string oldName,
                         platform::File file)
    : m_index(std::move(indexPath)),
      m_name(std::move(name)),
      m_oldName(std::move(oldName)),
      m_writer(std::move(file), 0, beside(m_index, m_name)) {}

std::unique_ptr<NewDataFile> NewDataFile::create(const std::string& indexPath,
                                                 const std::string& oldName) {
    const std::string name = freeName(indexPath);
    platform::File file;
    std::error_code error = writeNote(indexPath, name + "\n" + oldName + "\n");
    const std::string model = oldName.empty() ? indexPath : beside(indexPath, oldName);
    if (!error)
        error = createLike(beside(indexPath, name), model, file);
    std::unique_ptr<NewDataFile> created(
        new NewDataFile(indexPath, name, oldName, std::move(file)));
    if (!error)
        return created;
    fail(LORNFD_E_WRITE, beside(indexPath, name), error);
    return nullptr;
}

NewDataFile::~NewDataFile() {
    if (m_named)
        return;
    platform::remove(beside(m_index, m_name));
    platform::remove(notePath(m_index));
}

void NewDataFile::removeOld() {
    if (!m_oldName.empty())
        platform::remove(beside(m_index, m_oldName));
    platform::remove(notePath(m_index));
}

void NewDataFile::recover(const std::string& indexPath, std::string_view namedNow) {
    platform::File note;
    if (note.open(notePath(indexPath)))
        return;
    std::string text(longestNote, '\0');
    std::size_t got = 0;
    if (note.read(0, text.data(), text.size(), got) || platform::flushDirectoryOf(indexPath))
        return;
    // A line without an end was being written when its writer died, before it made anything.
    std::string_view rest = std::string_view(text).substr(0, got);
    for (std::size_t end; (end = rest.find('\n')) != std::string_view::npos;
         rest.remove_prefix(end + 1)) {
        const std::string_view name = rest.substr(0, end);
        if (isSafeEntryName(name) && !equalNoCase(name, namedNow))
            platform::remove(beside(indexPath, name));
    }
    platform::remove(notePath(indexPath));
}

} // namespace lornfd
