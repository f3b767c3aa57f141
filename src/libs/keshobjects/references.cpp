#include "keshobjects/references.h"

#include <algorithm>
#include <charconv>
#include <vector>

namespace keshobjects {
namespace {

/// Takes a whole number off a text.
std::optional<std::int32_t> takeNumber(std::string_view& text) noexcept {
    std::int32_t number = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    if (error != std::errc())
        return std::nullopt;
    text.remove_prefix(static_cast<std::size_t>(end - text.data()));
    return number;
}

/// Takes the reference off that a text begins with.
std::optional<Reference> takeReference(std::string_view& text,
                                       std::optional<std::int32_t> page) noexcept {
    std::string_view rest = text.substr(1);
    if (!rest.starts_with(':'))
        page = takeNumber(rest);
    if (!page || !rest.starts_with(':'))
        return std::nullopt;
    rest.remove_prefix(1);
    const auto id = takeNumber(rest);
    if (!id || !rest.starts_with('}'))
        return std::nullopt;
    text = rest.substr(1);
    return Reference{*page, *id};
}

/// What stands before the next reference, and that reference.
struct Piece {
    std::string_view text;
    std::optional<Reference> reference;
};

Piece takePiece(std::string_view& text, std::optional<std::int32_t> page) noexcept {
    const std::string_view whole = text;
    for (;;) {
        const std::size_t sign = text.find_first_of("\\{");
        if (sign == text.npos) {
            text = {};
            return {whole, std::nullopt};
        }
        text.remove_prefix(sign);
        if (text.front() == '\\') {
            text.remove_prefix(std::min<std::size_t>(2, text.size()));
            continue;
        }
        const auto before = static_cast<std::size_t>(text.data() - whole.data());
        if (const auto reference = takeReference(text, page))
            return {whole.substr(0, before), reference};
        text.remove_prefix(1);
    }
}

// --- Style codes and escapes

struct Escape {
    char sign;
    char character;
};
constexpr Escape escapes[] = {{'n', '\n'}, {'t', '\t'}, {'\\', '\\'}, {'{', '{'}, {'}', '}'}};

/// The size of the style code that a text begins with; 0 if it is none.
std::size_t styleCodeSize(std::string_view text) noexcept {
    constexpr std::string_view codes[] = {"[b]", "[/b]", "[i]", "[/i]", "[/color]"};
    for (const std::string_view code : codes)
        if (text.starts_with(code))
            return code.size();
    constexpr std::string_view color = "[color=";
    if (!text.starts_with(color))
        return 0;
    const std::size_t end = text.find_first_of("[]\n", color.size());
    return end != text.npos && end > color.size() && text[end] == ']' ? end + 1 : 0;
}

void appendStripped(std::string_view text, std::string& stripped) {
    while (!text.empty()) {
        const std::size_t plain = std::min(text.find_first_of("\\["), text.size());
        stripped += text.substr(0, plain);
        text.remove_prefix(plain);
        if (text.empty())
            return;
        if (const std::size_t code = styleCodeSize(text)) {
            text.remove_prefix(code);
            continue;
        }
        const char sign = text.front() == '\\' && text.size() > 1 ? text[1] : '\0';
        const auto* const escape =
            std::find_if(std::begin(escapes), std::end(escapes),
                         [sign](const Escape& row) { return row.sign == sign; });
        const bool known = escape != std::end(escapes);
        stripped += known ? escape->character : text.front();
        text.remove_prefix(known ? 2 : 1);
    }
}

// --- Resolving

class Translator {
public:
    Translator(TextForm form, const TextLookup& lookup) : m_form(form), m_lookup(lookup) {}

    std::string run(std::string_view text, const TextPlace& place) {
        m_open.push_back({text, place});
        while (!m_open.empty())
            if (m_open.back().rest.empty())
                m_open.pop_back();
            else
                step();
        return std::move(m_result);
    }

private:
    struct Frame {
        std::string_view rest;
        TextPlace place;
    };

    void step() {
        Frame& frame = m_open.back();
        const bool inside = m_open.size() > 1;
        const std::size_t before = m_result.size();
        const Piece piece = takePiece(frame.rest, frame.place.page);
        append(piece.text);
        if (piece.reference)
            follow(*piece.reference);
        m_expanded += inside && !m_spent ? m_result.size() - before : 0;
        if (m_expanded > maxExpansion || m_count > maxReferences)
            giveUp();
    }

    void append(std::string_view text) {
        if (m_form == TextForm::Translated)
            appendStripped(text, m_result);
        else
            m_result += text;
    }

    void follow(const Reference& reference) {
        const bool outer = m_open.size() == 1;
        if (outer) {
            m_outer = reference;
            m_outerStart = m_result.size();
        }
        const auto text = m_spent || m_open.size() > maxReferenceDepth || isOpen(reference)
                              ? std::nullopt
                              : m_lookup(reference);
        if (!text) {
            m_result += bracketForm(reference);
            return;
        }
        ++m_count;
        // What is too long as it stands is not even copied.
        if (text->size() > maxExpansion)
            giveUp();
        else
            m_open.push_back({*text, {reference.page, reference.id}});
    }

    [[nodiscard]] bool isOpen(const Reference& reference) const {
        return std::any_of(m_open.begin(), m_open.end(), [&](const Frame& frame) {
            return frame.place.id == reference.id && frame.place.page == reference.page;
        });
    }

    /// Puts the bracket form in the place of the outermost reference, and of all behind it.
    void giveUp() {
        m_open.resize(1);
        m_result.resize(m_outerStart);
        m_result += bracketForm(m_outer);
        m_spent = true;
        m_expanded = 0;
        m_count = 0;
    }

    const TextForm m_form;
    const TextLookup& m_lookup;
    std::string m_result;
    std::vector<Frame> m_open;
    Reference m_outer{};
    std::size_t m_outerStart = 0;
    std::size_t m_expanded = 0; ///< bytes that stand for references
    std::size_t m_count = 0;
    bool m_spent = false;
};

} // namespace

std::string bracketForm(const Reference& reference) {
    return "[string " + std::to_string(reference.page) + ':' + std::to_string(reference.id) + ']';
}

std::string translate(std::string_view text, const TextPlace& place, TextForm form,
                      const TextLookup& lookup) {
    return Translator(form, lookup).run(text, place);
}

std::optional<Reference> takeNextReference(std::string_view& text,
                                           std::optional<std::int32_t> page) noexcept {
    return takePiece(text, page).reference;
}

} // namespace keshobjects
