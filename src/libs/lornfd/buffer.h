// Bytes of a size known before they are: not zeroed first, as a std::string's would be.
#pragma once

#include <cstddef>
#include <cstdlib>
#include <memory>
#include <string_view>
#include <utility>

namespace lornfd {

class Buffer {
public:
    Buffer() = default;
    /// Room for `size` bytes; data() is null if there is no memory for them.
    explicit Buffer(std::size_t size);
    /// data() is null if there is no memory for the copy.
    static Buffer copyOf(std::string_view bytes);
    Buffer(Buffer&& other) noexcept
        : m_data(std::move(other.m_data)), m_size(std::exchange(other.m_size, 0)) {}
    Buffer& operator=(Buffer&& other) noexcept {
        m_data = std::move(other.m_data);
        m_size = std::exchange(other.m_size, 0);
        return *this;
    }

    /// Keeps the bytes up to the new size; false, and nothing changes, if there is no memory for
    /// more.
    [[nodiscard]] bool resize(std::size_t size);

    [[nodiscard]] char* data() noexcept { return m_data.get(); }
    [[nodiscard]] const char* data() const noexcept { return m_data.get(); }
    [[nodiscard]] std::size_t size() const noexcept { return m_size; }
    [[nodiscard]] std::string_view view() const noexcept { return {m_data.get(), m_size}; }
    operator std::string_view() const noexcept { return view(); }

private:
    struct Free {
        void operator()(char* data) const noexcept { std::free(data); }
    };
    std::unique_ptr<char, Free> m_data;
    std::size_t m_size = 0;
};

} // namespace lornfd
