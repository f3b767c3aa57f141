// Objects of the text model by handle: the store with its pages and strings, whose handles follow
// from their positions, and single files with theirs.
#pragma once

#include <cstdint>
#include <new>
#include <vector>

namespace keshobjects {

inline constexpr std::int32_t textFileKind = 3; ///< for Kesh_LoadFromFile

// Handles of T texts stand below all of these.
inline constexpr std::uint32_t storePageBase = 0x10000000;
inline constexpr std::uint32_t objectBase = 0x20000000;
inline constexpr std::uint32_t storeStringBase = 0x40000000;

/// An object with a handle of its own while it lives.
class TextObject {
public:
    TextObject(const TextObject&) = delete;
    TextObject& operator=(const TextObject&) = delete;

    [[nodiscard]] std::int32_t handle() const noexcept { return m_handle; }
    [[nodiscard]] std::int32_t kind() const noexcept { return m_kind; }
    /// Null if the handle is none of a living object.
    static TextObject* find(std::int32_t handle) noexcept;

protected:
    /// Throws std::bad_alloc if there are too many.
    explicit TextObject(std::int32_t kind);
    ~TextObject();

private:
    const std::int32_t m_kind;
    std::int32_t m_handle;
};

/// The kind of an object, the store and what is in it included; 0 for any other handle.
std::int32_t textObjectKind(std::int32_t handle) noexcept;
/// What Kesh_LoadFromFile does for a language file.
std::int32_t loadTextFile(std::int32_t file);
/// What Kesh_DeleteHandle does for a file, page or string.
std::int32_t deleteTextObject(std::int32_t parent, std::int32_t object);

} // namespace keshobjects
