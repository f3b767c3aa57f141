#include "keshobjects/keshtexthandles.h"

#include <optional>

namespace keshobjects {
namespace {

/// Hands out as many handles as fit.
class HandleList {
public:
    HandleList(std::int32_t* handles, std::int32_t capacity) : m_next(handles), m_left(capacity) {}

    /// False if nothing more fits.
    bool add(std::int32_t handle) {
        if (m_left <= 0)
            return false;
        *m_next++ = handle;
        return --m_left > 0;
    }

private:
    std::int32_t* m_next;
    std::int32_t m_left;
};

template <typename Items>
std::size_t listObjects(const Items& items, HandleList list) {
    for (const auto& item : items)
        if (!list.add(item->handle()))
            break;
    return items.size();
}

std::size_t listStrings(const StoredPage& page, HandleList list) {
    std::uint32_t position = page.first;
    for (std::uint32_t i = 0; i < page.count; ++i) {
        if (!list.add(storedHandle(storeStringBase, position)))
            break;
        position = store().string(position).next;
    }
    return page.count;
}

std::size_t listPages(HandleList list) {
    const auto count = static_cast<std::uint32_t>(store().pages().size());
    for (std::uint32_t i = 0; i < count && list.add(storedHandle(storePageBase, i)); ++i) {
    }
    return count;
}

std::optional<std::size_t> listChildren(std::int32_t object, HandleList list) {
    if (object == KESH_STORE)
        return listPages(list);
    if (const TextFile* const file = fileOf(object))
        return listObjects(file->pages, list);
    if (const TextPage* const page = pageOf(object))
        return listObjects(page->strings, list);
    if (const StoredPage* const page = storedPageOf(object))
        return listStrings(*page, list);
    if (stringOf(object) != nullptr || storedStringOf(object) != nullptr)
        return 0;
    return std::nullopt;
}

} // namespace
} // namespace keshobjects

using namespace keshobjects;

std::int32_t Kesh_EnumObjects(std::int32_t Object, std::int32_t* Handles, std::int32_t Capacity,
                              std::int32_t& Count) {
    lastError().clear();
    const auto count = listChildren(Object, HandleList(Handles, Capacity));
    if (!count)
        return failHandle(Object);
    Count = static_cast<std::int32_t>(*count);
    return 1;
}
