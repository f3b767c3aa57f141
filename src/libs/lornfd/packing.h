// Packed forms, each in a file of its own behind packedform.h. Format: docs/formats.md.
#pragma once

#include "lornfd/buffer.h"
#include "lornfd/lornfd.h"

#include <cstdint>
#include <optional>
#include <string_view>

namespace lornfd {

/// Whether `form` can be stored: plain or packed.
bool isKnownForm(std::int32_t form) noexcept;
/// The form of a target of which nothing else is asked: packed for ".pck", else plain.
std::int32_t formByName(std::string_view name) noexcept;

/// LORNFD_PLAIN, LORNFD_GZIP or LORNFD_ZSTD by the first bytes.
std::int32_t packedForm(std::string_view stored) noexcept;

/// The unpacked bytes; `nameForMessages` stands in the error. Empty optional with the library's
/// last error set if the data is cut, damaged, or unpacks to more than `limit` bytes. Memory is
/// bounded by the smaller of `limit` and what stored bytes of that number can hold.
std::optional<Buffer> unpack(std::string_view stored, std::string_view nameForMessages,
                             std::int64_t limit = LORNFD_MAX_UNPACKED);

/// The unpacked size that packed bytes claim; nothing if they claim none, or more than their number
/// can hold or LORNFD_MAX_UNPACKED allows.
std::optional<std::int64_t> claimedSize(std::string_view stored) noexcept;
/// Unpacks into `room`, which has the claimed size. False if that is not exactly what comes out;
/// `unpack` tells why.
bool unpackTo(char* room, std::size_t size, std::string_view stored) noexcept;

/// The bytes to store for a form; plain gives a copy. Empty optional with the last error set if
/// there is too much to be read back.
std::optional<Buffer> pack(std::string_view content, std::int32_t form,
                           std::string_view nameForMessages);

} // namespace lornfd
