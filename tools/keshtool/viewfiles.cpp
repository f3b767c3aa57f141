#include "viewfiles.h"

#include "files/mdlPaths.h"

#include <algorithm>
#include <utility>

std::vector<ViewFile> searchView(const std::string& directory, const std::string& mask) {
    std::vector<ViewFile> found;
    for (VfsSearch search(directory + mask); search.Found(); search.Next())
        found.push_back({directory + search.Name() + (search.IsDirectory() ? "\\" : ""),
                         search.RealName(), search.IsDirectory()});
    return found;
}

void forEachViewFile(const std::function<void(const ViewFile&)>& take) {
    std::vector<std::string> pending{""};
    while (!pending.empty()) {
        const std::string directory = std::move(pending.back());
        pending.pop_back();
        const auto first = std::ssize(pending);
        for (auto& found : searchView(directory, "*"))
            if (found.directory)
                pending.push_back(std::move(found.name));
            else
                take(found);
        std::reverse(pending.begin() + first, pending.end());
    }
}
