#include "txteditor/RecoveryJournal.h"

#include "files/mdlPaths.h"
#include "lornfd/lornfd.h"
#include "lornfd/paths.h"
#include "lornfd/platform.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QDir>
#include <QLockFile>
#include <QUuid>

#include <algorithm>
#include <chrono>
#include <utility>

namespace {

using namespace std::chrono_literals;

struct Texts {
    Q_DECLARE_TR_FUNCTIONS(RecoveryJournal)
};

// A living program holds a system lock on its lock file as well, so that age alone breaks none.
constexpr auto staleAge = 1s;
// More is not read into memory.
constexpr qint64 mostBytes = qint64{1} << 30;

QString nativeName(const std::string& path) {
    return QString::fromStdString(lornfd::nativePath(path));
}

QString lockName(const QString& journal) {
    return journal + QStringLiteral(".lock");
}

QByteArray bytesOf(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.read(std::min(file.size(), mostBytes))
                                          : QByteArray();
}

/// The part that goes on from what the disk has; none if it has nothing of them.
const JournalPart* fittingPart(const std::vector<JournalPart>& parts) {
    const auto part = std::find_if(parts.rbegin(), parts.rend(),
                                   [](const JournalPart& each) { return FitsDisk(each.Base); });
    return part == parts.rend() ? nullptr : &*part;
}

/// Everything from a part on: what a save that did not come about was announced in, goes on.
std::vector<RecordSteps> commandsFrom(const std::vector<JournalPart>& parts,
                                      const JournalPart& first) {
    std::vector<RecordSteps> commands;
    for (auto part = &first; part != parts.data() + parts.size(); ++part)
        commands.insert(commands.end(), part->Commands.begin(), part->Commands.end());
    return commands;
}

std::optional<LeftJournal> readLeft(JournalFile file, const QFileInfo& info) {
    const QByteArray bytes = bytesOf(info.filePath());
    const JournalContent content =
        ReadJournal({bytes.constData(), static_cast<std::size_t>(bytes.size())});
    if (content.Parts.empty())
        return {};
    const JournalPart* const fitting = fittingPart(content.Parts);
    const JournalPart& part = fitting ? *fitting : content.Parts.front();
    LeftJournal left{.File = std::move(file),
                     .Base = part.Base,
                     .Commands = commandsFrom(content.Parts, part),
                     .Fits = fitting != nullptr,
                     .Changed = info.lastModified().toMSecsSinceEpoch(),
                     .Length = content.Length};
    if (!left.Commands.empty())
        return left;
    left.File.Remove();
    return {};
}

/// Removes the locks of programs that were killed when they had no journal.
void removeBareLocks(const QDir& directory) {
    const QStringList locks = directory.entryList({QStringLiteral("*.journal.lock")}, QDir::Files);
    for (const QString& lock : locks) {
        const QString journal = directory.filePath(lock).chopped(5);
        if (!QFileInfo::exists(journal))
            static_cast<void>(JournalFile::Hold(journal.toStdString()));
    }
}

} // namespace

std::optional<ContentMark> MarkOf(std::int32_t File) {
    ContentMark mark;
    if (LornFD_Checksum(File, &mark.Size, &mark.Checksum) == 0)
        return {};
    return mark;
}

ContentMark MarkOf(std::string_view Content) {
    return {static_cast<std::int64_t>(Content.size()), LornFD_ChecksumOf(Content)};
}

bool FitsDisk(const JournalBase& Base) {
    if (!Base.Content)
        return Base.StoredPath.empty() || LornFD_FileExists(Base.StoredPath) == 0;
    const std::int32_t file =
        LornFD_OpenFile(Base.StoredPath, LORNFD_READ, LORNFD_OPEN_EXISTING, LORNFD_AS_IS);
    const bool fits = file != 0 && MarkOf(file) == Base.Content;
    LornFD_CloseFile(file);
    return fits;
}

JournalFile::JournalFile(JournalFile&&) noexcept = default;
JournalFile& JournalFile::operator=(JournalFile&&) noexcept = default;
JournalFile::~JournalFile() = default;

std::optional<JournalFile> JournalFile::Hold(const std::string& NativePath) {
    JournalFile file;
    file.m_path = NativePath;
    file.m_lock = std::make_unique<QLockFile>(lockName(QString::fromStdString(NativePath)));
    file.m_lock->setStaleLockTime(std::chrono::milliseconds(staleAge).count());
    if (!file.m_lock->tryLock(0))
        return {};
    return file;
}

void JournalFile::Remove() {
    if (!m_path.empty())
        QFile::remove(QString::fromStdString(m_path));
    *this = {};
}

std::vector<LeftJournal> FindLeftJournals(const std::string& Directory) {
    std::vector<LeftJournal> journals;
    const QDir directory(nativeName(Directory));
    const auto files = directory.entryInfoList(
        {QStringLiteral("*.journal")}, QDir::Files | QDir::NoSymLinks, QDir::Time | QDir::Reversed);
    for (const QFileInfo& info : files)
        if (auto held = JournalFile::Hold(info.filePath().toStdString()))
            if (auto left = readLeft(std::move(*held), info))
                journals.push_back(std::move(*left));
    removeBareLocks(directory);
    return journals;
}

RecoveryJournal::RecoveryJournal(std::string Directory) : m_directory(std::move(Directory)) {}

RecoveryJournal::~RecoveryJournal() = default;

void RecoveryJournal::Begin(std::function<JournalBase()> Base) {
    Discard();
    m_base = std::move(Base);
}

void RecoveryJournal::TakeOver(LeftJournal&& Left) {
    Begin([base = std::move(Left.Base)] { return base; });
    m_file = std::move(Left.File);
    m_length = static_cast<std::int64_t>(Left.Length);
}

void RecoveryJournal::Append(const RecordSteps& Steps) {
    if (!Steps.empty())
        m_pending += JournalEntry(Steps);
}

std::string RecoveryJournal::AnnounceSave(const JournalBase& Base) {
    if (m_pending.empty() && m_length == 0)
        return {};
    m_pending += JournalEntry(Base);
    return Flush();
}

std::string RecoveryJournal::Flush() {
    if (m_pending.empty())
        return {};
    const std::string reason = WritePending();
    if (reason.empty()) {
        m_length += static_cast<std::int64_t>(m_pending.size());
        m_pending.clear();
    }
    if (reason.empty() || std::exchange(m_told, true)) {
        m_told = !reason.empty();
        return {};
    }
    return Texts::tr("Changes cannot be noted for recovery in \"%1\": %2. If the program is "
                     "interrupted, what is not saved is lost.")
        .arg(ShownText(m_directory), QString::fromStdString(reason))
        .toStdString();
}

std::string RecoveryJournal::WritePending() {
    if (m_file.Path().empty()) {
        const QDir directory(nativeName(m_directory));
        directory.mkpath(QStringLiteral("."));
        const QString name = QUuid::createUuid().toString(QUuid::WithoutBraces);
        auto held =
            JournalFile::Hold(directory.filePath(name + QStringLiteral(".journal")).toStdString());
        if (!held)
            return Texts::tr("no file can be made there").toStdString();
        m_file = std::move(*held);
    }
    const bool made = m_length == 0;
    if (made && !m_pending.starts_with(JournalSignature))
        m_pending = std::string(JournalSignature) + JournalEntry(m_base()) + m_pending;
    lornfd::platform::File file;
    std::error_code error;
    // What a write left that failed half-way, or a program that was killed, must not stand behind.
    if (!(error = file.openForWriting(m_file.Path())) && !(error = file.truncate(m_length)) &&
        !(error = file.write(m_length, m_pending)) && !(error = file.flush()) && made)
        error = lornfd::platform::flushDirectoryOf(m_file.Path());
    return error ? error.message() : std::string();
}

void RecoveryJournal::Discard() {
    m_file.Remove();
    m_length = 0;
    m_pending.clear();
}
