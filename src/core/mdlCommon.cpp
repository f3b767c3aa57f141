#include "core/mdlCommon.h"

#include "core/mdlComFunctions.h"
#include "keshobjects/keshobjects.h"
#include "keshvfs/keshvfs.h"
#include "lornfd/lornfd.h"
#include "lornfd/paths.h"

#include <algorithm>

namespace {

constexpr std::string_view VfsPrefix = "vfs://";
constexpr std::string_view EntrySign = "::";

using Translate = std::int32_t (*)(std::int32_t, char*, std::int32_t, std::int32_t*);

std::string ErrorText(std::int32_t code, Translate translate) {
    std::int32_t needed = 0;
    translate(code, nullptr, 0, &needed);
    std::string buffer(static_cast<std::size_t>(std::max(needed, 0)), ' ');
    translate(code, buffer.data(), needed, &needed);
    return TrimNull(buffer);
}

} // namespace

std::string ProgramTitle() {
    return "Kesh Editor";
}
std::string ProgramVersion() {
    return KESH_VERSION;
}
std::string ProgramID() {
    return ProgramVersion() + " " + ProgramTitle();
}

bool IsVFSPath(std::string_view Path) {
    return Path.starts_with(VfsPrefix);
}

std::string StripVFS(std::string_view Path) {
    return IsVFSPath(Path) ? std::string(Path.substr(VfsPrefix.size())) : std::string();
}

bool IsCatalogPath(std::string_view Path) {
    return Path.find(EntrySign) != Path.npos;
}

std::string CatalogPart(std::string_view Path) {
    return std::string(Path.substr(0, Path.find(EntrySign)));
}

std::string EntryPart(std::string_view Path) {
    const auto sign = Path.find(EntrySign);
    return sign == Path.npos ? std::string() : std::string(Path.substr(sign + EntrySign.size()));
}

std::string NameOfFile(std::string_view Path) {
    if (IsVFSPath(Path))
        return BaseName(StripVFS(Path), false);
    return BaseName(IsCatalogPath(Path) ? EntryPart(Path) : std::string(Path), false);
}

std::string SplitCatalogPath(std::string_view Path, std::string& Catalog) {
    if (!IsCatalogPath(Path))
        return std::string(Path);
    std::string entry = EntryPart(Path);
    Catalog = CatalogPart(Path);
    return entry;
}

std::string WithBackslashes(std::string_view Path) {
    return IsVFSPath(Path) ? std::string(VfsPrefix) + lornfd::programPath(StripVFS(Path))
                           : lornfd::programPath(Path);
}

std::string LornFDErrorText() {
    return ErrorText(LornFD_GetLastError(), LornFD_TranslateError);
}
std::string KeshVFSErrorText() {
    return ErrorText(KeshVFS_GetLastError(), KeshVFS_TranslateError);
}
std::string KeshErrorText() {
    return ErrorText(Kesh_GetLastError(), Kesh_TranslateError);
}
