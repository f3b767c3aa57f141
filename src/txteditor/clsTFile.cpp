#include "txteditor/clsTFile.h"

#include "core/mdlComFunctions.h"
#include "core/mdlCommon.h"
#include "files/mdlPaths.h"
#include "lornfd/lornfd.h"
#include "lornfd/paths.h"
#include "tdata/mdlKeshConst.h"
#include "txteditor/RecoveryJournal.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QFileInfo>

#include <functional>
#include <vector>

namespace {

/// Of no file: none is so large.
constexpr ContentMark nowhere{std::int64_t{1} << 62, 0};

std::string containerPath(const std::string& path) {
    return lornfd::resolvePath(CatalogPart(path));
}

QFileInfo containerOf(const std::string& path) {
    return QFileInfo(QString::fromStdString(containerPath(path)));
}

/// A hash of what an entry holds: its catalog changes whenever any entry does.
std::size_t contentHash(const std::string& path) {
    const std::int32_t file =
        LornFD_OpenFile(path, LORNFD_READ, LORNFD_OPEN_EXISTING, LORNFD_AS_IS);
    if (file == 0)
        return 0;
    const std::size_t hash = std::hash<std::string_view>()(LornFD_ViewFile(file));
    LornFD_CloseFile(file);
    return hash;
}

/// The name that tells the type of a file: without catalog and "vfs://".
std::string nameInside(const std::string& path) {
    if (IsVFSPath(path))
        return StripVFS(path);
    return IsCatalogPath(path) ? EntryPart(path) : path;
}

std::vector<bool> dirtyFlags(const clsTxtParser& parser) {
    std::vector<bool> flags;
    flags.reserve(parser.ByIndex().size() + 1);
    for (const RecordPtr& record : parser.ByIndex())
        flags.push_back(record->Dirty);
    flags.push_back(parser.Dirty());
    return flags;
}

void putBack(clsTxtParser& parser, const std::vector<bool>& flags) {
    for (std::size_t i = 0; i + 1 < flags.size(); ++i)
        parser.ByIndex()[i]->Dirty = flags[i];
    parser.SetDirty(flags.back());
}

} // namespace

clsTFile::Stamp clsTFile::StampOf(const std::string& Path) {
    const QFileInfo info = containerOf(Path);
    return {lornfd::foldCase(Path), info.exists() ? info.size() : -1,
            info.lastModified().toMSecsSinceEpoch(), IsCatalogPath(Path) ? contentHash(Path) : 0};
}

clsTFile::Result clsTFile::Open(const std::string& Name) {
    const auto real = RealPath(Name);
    if (!real)
        return {Outcome::NotFound, {}};
    Stamp stamp = StampOf(*real); // before reading, so that a change meanwhile is not missed
    const std::int32_t file =
        LornFD_OpenFile(*real, LORNFD_READ, LORNFD_OPEN_EXISTING, LORNFD_AS_IS);
    if (file == 0)
        return {Outcome::NotOpened, LornFDErrorText()};
    const bool loaded = Parser.Load(file, ObjectTypeFromFile(nameInside(Name)));
    m_base = {Name, *real, {}, Parser.otype()};
    m_asLoaded = loaded;
    LornFD_CloseFile(file);
    if (!loaded) {
        Result failed{Outcome::NotLoaded, Parser.GetLastError()};
        Parser = clsTxtParser();
        SetStamp({});
        return failed;
    }
    Parser.FileName = Name;
    SetStamp(std::move(stamp));
    return {};
}

void clsTFile::SetStamp(Stamp Now) {
    m_noticed = Now;
    m_stamp = std::move(Now);
}

clsTFile::Result clsTFile::Save(const std::string& Name, std::int32_t FileType,
                                const std::function<void(const JournalBase&)>& Announce) {
    const std::int32_t file =
        LornFD_OpenFileConvert(Name, LORNFD_WRITE, LORNFD_OPEN_EXISTING, FileType);
    if (file == 0)
        return {Outcome::NotOpened, LornFDErrorText()};
    const std::vector<bool> flags = dirtyFlags(Parser);
    JournalBase base;
    Result written = Write(file, [&] {
        base = {Name, Name, MarkOf(file), Parser.otype()};
        if (Announce)
            Announce(base);
    });
    if (written.Kind != Outcome::Done) {
        putBack(Parser, flags);
        return written;
    }
    Parser.FileName = Name;
    m_base = std::move(base);
    m_asLoaded = false;
    if (!ReadsBack())
        m_base.Content = nowhere;
    SetStamp(StampOf(Name));
    return {};
}

JournalBase clsTFile::Base() const {
    JournalBase base = m_base;
    if (m_asLoaded)
        base.Content = MarkOf(Parser.LoadedText());
    return base;
}

bool clsTFile::ReadsBack() const {
    const std::int32_t type = Parser.otype();
    return type < otype::JobWings || type > otype::IconData;
}

clsTFile::Result clsTFile::Write(std::int32_t File, const std::function<void()>& Announce) {
    if (!Parser.Save(File)) {
        LornFD_AbandonFile(File);
        return {Outcome::NotSaved, Parser.GetLastError()};
    }
    if (Parser.ByIndex().empty()) {
        LornFD_AbandonFile(File);
        return {
            Outcome::NotSaved,
            QCoreApplication::translate("clsTFile", "There is no object to save.").toStdString()};
    }
    Announce();
    if (LornFD_CloseFile(File) == 0)
        return {Outcome::NotSaved, LornFDErrorText()};
    return {};
}

std::string clsTFile::StoredPath() const {
    return RealPath(Parser.FileName).value_or(std::string());
}

std::string clsTFile::ContainerPath() const {
    return containerPath(m_base.StoredPath);
}

bool clsTFile::ChangedOnDisk(const std::string& Target) const {
    if (m_stamp.Path.empty() || lornfd::foldCase(Target) != m_stamp.Path)
        return false;
    const Stamp now = StampOf(Target);
    if (IsCatalogPath(Target))
        return now.Content != m_stamp.Content;
    return now.Size != m_stamp.Size || now.Modified != m_stamp.Modified;
}

bool clsTFile::NoticeChange() {
    const QFileInfo info = containerOf(m_base.StoredPath);
    const bool sameFile = info.size() == m_noticed.Size &&
                          info.lastModified().toMSecsSinceEpoch() == m_noticed.Modified;
    if (m_stamp.Path.empty() || !info.exists() || sameFile)
        return false;
    m_noticed = StampOf(m_base.StoredPath);
    return ChangedOnDisk(m_base.StoredPath);
}

std::int64_t FileSizeHint(const std::string& Path) {
    const auto real = RealPath(Path);
    return real ? containerOf(*real).size() : 0;
}
