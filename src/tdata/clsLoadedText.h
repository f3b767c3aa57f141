// The text of one loaded T file with the places of its values; shared by every record read from it.
#pragma once

#include "keshobjects/bigmemory.h"
#include "keshobjects/places.h"

#include <cstdint>
#include <memory>
#include <string_view>
#include <vector>

/// Leaves new elements as they are: a hundred megabytes of places need not be zeroed before they
/// are read.
template <class T>
struct UnsetAllocator : keshobjects::BigAllocator<T> {
    template <class U>
    struct rebind {
        using other = UnsetAllocator<U>;
    };
    template <class U>
    void construct(U* at) noexcept {
        ::new (static_cast<void*>(at)) U;
    }
    template <class U, class... Args>
    void construct(U* at, Args&&... args) {
        ::new (static_cast<void*>(at)) U(std::forward<Args>(args)...);
    }
};

class clsLoadedText {
public:
    /// Takes over a text handle of keshobjects and frees it with itself.
    explicit clsLoadedText(std::int32_t handle)
        : m_handle(handle), m_text(Kesh_TXTGetText(handle)) {}
    ~clsLoadedText() { Kesh_DeleteHandle(0, m_handle); }
    clsLoadedText(const clsLoadedText&) = delete;
    clsLoadedText& operator=(const clsLoadedText&) = delete;

    [[nodiscard]] std::int32_t Handle() const noexcept { return m_handle; }
    [[nodiscard]] std::string_view Text() const noexcept { return m_text; }
    std::vector<KeshPlace, UnsetAllocator<KeshPlace>> Places; ///< of all values, record by record

private:
    std::int32_t m_handle;
    std::string_view m_text;
};
