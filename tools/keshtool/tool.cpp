#include "tool.h"

#include "core/mdlCommon.h"
#include "files/mdlPaths.h"
#include "keshvfs/keshvfs.h"
#include "lornfd/lornfd.h"

#include <cstdio>

bool GameView::build() {
    if (m_built)
        return m_warned;
    m_built = true;
    if (!KeshVFS_CreateVFS(FromPlatform(dataRoot)))
        throw Failure(KeshVFSErrorText());
    for (const auto& mod : mods)
        if (!KeshVFS_AppendCatalog(FromPlatform(mod)))
            throw Failure(KeshVFSErrorText());
    const std::string warnings = KeshVFS_Warnings();
    m_warned = !warnings.empty();
    std::fwrite(warnings.data(), 1, warnings.size(), stderr);
    return m_warned;
}

std::string GameView::realPath(std::string_view path) {
    if (IsVFSPath(path))
        build();
    const auto real = RealPath(FromPlatform(path));
    if (!real)
        throw Failure("File " + std::string(path) + " not found.");
    return *real;
}

InputFile::InputFile(const std::string& path)
    : m_handle(LornFD_OpenFile(path, LORNFD_READ, LORNFD_OPEN_EXISTING, LORNFD_AS_IS)) {
    if (!m_handle)
        throw Failure(LornFDErrorText());
}

InputFile::~InputFile() {
    LornFD_CloseFile(m_handle);
}

std::string_view InputFile::content() const {
    const std::string_view content = LornFD_ViewFile(m_handle);
    if (!content.data())
        throw Failure(LornFDErrorText());
    return content;
}

std::size_t InputFile::readBlock(std::vector<char>& block) const {
    const std::int64_t size = LornFD_ReadFile(m_handle, block.data(), std::ssize(block));
    if (size < 0)
        throw Failure(LornFDErrorText());
    return static_cast<std::size_t>(size);
}

OutputFile::OutputFile(const std::string& path, std::int32_t fileType)
    : m_handle(LornFD_OpenFile(path, LORNFD_WRITE, LORNFD_CREATE, fileType)) {
    if (!m_handle)
        throw Failure(LornFDErrorText());
}

OutputFile::~OutputFile() {
    if (m_handle)
        LornFD_AbandonFile(m_handle);
}

void OutputFile::write(std::string_view bytes) {
    if (!LornFD_WriteFile(m_handle, bytes.data(), std::ssize(bytes)))
        throw Failure(LornFDErrorText());
}

void OutputFile::commit() {
    const std::int32_t handle = m_handle;
    m_handle = 0;
    if (!LornFD_CloseFile(handle))
        throw Failure(LornFDErrorText());
}

void print(std::string_view text) {
    if (std::fwrite(text.data(), 1, text.size(), stdout) != text.size())
        throw Failure("Standard output could not be written.");
}

void complain(std::string_view text) {
    const std::string line = "keshtool: " + oneLine(text) + '\n';
    std::fwrite(line.data(), 1, line.size(), stderr);
}

std::string oneLine(std::string_view text) {
    std::string line;
    for (const char c : text)
        if (c != '\r' && c != '\n')
            line += c;
        else if (!line.ends_with(' '))
            line += ' ';
    return line;
}
