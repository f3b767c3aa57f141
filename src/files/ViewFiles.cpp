#include "files/ViewFiles.h"

#include "files/mdlPaths.h"

#include <algorithm>
#include <utility>

std::vector<ViewFile> SearchView(const std::string& Directory, const std::string& Mask) {
    std::vector<ViewFile> found;
    for (VfsSearch search(Directory + Mask); search.Found(); search.Next())
        found.push_back({Directory + search.Name() + (search.IsDirectory() ? "\\" : ""),
                         search.RealName(), search.IsDirectory()});
    return found;
}

void ForEachViewFile(const std::function<void(const ViewFile&)>& Take) {
    std::vector<std::string> pending{""};
    while (!pending.empty()) {
        const std::string directory = std::move(pending.back());
        pending.pop_back();
        const auto first = std::ssize(pending);
        for (auto& found : SearchView(directory, "*"))
            if (found.IsDirectory)
                pending.push_back(std::move(found.Name));
            else
                Take(found);
        std::reverse(pending.begin() + first, pending.end());
    }
}
