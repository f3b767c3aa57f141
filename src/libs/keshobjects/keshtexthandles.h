// From the handles of text objects to the objects; for the files keshtext*.cpp only.
#pragma once

#include "keshobjects/errors.h"
#include "keshobjects/keshtexts.h"
#include "keshobjects/references.h"
#include "keshobjects/textfile.h"
#include "keshobjects/textstore.h"

#include <cstdint>
#include <optional>
#include <string_view>

namespace keshobjects {

extern TextStore theStore; // no local static, since a lookup is quicker than its check

inline TextStore& store() noexcept {
    return theStore;
}

template <typename Object>
Object* objectOf(std::int32_t handle, std::int32_t kind) noexcept {
    TextObject* const object = TextObject::find(handle);
    return object != nullptr && object->kind() == kind ? static_cast<Object*>(object) : nullptr;
}
inline TextFile* fileOf(std::int32_t handle) noexcept {
    return objectOf<TextFile>(handle, KESH_TEXT_FILE);
}
inline TextPage* pageOf(std::int32_t handle) noexcept {
    return objectOf<TextPage>(handle, KESH_TEXT_PAGE);
}
inline TextString* stringOf(std::int32_t handle) noexcept {
    return objectOf<TextString>(handle, KESH_TEXT_STRING);
}

inline const StoredPage* storedPageOf(std::int32_t handle) noexcept {
    const std::uint32_t position = static_cast<std::uint32_t>(handle) - storePageBase;
    return position < store().pages().size() ? &store().pages()[position] : nullptr;
}
inline const StoredString* storedStringOf(std::int32_t handle) noexcept {
    const std::uint32_t position = static_cast<std::uint32_t>(handle) - storeStringBase;
    return position < store().size() ? &store().string(position) : nullptr;
}
inline std::int32_t storedHandle(std::uint32_t base, std::uint32_t position) noexcept {
    return static_cast<std::int32_t>(base + position);
}

/// Sets the last error for a handle of no such object. Gives 0.
std::int32_t failHandle(std::int32_t handle);

/// The raw text of a string while it stays as it is; none for another handle.
std::optional<std::string_view> rawTextOf(std::int32_t handle) noexcept;

/// Looks into the file, if there is one, then into the store.
TextLookup lookupIn(const TextFile* file);

/// Runs an operation on texts, which may need memory for a copy.
template <typename Work>
std::int32_t withTexts(Work work) {
    return withMemory(KESH_E_READ, "a text", work);
}

} // namespace keshobjects
