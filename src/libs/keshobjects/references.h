// References between texts, style codes and escapes: docs/formats.md, "Language files".
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

namespace keshobjects {

struct Reference {
    std::int32_t page;
    std::int32_t id;
    friend bool operator==(const Reference&, const Reference&) = default;
};

/// Gives the raw text of a string; none if there is no such string.
using TextLookup = std::function<std::optional<std::string_view>(const Reference&)>;

/// Where a text stands, as far as that is known.
struct TextPlace {
    std::optional<std::int32_t> page;
    std::optional<std::int32_t> id;
};

enum class TextForm {
    Resolved,   ///< references replaced, style codes and escapes as they are
    Translated, ///< also without style codes, escapes replaced
};

inline constexpr std::size_t maxReferenceDepth = 64;
inline constexpr std::size_t maxReferences = 10000;
inline constexpr std::size_t maxExpansion = std::size_t{1} << 20; ///< bytes of all references

[[nodiscard]] std::string bracketForm(const Reference& reference);

/// A reference that is missing, comes back to a text it stands in or goes beyond a limit becomes
/// its bracket form; of nested ones that go beyond the last two limits, the outermost.
[[nodiscard]] std::string translate(std::string_view text, const TextPlace& place, TextForm form,
                                    const TextLookup& lookup);

/// Takes the first reference off a text, and what stands before it; none if there is none.
[[nodiscard]] std::optional<Reference> takeNextReference(std::string_view& text,
                                                         std::optional<std::int32_t> page) noexcept;

} // namespace keshobjects
