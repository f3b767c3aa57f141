// Walks the merged view.
#pragma once

#include <functional>
#include <string>
#include <vector>

struct ViewFile {
    std::string Name; ///< in the view; with a final "\" if it is a directory
    std::string RealName;
    bool IsDirectory;
};

/// What the last part of a mask matches in one directory of the view ("" or with a final "\").
[[nodiscard]] std::vector<ViewFile> SearchView(const std::string& Directory,
                                               const std::string& Mask);
/// Every file of the view, directory by directory.
void ForEachViewFile(const std::function<void(const ViewFile&)>& Take);
