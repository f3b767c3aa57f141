#include "lornfd/handletable.h"

#include "lornfd/errors.h"

#include <limits>
#include <string>
#include <utility>

namespace lornfd {

HandleTable& HandleTable::instance() {
    static HandleTable table;
    return table;
}

std::int32_t HandleTable::add(std::unique_ptr<Handle> object) {
    if (!object)
        return 0;
    const std::scoped_lock lock(m_mutex);
    do {
        m_last = m_last == std::numeric_limits<std::int32_t>::max() ? 1 : m_last + 1;
    } while (m_open.contains(m_last));
    m_open.emplace(m_last, std::move(object));
    return m_last;
}

Handle* HandleTable::find(std::int32_t handle) {
    const std::scoped_lock lock(m_mutex);
    const auto found = m_open.find(handle);
    return found != m_open.end() ? found->second.get() : nullptr;
}

std::int32_t failHandle(std::int32_t handle) {
    fail(LORNFD_E_HANDLE, {.file = {},
                           .place = std::to_string(handle),
                           .reason = "it is not open, or open for something else"});
    return 0;
}

} // namespace lornfd
