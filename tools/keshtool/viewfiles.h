// Walks the merged view.
#pragma once

#include <functional>
#include <string>
#include <vector>

struct ViewFile {
    std::string name; ///< in the view; with a final "\" if it is a directory
    std::string real;
    bool directory;
};

/// What the last part of a mask matches in one directory of the view ("" or with a final "\").
std::vector<ViewFile> searchView(const std::string& directory, const std::string& mask);
/// Every file of the view, directory by directory.
void forEachViewFile(const std::function<void(const ViewFile&)>& take);
