// Going over entry names eight bytes at a time: their end, their hash, and whether they look
// harmless.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace lornfd {

/// Readable bytes that have to follow a text whose names are scanned.
inline constexpr std::size_t scanSlack = 8;

struct ScannedName {
    std::size_t length; ///< up to the line break
    std::uint32_t hash; ///< foldedHash of the name
    bool harmless;      ///< no empty part and none that starts with a dot or a blank
};

/// Scans the name from `begin` to the next "\n", which must come, with scanSlack bytes behind it.
ScannedName scanName(const char* begin) noexcept;

/// Hash of a name, the same for all spellings that differ in ASCII case only. Seeded anew in each
/// process, so that no file can be made whose names all collide.
std::uint32_t foldedHash(std::string_view name) noexcept;

} // namespace lornfd
