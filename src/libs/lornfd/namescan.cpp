#include "lornfd/namescan.h"

#include <bit>
#include <cstring>
#include <random>

namespace lornfd {

namespace {

static_assert(std::endian::native == std::endian::little, "the first byte is a word's lowest");

using Word = std::uint64_t;

constexpr Word spread(unsigned char byte) {
    return byte * Word{0x0101010101010101};
}
constexpr Word highBits = spread(0x80);

/// Sets the high bit of each byte that equals the given one; above a byte that does perhaps of
/// others too.
constexpr Word findByte(Word word, unsigned char byte) {
    const Word other = word ^ spread(byte);
    return (other - spread(1)) & ~other & highBits;
}

/// Takes in eight bytes without their case; what else that makes equal, comparing tells apart.
constexpr Word mix(Word hash, Word word) {
    hash = (hash ^ (word | spread('a' ^ 'A'))) * Word{0x9e3779b97f4a7c15};
    return hash ^ (hash >> 32);
}

constexpr std::uint32_t finish(Word hash, std::size_t length) {
    return static_cast<std::uint32_t>(mix(hash, length) >> 8);
}

/// The first `count` bytes of a word, blanks behind them.
constexpr Word firstBytes(Word word, unsigned count) {
    const Word mask = (Word{1} << (8 * count)) - 1;
    return (word & mask) | (spread(' ') & ~mask);
}

Word load(const char* at) noexcept {
    Word word = 0;
    std::memcpy(&word, at, sizeof word);
    return word;
}

const Word seed = std::random_device{}() | Word{std::random_device{}()} << 32;

} // namespace

ScannedName scanName(const char* begin) noexcept {
    Word hash = seed;
    Word suspects = 0;     // dots, blanks and separators behind a separator
    Word partStart = 0x80; // the byte that begins a part; the name's first is one
    for (const char* at = begin;; at += sizeof(Word)) {
        const Word word = load(at);
        const Word end = findByte(word, '\n');
        const Word separators = findByte(word, '\\');
        const Word starts = (separators << 8) | partStart;
        const Word weak = separators | findByte(word, '.') | findByte(word, ' ') | end;
        if (end == 0) {
            suspects |= starts & weak;
            partStart = separators >> 56;
            hash = mix(hash, word);
            continue;
        }
        const auto rest = static_cast<unsigned>(std::countr_zero(end)) / 8;
        suspects |= starts & weak & ((Word{0x100} << (8 * rest)) - 1);
        if (rest > 0)
            hash = mix(hash, firstBytes(word, rest));
        const auto length = static_cast<std::size_t>(at - begin) + rest;
        return {length, finish(hash, length), suspects == 0};
    }
}

std::uint32_t foldedHash(std::string_view name) noexcept {
    Word hash = seed;
    std::size_t at = 0;
    for (; at + sizeof(Word) <= name.size(); at += sizeof(Word))
        hash = mix(hash, load(name.data() + at));
    if (at < name.size()) {
        Word word = spread(' ');
        std::memcpy(&word, name.data() + at, name.size() - at);
        hash = mix(hash, word);
    }
    return finish(hash, name.size());
}

} // namespace lornfd
