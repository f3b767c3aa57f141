// Cuts runs of plain values, as fast as memory is read.
//
// A plain value has nothing but printable characters without '/' up to its ';', so no blank, line
// break or remark. Everything else is odd and left to slower code.
#pragma once

#include "keshobjects/keshobjects.h"

#include <bit>
#include <cstddef>
#include <cstdint>

#if defined(__SSE2__)
#include <emmintrin.h>
#endif

namespace keshobjects {

/// NUL characters, which are odd, that must stand behind a text: a scan needs no check for its end.
inline constexpr std::size_t textSlack = 64;

constexpr bool isOdd(char c) noexcept {
    return static_cast<unsigned char>(c) <= ' ' || c == '/';
}

/// Stores the places (offsets from `begin`) of up to `count` plain values that follow each other
/// from `at` on, and moves `at` behind the last one's ';'. Gives their number.
inline std::int64_t cutPlain(const char* begin, const char*& at, std::int64_t count,
                             KeshPlace* places) noexcept {
    std::int64_t cut = 0;
    for (const char* to = at; cut < count && !isOdd(*to); ++to) {
        if (*to == ';') {
            places[cut++] = static_cast<KeshPlace>(at - begin);
            at = to + 1;
        }
    }
    return cut;
}

#if defined(__SSE2__)

/// Which of 64 characters are ends and which are odd, the first in the lowest bit.
struct CharacterMasks {
    std::uint64_t ends = 0;
    std::uint64_t odd = 0;
};

inline CharacterMasks classify(const char* from) noexcept {
    const __m128i end = _mm_set1_epi8(';');
    const __m128i slash = _mm_set1_epi8('/');
    const __m128i blank = _mm_set1_epi8(' ');
    CharacterMasks masks;
    for (unsigned i = 0; i < 64; i += 16) {
        const __m128i bytes = _mm_loadu_si128(reinterpret_cast<const __m128i*>(from + i));
        const __m128i upToBlank = _mm_cmpeq_epi8(_mm_min_epu8(bytes, blank), bytes);
        const __m128i odd = _mm_or_si128(upToBlank, _mm_cmpeq_epi8(bytes, slash));
        const auto bits = [i](__m128i found) {
            return std::uint64_t{static_cast<std::uint32_t>(_mm_movemask_epi8(found))} << i;
        };
        masks.ends |= bits(_mm_cmpeq_epi8(bytes, end));
        masks.odd |= bits(odd);
    }
    return masks;
}

/// As cutPlain, 64 characters at a time.
inline std::int64_t cutVector(const char* begin, const char*& at, std::int64_t count,
                              KeshPlace* places) noexcept {
    std::int64_t cut = 0;
    std::uint64_t odd = count > 0 && !isOdd(*at) ? 0 : 1;
    for (const char* from = at; odd == 0; from += 64) {
        const CharacterMasks masks = classify(from);
        odd = masks.odd;
        const std::uint64_t beforeOdd = (odd - 1) & ~odd;
        for (std::uint64_t ends = masks.ends & beforeOdd; ends != 0; ends &= ends - 1) {
            places[cut++] = static_cast<KeshPlace>(at - begin);
            at = from + std::countr_zero(ends) + 1;
            if (cut == count)
                return cut;
        }
    }
    return cut;
}

#endif

inline std::int64_t cutRun(const char* begin, const char*& at, std::int64_t count,
                           KeshPlace* places) noexcept {
#if defined(__SSE2__)
    return cutVector(begin, at, count, places);
#else
    return cutPlain(begin, at, count, places);
#endif
}

} // namespace keshobjects
