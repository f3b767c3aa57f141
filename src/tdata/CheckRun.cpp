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

#include <algorithm>
#include <optional>

namespace {

bool AllDigits(std::string_view text) {
    return !text.empty() && text.find_first_not_of("0123456789") == text.npos;
}

/// The language in a name like "0001-L044.xml", or "440001.xml" as older ones are; none for others.
std::optional<std::int32_t> LanguageOf(const std::string& path) {
    constexpr std::string_view mark = "-l";
    constexpr std::size_t digits = 3;
    const std::string extension = lornfd::foldCase(std::string_view(ExtensionOf(path)));
    if (extension != "xml" && extension != "pck")
        return {};
    const std::string name = lornfd::foldCase(std::string_view(BaseName(path, true)));
    std::string_view language = name;
    if (AllDigits(language) && language.size() > 2)
        return keshobjects::readInteger(language.substr(0, 2));
    if (language.size() <= mark.size() + digits)
        return {};
    language.remove_prefix(language.size() - mark.size() - digits);
    const bool marked = language.starts_with(mark) && AllDigits(language.substr(mark.size()));
    return marked ? keshobjects::readInteger(language.substr(mark.size())) : std::nullopt;
}

/// A name that the game looks for, perhaps with more behind "_"; not any that only holds one.
bool IsGamesName(const std::string& path) {
    const std::string name = BaseName(path, true);
    const std::string_view stem = std::string_view(name).substr(0, name.find('_'));
    const auto is = [stem](std::string_view key) { return lornfd::equalNoCase(stem, key); };
    return std::ranges::any_of(WareFileNames(), is) ||
           std::ranges::any_of(ObjectTypeKeys(), is, &ObjectTypeKey::Key);
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
    m_wholeView = true;
    ForEachViewFile([this](const ViewFile& file) {
        if (LanguageOf(file.Name) || IsGamesName(file.Name))
            Add("vfs://" + file.Name, file.RealName);
    });
}

void CheckRun::Run(bool WithGame, std::int32_t Language, const TakeFindings& Findings,
                   const TakeFailure& Failed) const {
    CheckTexts(Findings, Failed);
    const bool allTexts = DescServer->LoadResources(Language);
    if (WithGame && !allTexts)
        Findings({{.Level = Severity::Note,
                   .Text = "Not all texts of language " + std::to_string(Language) +
                           " are there: " + DescServer->GetLastError()}});
    const bool withTexts = !EnumChildren(KESH_STORE).empty();
    CheckReferences references(WithGame, withTexts);
    CheckRecords(references, Findings, Failed);
    if (m_wholeView)
        Findings(CheckMergedWares(references));
}

void CheckRun::CheckTexts(const TakeFindings& Findings, const TakeFailure& Failed) const {
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
}

void CheckRun::CheckRecords(CheckReferences& References, const TakeFindings& Findings,
                            const TakeFailure& Failed) const {
    for (const File& file : m_tFiles) {
        clsTxtParser parser;
        const std::string error = Load(parser, file.RealName);
        if (error.empty())
            Findings(CheckTFile(parser, file.Shown, References));
        else
            Failed(Named(file.RealName, error));
    }
}
