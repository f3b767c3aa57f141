#include "tdata/clsArchive.h"

#include "core/mdlComFunctions.h"
#include "core/mdlCommon.h"
#include "files/mdlPaths.h"
#include "lornfd/lornfd.h"
#include "lornfd/paths.h"
#include "tdata/mdlKeshConst.h"

std::unique_ptr<clsArchive> Archive;

namespace {

std::string KeyOf(std::string_view name) {
    return lornfd::foldCase(std::string_view(BaseName(name, true)));
}

} // namespace

std::string clsArchive::LoadError() const {
    return m_loadError ? "True" : "False";
}

bool clsArchive::IsFileLoaded(std::string_view Name) const {
    return m_files.contains(KeyOf(Name));
}

std::shared_ptr<clsTxtParser> clsArchive::GetFile(std::string_view Name) {
    if (const auto found = m_files.find(KeyOf(Name)); found != m_files.end())
        return found->second;
    auto parser = LoadParser(JoinPath({"types", std::string(Name)}));
    if (!parser || !parser->Parsed())
        return {};
    m_files.emplace(KeyOf(parser->FileName), parser);
    return parser;
}

std::shared_ptr<clsTxtParser> clsArchive::LoadParser(const std::string& Path) {
    const std::int32_t type = ObjectTypeFromFile(Path);
    Kesh_TXTIgnoreRemarks(type == otype::Jobs ? 1 : 0);
    if (const std::int32_t text = LoadText(Path); text != 0) {
        auto parser = std::make_shared<clsTxtParser>();
        if (!parser->LoadFromHandle(text, type))
            m_lastError = parser->GetLastError();
        parser->FileName = Path;
        return parser;
    }
    m_loadError = true;
    const std::string line = Path + ": " + m_lastError;
    if (m_notLoaded.find(line) == std::string::npos) // panels ask again for each of their files
        AppendLine(m_notLoaded, line, "\r\n");
    m_lastError = "Error loading " + Path + ":\r\n\r\n" + m_lastError;
    return {};
}

std::int32_t clsArchive::LoadText(const std::string& Path) {
    const auto real = FindInVFS(Path);
    if (!real) {
        m_lastError = "File not found in VFS";
        return 0;
    }
    const std::int32_t file =
        LornFD_OpenFile(*real, LORNFD_READ, LORNFD_OPEN_EXISTING, LORNFD_AS_IS);
    if (file == 0) {
        m_lastError = LornFDErrorText();
        return 0;
    }
    const std::int32_t text = Kesh_LoadFromFile(file, 0);
    if (text == 0)
        m_lastError = KeshErrorText();
    static_cast<void>(LornFD_CloseFile(file));
    return text;
}

void clsArchive::ClearErrors() {
    m_lastError.clear();
    m_notLoaded.clear();
    m_notParsed.clear();
    m_loadError = false;
}

void clsArchive::Clear() {
    m_files.clear();
    ClearErrors();
}

std::shared_ptr<clsTxtParser> GameFileOf(std::string_view Name) {
    return Archive ? Archive->GetFile(Name) : nullptr;
}
