// One loaded text with a read position: cuts it into values, list tokens and raw rests of lines.
#pragma once

#include "keshobjects/bigmemory.h"
#include "keshobjects/keshobjects.h"

#include <cstddef>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

namespace keshobjects {

/// Why a read failed: a code of KeshObjectsError and the place that the message names.
struct ReadFailure {
    KeshObjectsError code;
    std::size_t place;
};

class Tokenizer {
public:
    /// Memory for a text of `size` bytes, to be filled through `data()`; null if there is none.
    static std::unique_ptr<Tokenizer> create(std::size_t size, std::string name, bool remarks);

    [[nodiscard]] char* data() noexcept { return m_begin.get(); }
    [[nodiscard]] std::string_view text() const noexcept { return {m_begin.get(), m_size}; }
    [[nodiscard]] const std::string& name() const noexcept { return m_name; }
    [[nodiscard]] std::string describe(std::size_t place) const; ///< "line N"
    [[nodiscard]] bool looksLikeXml() const noexcept;            ///< starts with "<"
    /// To be called once, when the text is complete: moves behind a byte order mark.
    void start() noexcept;

    /// The type of the token at the read position; empty on failure.
    [[nodiscard]] std::optional<std::int32_t> tokenType();
    /// The token at the read position, without stepping over it.
    [[nodiscard]] std::optional<std::string_view> token();
    /// Steps over one token.
    [[nodiscard]] bool advance();

    /// The place of the next value, and steps over the value and its ";".
    [[nodiscard]] std::optional<KeshPlace> value();
    /// Reads values until `count` are read or one fails; see Kesh_TXTLoadPlaces.
    [[nodiscard]] std::int64_t values(std::int64_t count, KeshPlace* places, bool& written);
    /// Goes back to the place of a value just read.
    void stepBack(KeshPlace place) noexcept;
    /// The raw rest of line at the read position; empty if the position is not behind a value's
    /// ";".
    [[nodiscard]] std::optional<KeshPlace> raw();

    /// Why the last operation failed.
    [[nodiscard]] const ReadFailure& failure() const noexcept { return m_failure; }

private:
    enum class Stop { AtEndSign, AtListSeparator };
    struct Free {
        void operator()(char* memory) const noexcept { freeBig(memory); }
    };

    [[nodiscard]] std::size_t markSize() const noexcept;
    [[nodiscard]] char* end() const noexcept { return m_begin.get() + m_size; }
    [[nodiscard]] std::size_t offset(const char* at) const noexcept;
    [[nodiscard]] bool oddValue(KeshPlace& place, bool first, bool& written);
    [[nodiscard]] char* skipBlanks(char* from);
    [[nodiscard]] char* endOfRemark(char* from);
    [[nodiscard]] char* endOfValue(char* from, Stop stop);
    [[nodiscard]] char* dropRemarks(char* from, Stop stop);
    [[nodiscard]] bool atRawToken() const noexcept { return !m_remarks && m_behindValue; }
    [[nodiscard]] char* endOfToken(std::int32_t type);
    [[nodiscard]] char* behindLineBreak(char* at) const noexcept;
    void stepOver(char* endOfValue) noexcept;
    std::nullptr_t fail(KeshObjectsError code, const char* at) noexcept;

    std::unique_ptr<char, Free> m_begin;
    std::size_t m_size = 0;
    char* m_at = nullptr;
    std::string m_name;
    ReadFailure m_failure{};
    bool m_remarks = true;
    bool m_behindValue = false; ///< the read position is right behind a value's ";"
};

} // namespace keshobjects
