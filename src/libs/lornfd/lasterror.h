// The last error of a C-style library: a code, and a text filled from that library's table.
#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>

namespace lornfd {

/// One row of a library's table. The text may hold the places {file}, {place} and {reason}.
struct ErrorText {
    std::int32_t code;
    std::string_view text;
};

/// What fills the places of an error text; an empty part leaves its place empty.
struct ErrorParts {
    std::string file;   ///< native file name, or catalog::entry
    std::string place;  ///< "offset 12" or "line 3"
    std::string reason; ///< the system's or a decoder's own words
};

class LastError {
public:
    explicit LastError(std::span<const ErrorText> table);

    void clear() noexcept;
    /// Stores code and text. Gives 0, so that a failing operation can return it.
    std::int32_t set(std::int32_t code, const ErrorParts& parts = {});
    /// 0 if the last operation succeeded.
    [[nodiscard]] std::int32_t code() const noexcept { return m_code; }
    /// The text of the last error for its code, else the table's row with its places left empty.
    [[nodiscard]] std::string text(std::int32_t code) const;
    /// Copies text(code) with its final zero into `buffer` as far as `size` allows; `needed` gets
    /// the whole length with the zero. Gives 1 if it fitted.
    std::int32_t translate(std::int32_t code, char* buffer, std::int32_t size,
                           std::int32_t* needed) const;

private:
    std::span<const ErrorText> m_table;
    std::int32_t m_code = 0;
    std::string m_text;
};

/// The text of a template with its places filled.
std::string fillErrorText(std::string_view pattern, const ErrorParts& parts);

} // namespace lornfd
