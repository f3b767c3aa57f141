#include "textres/clsDescServer.h"

#include "core/clsSettings.h"
#include "core/mdlComFunctions.h"
#include "core/mdlCommon.h"
#include "files/mdlPaths.h"
#include "keshobjects/keshobjects.h"
#include "keshobjects/keshtexts.h"
#include "keshobjects/value.h"
#include "lornfd/lornfd.h"

#include <QString>

#include <algorithm>

std::unique_ptr<clsDescServer> DescServer;

namespace {

constexpr const char* NewLine = "\r\n";

std::string languageMask(std::int32_t lang, bool newerNames) {
    const QString mask = newerNames ? QStringLiteral("t\\*-L%1") : QStringLiteral("t\\%1*");
    return mask.arg(lang, newerNames ? 3 : 0, 10, QLatin1Char('0')).toStdString();
}

std::string nameOfPlace(const std::string& place) {
    return BaseName(IsCatalogPath(place) ? EntryPart(place) : place, true);
}

bool isLanguageFile(const VfsSearch& search, bool newerNames) {
    return !search.IsDirectory() &&
           (newerNames || keshobjects::readNumber(BaseName(search.Name(), true)));
}

std::int32_t openForReading(const std::string& place) {
    return LornFD_OpenFile(place, LORNFD_READ, LORNFD_OPEN_EXISTING, LORNFD_AS_IS);
}

std::string openError(const std::string& place) {
    return "Error opening file \"" + ShownPath(place) + "\":" + NewLine + LornFDErrorText();
}

/// Adds a file to the store. Gives the reason why that fails; empty if it does not.
std::string loadFile(const std::string& place) {
    const std::int32_t file = openForReading(place);
    if (file == 0)
        return openError(place);
    std::string error;
    if (Kesh_TREDescServerLoadFile(file) == 0)
        error = ShownPath(place) + ":" + NewLine + KeshErrorText();
    LornFD_CloseFile(file);
    return error;
}

} // namespace

std::vector<std::string> clsDescServer::FindFiles(std::int32_t Lang, bool NewerNames) {
    m_lastError.clear();
    VfsSearch search(languageMask(Lang, NewerNames));
    if (!search.Found()) {
        m_lastError = "No XML/PCK resource files with LangID=" + std::to_string(Lang) + " found.";
        return {};
    }
    m_currentLanguage = Lang;
    std::vector<std::string> places;
    for (; search.Found(); search.Next())
        if (isLanguageFile(search, NewerNames))
            places.push_back(search.RealName());
    std::stable_sort(places.begin(), places.end(), [](const std::string& a, const std::string& b) {
        return nameOfPlace(a) < nameOfPlace(b);
    });
    return places;
}

bool clsDescServer::LoadResources(std::int32_t Lang) {
    Unload();
    Kesh_TRESetLangID(KESH_STORE, Lang);
    const std::vector<std::string> places = FindFiles(Lang, !Settings || Settings->Ashfall());
    std::string errors = places.empty() ? m_lastError : std::string();
    for (const std::string& place : places)
        AppendLine(errors, loadFile(place), NewLine);
    Kesh_TREDescServerTranslateStrings();
    m_lastError = errors;
    return m_lastError.empty();
}

std::int32_t clsDescServer::GetString(std::int32_t Page, std::int32_t Id) const {
    return Kesh_TREFindString(KESH_STORE, Page, Id);
}

std::string clsDescServer::GetStringDirect(std::int32_t Page, std::int32_t Id,
                                           const std::optional<std::string>& Default) const {
    if (const std::int32_t string = GetString(Page, Id))
        return TextOfString(string);
    return Default ? *Default : "[string " + std::to_string(Page) + ":" + std::to_string(Id) + "]";
}

void clsDescServer::Unload() {
    Kesh_TREDescServerUnload();
}

std::int32_t clsDescServer::OpenFile(const std::string& Path) {
    m_lastError.clear();
    const std::int32_t file = openForReading(Path);
    if (file == 0) {
        m_lastError = openError(Path);
        return 0;
    }
    const std::int32_t object = Kesh_LoadFromFile(file, 3);
    if (object == 0)
        m_lastError = "Error loading file \"" + ShownPath(Path) + "\":" + NewLine + KeshErrorText();
    LornFD_CloseFile(file);
    return object;
}

bool clsDescServer::SaveFile(std::int32_t /*Object*/) {
    return false;
}

std::string TextOfString(std::int32_t String) {
    std::int32_t id = 0;
    std::int32_t second = 0;
    std::string text;
    return Kesh_TREGetStringInfo(String, id, second, text) != 0 ? text : std::string();
}

std::vector<std::int32_t> EnumChildren(std::int32_t Object) {
    std::int32_t count = 0;
    if (Kesh_EnumObjects(Object, nullptr, 0, count) == 0 || count == 0)
        return {};
    std::vector<std::int32_t> children(static_cast<std::size_t>(count));
    Kesh_EnumObjects(Object, children.data(), count, count);
    return children;
}
