#include "commands.h"
#include "core/mdlCommon.h"
#include "files/mdlPaths.h"
#include "keshvfs/keshvfs.h"

#include <algorithm>

namespace {

struct Found {
    std::string name; ///< in the view
    std::string real;
    bool directory;
};

/// What the last part of a mask matches in one directory of the view ("" or with a final "\").
std::vector<Found> search(const std::string& directory, const std::string& mask) {
    std::vector<Found> found;
    for (VfsSearch search(directory + mask); search.Found(); search.Next())
        found.push_back({directory + search.Name() + (search.IsDirectory() ? "\\" : ""),
                         search.RealName(), search.IsDirectory()});
    return found;
}

/// The directories that all but the last part of a mask match.
std::vector<std::string> directoriesOf(std::string_view mask) {
    std::vector<std::string> level{""};
    for (std::size_t end = mask.find('\\'); end != mask.npos; end = mask.find('\\')) {
        std::vector<std::string> next;
        for (const auto& directory : level)
            for (auto& found : search(directory, std::string(mask.substr(0, end))))
                if (found.directory)
                    next.push_back(std::move(found.name));
        level = std::move(next);
        mask.remove_prefix(end + 1);
    }
    return level;
}

void printFound(const Found& found) {
    print(found.name + '\t' + ShownPath(found.real) + '\n');
}

void listAll() {
    std::vector<std::string> pending{""};
    while (!pending.empty()) {
        const std::string directory = std::move(pending.back());
        pending.pop_back();
        const auto first = std::ssize(pending);
        for (auto& found : search(directory, "*"))
            if (found.directory)
                pending.push_back(std::move(found.name));
            else
                printFound(found);
        std::reverse(pending.begin() + first, pending.end());
    }
}

} // namespace

ExitCode cat(GameView& view, const Arguments& arguments) {
    InputFile(view.realPath(arguments.paths[0])).read(print);
    return Done;
}

ExitCode ls(GameView& view, const Arguments& arguments) {
    const ExitCode code = view.build() ? Findings : Done;
    const std::string path = arguments.paths.empty() ? "" : FromPlatform(arguments.paths[0]);
    const std::string mask = IsVFSPath(path) ? StripVFS(path) : path;
    if (mask.empty()) {
        listAll();
        return code;
    }
    bool any = false;
    for (const auto& directory : directoriesOf(mask))
        for (const auto& found : search(directory, mask.substr(mask.rfind('\\') + 1))) {
            printFound(found);
            any = true;
        }
    if (!any)
        throw Failure("Nothing in the view matches " + mask + '.');
    return code;
}
