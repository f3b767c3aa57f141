#include "tfile.h"

#include "core/mdlCommon.h"
#include "files/mdlPaths.h"
#include "tdata/mdlKeshConst.h"

Failure tFileFailure(const std::string& path, std::string_view reason) {
    const std::string shown = ShownPath(path);
    std::string text(reason);
    if (text.find(shown) == std::string::npos)
        text = shown + ": " + text;
    return Failure(text);
}

void loadTFile(clsTxtParser& parser, const std::string& path) {
    const InputFile file(path);
    if (!parser.Load(file.handle(), ObjectTypeFromFile(path)) && !parser.GetLastError().empty())
        throw tFileFailure(path, parser.GetLastError());
}
