// Texts one behind the other in large blocks, let go together.
#pragma once

#include "keshobjects/bigmemory.h"

#include <cstddef>
#include <string_view>
#include <vector>

namespace keshobjects {

class TextArena {
public:
    /// Copies a text; the copy stays where it is.
    const char* keep(std::string_view text);

    /// A state to go back to, in which what was kept since is no more. Its memory serves again.
    struct Mark {
        std::size_t blocks = 0;
        std::size_t large = 0;
        char* free = nullptr;
        std::size_t left = 0;
    };
    [[nodiscard]] const Mark& mark() const noexcept { return m_now; }
    void goBack(const Mark& mark) noexcept;
    void clear() noexcept { goBack({}); }

private:
    static constexpr std::size_t blockSize = std::size_t{4} << 20; ///< worth large pages

    std::vector<BigArray<char>> m_blocks;
    std::vector<BigArray<char>> m_large; ///< texts that would leave much of a block empty
    Mark m_now;
};

} // namespace keshobjects
