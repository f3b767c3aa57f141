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
    explicit Buffer(std::size_t size)
        : m_data(static_cast<char*>(std::malloc(size ? size : 1))), m_size(m_data ? size : 0) {}
    Buffer(Buffer&& other) noexcept
        : m_data(std::move(other.m_data)), m_size(std::exchange(other.m_size, 0)) {}
    Buffer& operator=(Buffer&& other) noexcept {
        m_data = std::move(other.m_data);
        m_size = std::exchange(other.m_size, 0);
        return *this;
    }

    /// Keeps the first `size` bytes and gives the others back.
    void shrink(std::size_t size) {
        if (char* smaller = static_cast<char*>(std::realloc(m_data.get(), size ? size : 1))) {
            static_cast<void>(m_data.release());
            m_data.reset(smaller);
        }
        m_size = size;
    }

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
