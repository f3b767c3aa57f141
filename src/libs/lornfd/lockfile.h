// Keeps two programs from writing one file at a time.
#pragma once

#include <memory>
#include <string>

class QLockFile;

namespace lornfd {

/// Holds a lock file beside a target while it lives. One that a dead program left is taken over.
class TargetLock {
public:
    /// Waits a moment for another writer. Null with the last error set if the target stays locked
    /// or its directory refuses a file. `target` is a native path with its links followed.
    static std::unique_ptr<TargetLock> take(const std::string& target);
    ~TargetLock();

private:
    explicit TargetLock(std::unique_ptr<QLockFile> lock);
    std::unique_ptr<QLockFile> m_lock;
};

} // namespace lornfd
