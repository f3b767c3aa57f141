// Opened catalogs, kept for the next entry that is asked for.
#pragma once

#include "lornfd/catalog.h"
#include "lornfd/platform.h"

#include <memory>
#include <optional>
#include <string_view>

namespace lornfd {

/// A catalog as it stood on the disk when it was opened. Its data file stays readable whatever
/// happens to the catalog later.
struct OpenCatalog {
    std::shared_ptr<const CatalogIndex> index;
    platform::File data;       ///< closed if there is no data file, in a catalog without entries
    std::int64_t dataSize = 0; ///< bytes
    platform::File
        indexFile; ///< held open so that its number on the disk is not given to another file
    platform::FileStamp stamp; ///< of the index
};

/// How an opened catalog is held against the disk.
enum class Look {
    Always,  ///< each time
    InBurst, ///< each time, but in a burst of opens only every few microseconds
};

/// The catalog of that name, read anew only if its index changed. Null with the last error set.
std::shared_ptr<const OpenCatalog> openCatalog(std::string_view catalog, Look look);

/// The next open of any catalog looks at the disk: this program has just changed something.
void expectCatalogChange();

/// The data file's name in an index's first line, if that is a plain file name.
std::optional<std::string_view> catalogDataName(std::string_view indexText);

} // namespace lornfd
