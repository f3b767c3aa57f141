// A T text in memory for one test.
#pragma once

#include "keshobjects/keshobjects.h"
#include "keshobjects/places.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace support {

inline std::string lastErrorText() {
    char buffer[1024];
    std::int32_t needed = 0;
    Kesh_TranslateError(Kesh_GetLastError(), buffer, sizeof buffer, &needed);
    return buffer;
}

class LoadedText {
public:
    static constexpr bool jobs = true;

    /// From a copy on the heap without a terminator, so that the sanitizer sees every byte read too
    /// far.
    explicit LoadedText(std::string_view text, bool ignoreRemarks = false) {
        const auto exact = std::make_unique<char[]>(text.size());
        text.copy(exact.get(), text.size());
        Kesh_TXTIgnoreRemarks(ignoreRemarks ? 1 : 0);
        m_handle = Kesh_LoadFromMemory({exact.get(), text.size()}, "a.txt");
        Kesh_TXTIgnoreRemarks(0);
    }
    ~LoadedText() {
        if (m_handle != 0)
            Kesh_DeleteHandle(0, m_handle);
    }
    LoadedText(const LoadedText&) = delete;
    LoadedText& operator=(const LoadedText&) = delete;

    [[nodiscard]] std::int32_t handle() const { return m_handle; }
    [[nodiscard]] std::int32_t tokenType() const { return Kesh_TXTGetTokenType(m_handle); }
    [[nodiscard]] std::string token() const {
        KeshValue value;
        return Kesh_TXTGetTokenValue(m_handle, value) != 0 ? std::get<std::string>(value)
                                                           : lastErrorText();
    }
    [[nodiscard]] bool advance(std::int32_t count = 1) const {
        return Kesh_TXTAdvance(m_handle, count) != 0;
    }
    /// The next value, or nothing with the last error set.
    [[nodiscard]] KeshValue load(std::int32_t kind) const {
        KeshValue value;
        return Kesh_TXTLoadValue(m_handle, kind, value) != 0 ? value : KeshValue();
    }
    /// The spellings of up to `count` values, read in one call; `written` is what that call says.
    [[nodiscard]] std::vector<std::string> spellings(std::int64_t count = 64) {
        std::vector<KeshPlace> places(static_cast<std::size_t>(count));
        written = true;
        const auto read = Kesh_TXTLoadPlaces(m_handle, count, places.data(), written);
        std::vector<std::string> found;
        for (std::size_t i = 0; i < static_cast<std::size_t>(read); ++i)
            found.emplace_back(keshobjects::valueAt(Kesh_TXTGetText(m_handle), places[i]));
        return found;
    }

    bool written = false;

private:
    std::int32_t m_handle = 0;
};

} // namespace support
