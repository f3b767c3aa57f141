#include "app/Requests.h"

#include "core/mdlComFunctions.h"
#include "core/mdlCommon.h"
#include "files/mdlPaths.h"
#include "keshobjects/keshobjects.h"
#include "lornfd/paths.h"
#include "tdata/mdlKeshConst.h"

#include <algorithm>
#include <array>

namespace {

struct TypeArgument {
    std::string_view Text;
    FileKind Kind;
};

constexpr std::array typeArguments = {
    TypeArgument{"-tfile", FileKind::TFile},
    TypeArgument{"-map", FileKind::GalaxyMap},
    TypeArgument{"-xml", FileKind::Xml},
};

constexpr std::size_t mostArguments = 2; ///< of a command line that can be carried out

bool isAbsolute(const std::string& path) {
    return path.starts_with('\\') || !RootOf(path).empty();
}

} // namespace

FileKind FileKindOf(const std::string& File, std::string_view Type) {
    std::string wanted = lornfd::foldCase(Type);
    std::replace(wanted.begin(), wanted.end(), '/', '-');
    for (const TypeArgument& known : typeArguments)
        if (known.Text == wanted)
            return known.Kind;
    return ObjectTypeFromFile(NameOfFile(File)) != otype::None ? FileKind::TFile
                                                               : FileKind::Unknown;
}

std::string RequestOf(std::vector<std::string> Arguments, const std::string& WorkingDirectory) {
    if (!Arguments.empty() && Arguments.size() <= mostArguments) {
        std::string& file = Arguments.back();
        file = FromPlatform(file);
        if (!file.empty() && !IsVFSPath(file) && !isAbsolute(file))
            file = JoinPath({FromPlatform(WorkingDirectory), file});
    }
    return Kesh_ArgVToCommandLine(Arguments);
}
