// Finds the signs that end or interrupt a value, as fast as memory is read.
#pragma once

#if defined(__SSE2__)
#include <bit>
#include <emmintrin.h>
#endif

namespace keshobjects {

/// Bytes that must stand readable behind a text, the first of them a ';', so that no scan needs its
/// end.
inline constexpr unsigned textSlack = 16;

/// The next ';' or '/' at or behind `from`: what runs where there are no vector instructions.
inline char* findSignPlain(char* from) noexcept {
    while (*from != ';' && *from != '/') {
        ++from;
    }
    return from;
}

#if defined(__SSE2__)
/// The same, 16 bytes at a time.
inline char* findSignVector(char* from) noexcept {
    const __m128i end = _mm_set1_epi8(';');
    const __m128i slash = _mm_set1_epi8('/');
    for (;; from += 16) {
        const __m128i bytes = _mm_loadu_si128(reinterpret_cast<const __m128i*>(from));
        const __m128i signs =
            _mm_or_si128(_mm_cmpeq_epi8(bytes, end), _mm_cmpeq_epi8(bytes, slash));
        if (const auto mask = static_cast<unsigned>(_mm_movemask_epi8(signs)); mask != 0) {
            return from + std::countr_zero(mask);
        }
    }
}
#endif

inline char* findSign(char* from) noexcept {
#if defined(__SSE2__)
    return findSignVector(from);
#else
    return findSignPlain(from);
#endif
}

} // namespace keshobjects
