// Brings the files below a data root into a view.
#pragma once

#include "keshvfs/view.h"

#include <map>
#include <string>
#include <string_view>

namespace keshvfs {

/// What a walk found beside the entries themselves.
struct LooseFiles {
    bool rootRead = false;
    /// Names in the root that end in ".cat", by their lower case form.
    std::map<std::string, std::string> catalogs;
    /// A line for each thing that had to be left out.
    std::string warnings;
};

/// Adds every file below `root` that the filters show, as entries of `layer`. Directories in which
/// no filter can match are not entered; links to directories are followed, but never in a circle.
LooseFiles addLooseFiles(View& view, std::string_view root, std::uint32_t layer,
                         const Filters& filters);

} // namespace keshvfs
