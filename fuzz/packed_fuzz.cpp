// Packed files: unpacking is bounded, and what it gives can be packed and unpacked to the same.
#include "lornfd/lornfd.h"
#include "lornfd/packing.h"

#include <cstdlib>
#include <optional>
#include <string>

namespace {

constexpr std::int64_t limit = 1'000'000;

void require(bool holds) {
    if (!holds)
        std::abort();
}

/// What comes out in memory of the claimed size, if anything does.
std::optional<std::string> asClaimed(std::string_view stored) {
    const auto claimed = lornfd::claimedSize(stored);
    if (!claimed || *claimed > limit)
        return std::nullopt;
    std::string room(static_cast<std::size_t>(*claimed), '\0');
    return lornfd::unpackTo(room.data(), room.size(), stored) ? std::optional(room) : std::nullopt;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view stored(reinterpret_cast<const char*>(data), size);
    const std::int32_t form = lornfd::packedForm(stored);
    const auto content = lornfd::unpack(stored, "fuzz.pck", limit);
    const auto claimed = asClaimed(stored);
    require(!claimed || (content && content->view() == *claimed));
    if (!content) {
        const std::int32_t code = LornFD_GetLastError();
        require(code == LORNFD_E_PACKED || code == LORNFD_E_TOO_BIG);
        return 0;
    }
    require(form == LORNFD_PLAIN || content->size() <= static_cast<std::size_t>(limit));
    const auto packed = lornfd::pack(*content, form, "fuzz.pck");
    require(packed && lornfd::packedForm(*packed) == form);
    const auto again = lornfd::unpack(*packed, "fuzz.pck", limit);
    require(again && again->view() == content->view());
    return 0;
}
