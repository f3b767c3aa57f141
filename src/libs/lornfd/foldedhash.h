// Hashing and comparing names without regard to ASCII case, eight bytes at a time.
#pragma once

#include <cstdint>
#include <string_view>

namespace lornfd {

/// Hash of a name, the same for all spellings that differ in ASCII case only. Seeded anew in each
/// process, so that no file can be made whose names all collide.
std::uint64_t foldedHash(std::string_view name) noexcept;

/// True if a byte of `name` is a control character, ":" or "/".
bool hasSpecialByte(std::string_view name) noexcept;

} // namespace lornfd
