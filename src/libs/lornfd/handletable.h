// Numbers for what is open.
#pragma once

#include "lornfd/handle.h"

#include <cstdint>
#include <memory>
#include <mutex>
#include <unordered_map>

namespace lornfd {

class HandleTable {
public:
    static HandleTable& instance();

    /// Gives a handle, 0 for a null object.
    std::int32_t add(std::unique_ptr<Handle> object);
    /// Null if the handle is not open.
    Handle* find(std::int32_t handle);
    /// Takes an object of that kind out; null, and nothing changes, if the handle is none.
    template <typename Kind>
    std::unique_ptr<Kind> take(std::int32_t handle) {
        const std::scoped_lock lock(m_mutex);
        const auto found = m_open.find(handle);
        Kind* object = found != m_open.end() ? dynamic_cast<Kind*>(found->second.get()) : nullptr;
        if (!object)
            return nullptr;
        static_cast<void>(found->second.release());
        m_open.erase(found);
        return std::unique_ptr<Kind>(object);
    }

private:
    std::mutex m_mutex;
    std::unordered_map<std::int32_t, std::unique_ptr<Handle>> m_open;
    std::int32_t m_last = 0;
};

/// Sets the last error for a handle that is not open or not of the right kind. Gives 0.
std::int32_t failHandle(std::int32_t handle);

} // namespace lornfd
