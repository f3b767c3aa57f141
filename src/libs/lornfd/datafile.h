// A catalog's change to another data file.
#pragma once

#include "lornfd/newcontent.h"

#include <memory>
#include <string>
#include <string_view>

namespace lornfd {

/// A new data file beside an index that does not name it yet. A note beside the index tells which
/// data files are in question, so that the next writer can clear up where this one died. The caller
/// holds the catalog's lock.
class NewDataFile {
public:
    /// Null with the last error set. `oldName` is the data file that the index names now, or empty;
    /// the new file has its permissions and a name that no file had.
    static std::unique_ptr<NewDataFile> create(const std::string& indexPath,
                                               const std::string& oldName);
    NewDataFile(const NewDataFile&) = delete;
    NewDataFile& operator=(const NewDataFile&) = delete;
    /// Removes the file again, unless the index names it.
    ~NewDataFile();

    BlockWriter& writer() noexcept { return m_writer; }
    [[nodiscard]] const std::string& name() const noexcept { return m_name; }

    /// The index names this file now.
    void setNamed() noexcept { m_named = true; }
    /// That is certain to last: the old file and the note go.
    void removeOld();

    /// Clears up after a writer that died: of the data files in its note only `namedNow` stays.
    static void recover(const std::string& indexPath, std::string_view namedNow);

private:
    NewDataFile(std::string indexPath, std::string name, std::string oldName, platform::File file);

    std::string m_index;
    std::string m_name;
    std::string m_oldName;
    BlockWriter m_writer;
    bool m_named = false;
};

} // namespace lornfd
