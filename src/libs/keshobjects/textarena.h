// Texts one behind the other in large blocks, freed together.
#pragma once

#include "keshobjects/bigmemory.h"

#include <cstddef>
#include <memory>
#include <string_view>
#include <vector>

namespace keshobjects {

class TextArena {
public:
    /// Copies a text; the copy stays where it is.
    const char* keep(std::string_view text);
    void clear() noexcept { *this = TextArena(); }

    /// A state to go back to, which frees what was kept since.
    struct Mark {
        std::size_t blocks;
        char* free;
        std::size_t left;
    };
    [[nodiscard]] Mark mark() const noexcept { return {m_blocks.size(), m_free, m_left}; }
    void goBack(const Mark& mark) noexcept;

private:
    static constexpr std::size_t blockSize = std::size_t{4} << 20; ///< worth large pages
    char* add(std::size_t size);

    std::vector<BigArray<char>> m_blocks;
    char* m_free = nullptr;
    std::size_t m_left = 0;
};

} // namespace keshobjects
