// What a packed form gives: one constant in a file of its own and its line in packing.cpp.
#pragma once

#include "lornfd/buffer.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace lornfd {

struct Decoded {
    enum class State { Done, NoRoom, Broken } state;
    std::size_t consumed = 0; ///< packed bytes, when done
    std::size_t produced = 0; ///< unpacked bytes, when done
    std::string reason = {};  ///< when broken
};

/// How a form is recognised, unpacked and packed.
struct PackedForm {
    std::int32_t form;
    std::string_view signature;
    /// Unpacked bytes that one packed byte can stand for at most, and what may come on top.
    std::size_t ratio;
    std::size_t extra;
    /// The size that the data claims, or nothing.
    std::optional<unsigned long long> (*claimedSize)(std::string_view packed);
    Decoded (*decode)(std::string_view packed, char* room, std::size_t roomSize);
    std::size_t (*encodedBound)(std::size_t size);
    /// The packed size, 0 if there is no memory.
    std::size_t (*encode)(std::string_view content, Buffer& room);
};

extern const PackedForm gzipForm;
extern const PackedForm zstdForm;

} // namespace lornfd
