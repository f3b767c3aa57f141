// Reading a file without any library of ours: what every reference starts from.
#pragma once

#include <memory>
#include <string>
#include <string_view>

namespace bench {

/// Memory that is not cleared before it is filled.
struct Bytes {
    std::unique_ptr<char[]> data;
    std::size_t size = 0;
    [[nodiscard]] std::string_view view() const { return {data.get(), size}; }
};

/// The whole file by `open`, `fstat`, `read`.
Bytes readPlain(const std::string& path);
/// The same into memory that is there already, if the size fits.
void readPlain(const std::string& path, Bytes& bytes);

} // namespace bench
