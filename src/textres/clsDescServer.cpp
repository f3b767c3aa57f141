#include "textres/clsDescServer.h"

#include "core/clsSettings.h"
#include "core/mdlComFunctions.h"
#include "core/mdlCommon.h"
#include "files/mdlPaths.h"
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

/// The reason why a file cannot be loaded; empty if it can.
std::string loadFile(const std::string& place) {
    const std::int32_t file =
        LornFD_OpenFile(place, LORNFD_READ, LORNFD_OPEN_EXISTING, LORNFD_AS_IS);
    if (file == 0)
        return "Error opening file \"" + ShownPath(place) + "\":" + NewLine + LornFDErrorText();
    LornFD_CloseFile(file);
    return {};
}

} // namespace

std::vector<std::string> clsDescServer::FindFiles(std::int32_t Lang, bool NewerNames) {
    m_lastError.clear();
    VfsSearch search(languageMask(Lang, NewerNames));
    if (!search.Found()) {
        m_lastError = "No XML/PCK resource files with LangID=" + std::to_string(Lang) + " found.";
        return {};
    }
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
    const std::vector<std::string> places = FindFiles(Lang, !Settings || Settings->Ashfall());
    std::string errors = places.empty() ? m_lastError : std::string();
    for (const std::string& place : places)
        AppendLine(errors, loadFile(place), NewLine);
    m_lastError = errors;
    return m_lastError.empty();
}

std::int32_t clsDescServer::GetString(std::int32_t, std::int32_t) const {
    return 0;
}

std::string clsDescServer::GetStringDirect(std::int32_t Page, std::int32_t Id,
                                           const std::optional<std::string>& Default) const {
    return Default ? *Default : "[string " + std::to_string(Page) + ":" + std::to_string(Id) + "]";
}

void clsDescServer::Unload() {}
