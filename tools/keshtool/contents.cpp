#include "commands.h"
#include "core/mdlCommon.h"
#include "files/ViewFiles.h"
#include "files/mdlPaths.h"

namespace {

/// The directories that all but the last part of a mask match.
std::vector<std::string> directoriesOf(std::string_view mask) {
    std::vector<std::string> level{""};
    for (std::size_t end = mask.find('\\'); end != mask.npos; end = mask.find('\\')) {
        std::vector<std::string> next;
        for (const auto& directory : level)
            for (auto& found : SearchView(directory, std::string(mask.substr(0, end))))
                if (found.IsDirectory)
                    next.push_back(std::move(found.Name));
        level = std::move(next);
        mask.remove_prefix(end + 1);
    }
    return level;
}

void printFound(const ViewFile& found) {
    print(found.Name + '\t' + ShownPath(found.RealName) + '\n');
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
        ForEachViewFile(printFound);
        return code;
    }
    bool any = false;
    for (const auto& directory : directoriesOf(mask))
        for (const auto& found : SearchView(directory, mask.substr(mask.rfind('\\') + 1))) {
            printFound(found);
            any = true;
        }
    if (!any)
        throw Failure("Nothing in the view matches " + mask + '.');
    return code;
}
