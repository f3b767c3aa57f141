// Packed forms. Each is a row of functions with a test for its signature. Format: docs/formats.md.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace lornfd {

/// LORNFD_PLAIN, LORNFD_GZIP or LORNFD_ZSTD by the first bytes.
std::int32_t packedForm(std::string_view stored) noexcept;

/// The unpacked bytes; `nameForMessages` stands in the error. Empty optional with the library's last error
/// set if the data is cut, damaged, or unpacks to more than LORNFD_MAX_UNPACKED.
std::optional<std::string> unpack(std::string_view stored, std::string_view nameForMessages);

/// The bytes to store for a form; plain gives a copy.
std::optional<std::string> pack(std::string_view content, std::int32_t form,
                                std::string_view nameForMessages);

} // namespace lornfd
