#include "tdata/CheckRun.h"

#include "core/mdlComFunctions.h"
#include "core/mdlCommon.h"
#include "files/ViewFiles.h"
#include "files/mdlPaths.h"
#include "keshobjects/keshtexts.h"
#include "keshobjects/value.h"
#include "lornfd/lornfd.h"
#include "lornfd/paths.h"
#include "tdata/mdlKeshConst.h"
#include "textres/clsDescServer.h"

#include <optional>

namespace {

/// The language in a name like "0001-L044.xml"; none for other names.
std::optional<std::int32_t> LanguageOf(const std::string& path) {
    const std::string extension = lornfd::foldCase(ExtensionOf(path));
    const std::string name = lornfd::foldCase(BaseName(path, true));
    const std::size_t mark = name.rfind("-l");
    if ((extension != "xml" && extension != "pck") || mark == name.npos)
        return {};
    return keshobjects::readInteger(std::string_view(name).substr(mark + 2));
}

/// Why the file cannot be loaded; empty if it is.
std::string Load(clsTxtParser& parser, const std::string& path) {
    const std::int32_t file =
        LornFD_OpenFile(path, LORNFD_READ, LORNFD_OPEN_EXISTING, LORNFD_AS_IS);
    if (file == 0)
        return LornFDErrorText();
    const bool loaded = parser.Load(file, ObjectTypeFromFile(path));
    LornFD_CloseFile(file);
    return loaded ? "" : parser.GetLastError();
}

/// A reason with the name of the file, which many have already.
std::string Named(const std::string& path, const std::string& reason) {
    const std::string shown = ShownPath(path);
    return reason.find(shown) != reason.npos ? reason : shown + ": " + reason;
}

} // namespace

bool CheckRun::Add(const std::string& Shown, const std::string& RealName) {
    if (const auto language = LanguageOf(RealName))
        m_languageFiles[*language].push_back({Shown, RealName});
    else if (IsTFileName(RealName))
        m_tFiles.push_back({Shown, RealName});
    else
        return false;
    return true;
}

void CheckRun::AddView() {
    ForEachViewFile([this](const ViewFile& file) { Add("vfs://" + file.Name, file.RealName); });
}

void CheckRun::Run(std::int32_t Language, const TakeFindings& Findings,
                   const TakeFailure& Failed) const {
    for (const auto& [language, files] : m_languageFiles) {
        DescServer->LoadResources(language);
        for (const File& file : files) {
            const std::int32_t texts = DescServer->OpenFile(file.RealName);
            if (texts == 0) {
                Failed(Named(file.RealName, DescServer->GetLastError()));
                continue;
            }
            Findings(CheckLanguageFile(texts, file.Shown));
            Kesh_DeleteHandle(0, texts);
        }
    }
    DescServer->LoadResources(Language);
    std::int32_t pages = 0;
    Kesh_EnumObjects(KESH_STORE, nullptr, 0, pages);
    CheckReferences references(pages > 0);
    for (const File& file : m_tFiles) {
        clsTxtParser parser;
        const std::string error = Load(parser, file.RealName);
        if (error.empty())
            Findings(CheckTFile(parser, file.Shown, references));
        else
            Failed(Named(file.RealName, error));
    }
}
