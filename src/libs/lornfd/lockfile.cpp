#include "lornfd/lockfile.h"

#include "lornfd/errors.h"

#include <QLockFile>
#include <QString>

#include <chrono>
#include <utility>

namespace lornfd {

namespace {

using namespace std::chrono_literals;

// A living program holds a system lock on its lock file as well, so that age alone never breaks
// one; it matters only for a lock file whose writer died before it stood in it.
constexpr auto staleAge = 1s;
constexpr auto patience = 2s;

std::string holderOf(const QLockFile& lock) {
    qint64 process = 0;
    QString host;
    QString program;
    if (!lock.getLockInfo(&process, &host, &program))
        return {};
    return " (" + program.toStdString() + ", process " + std::to_string(process) + ")";
}

} // namespace

TargetLock::TargetLock(std::unique_ptr<QLockFile> lock) : m_lock(std::move(lock)) {}

TargetLock::~TargetLock() = default;

std::unique_ptr<TargetLock> TargetLock::take(const std::string& target) {
    auto lock = std::make_unique<QLockFile>(QString::fromStdString(target + ".kesh-lock"));
    lock->setStaleLockTime(std::chrono::milliseconds(staleAge).count());
    if (lock->tryLock(std::chrono::milliseconds(patience).count()))
        return std::unique_ptr<TargetLock>(new TargetLock(std::move(lock)));
    if (lock->error() == QLockFile::LockFailedError)
        fail(LORNFD_E_LOCKED, {.file = target, .place = {}, .reason = holderOf(*lock)});
    else if (lock->error() == QLockFile::PermissionError)
        fail(LORNFD_E_WRITE, {.file = target,
                              .place = {},
                              .reason = "its directory takes no new file from this user"});
    else
        fail(LORNFD_E_WRITE, {.file = target,
                              .place = {},
                              .reason = "a lock file could not be made in its directory; the "
                                        "directory is missing or the disk is full"});
    return nullptr;
}

} // namespace lornfd
