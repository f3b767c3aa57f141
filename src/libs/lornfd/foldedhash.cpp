#include "lornfd/foldedhash.h"

#include <bit>
#include <cstring>
#include <random>

namespace lornfd {

namespace {

using Word = std::uint64_t;

constexpr Word spread(unsigned char byte) {
    return byte * Word{0x0101010101010101};
}
constexpr Word highBits = spread(0x80);

constexpr Word foldWord(Word word) {
    const Word low = word & ~highBits;
    const Word fromA = low + spread(0x80 - 'A');
    const Word aboveZ = low + spread(0x7f - 'Z');
    const Word upper = (fromA ^ aboveZ) & ~word & highBits;
    return word | (upper >> 2);
}

constexpr Word hasZero(Word word) {
    return (word - spread(1)) & ~word & highBits;
}

constexpr Word specialBytes(Word word) {
    const Word control = (word - spread(0x20)) & ~word & highBits;
    return control | hasZero(word ^ spread(0x7f)) | hasZero(word ^ spread(':')) |
           hasZero(word ^ spread('/'));
}

/// Calls `use` with each eight bytes, the last ones padded with blanks.
template <typename Use>
void forEachWord(std::string_view text, Use use) {
    Word word = 0;
    for (; text.size() >= sizeof word; text.remove_prefix(sizeof word)) {
        std::memcpy(&word, text.data(), sizeof word);
        use(word);
    }
    if (!text.empty()) {
        word = spread(' ');
        std::memcpy(&word, text.data(), text.size());
        use(word);
    }
}

} // namespace

std::uint64_t foldedHash(std::string_view name) noexcept {
    static const Word seed = std::random_device{}() | Word{std::random_device{}()} << 32;
    Word hash = seed ^ name.size();
    forEachWord(name, [&](Word word) {
        hash = (hash ^ foldWord(word)) * Word{0x9e3779b97f4a7c15};
        hash ^= std::rotl(hash, 29);
    });
    return hash ^ (hash >> 32);
}

bool hasSpecialByte(std::string_view name) noexcept {
    Word special = 0;
    forEachWord(name, [&](Word word) { special |= specialBytes(word); });
    return special != 0;
}

} // namespace lornfd
