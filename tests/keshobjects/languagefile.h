// A language file in memory for one test.
#pragma once

#include "keshobjects/keshtexts.h"
#include "loadedtext.h"

namespace support {

inline std::vector<std::int32_t> childrenOf(std::int32_t object) {
    std::int32_t count = 0;
    EXPECT_EQ(Kesh_EnumObjects(object, nullptr, 0, count), 1) << lastErrorText();
    std::vector<std::int32_t> children(static_cast<std::size_t>(count));
    EXPECT_EQ(Kesh_EnumObjects(object, children.data(), count, count), 1);
    return children;
}

struct PageInfo {
    std::int32_t id = 0;
    std::string title;
    std::string description;
    std::int32_t voice = 0;
    friend bool operator==(const PageInfo&, const PageInfo&) = default;
};

inline PageInfo pageInfo(std::int32_t page) {
    PageInfo info;
    EXPECT_EQ(Kesh_TREGetPageInfo(page, info.id, info.title, info.description, info.voice), 1);
    return info;
}

struct StringInfo {
    std::int32_t id = 0;
    std::string text;
    friend bool operator==(const StringInfo&, const StringInfo&) = default;
};

inline StringInfo stringInfo(std::int32_t string) {
    StringInfo info;
    std::int32_t second = 7;
    EXPECT_EQ(Kesh_TREGetStringInfo(string, info.id, second, info.text), 1) << lastErrorText();
    EXPECT_EQ(second, 0);
    return info;
}

/// Everything in a file or the store, for comparison.
inline std::string contentOf(std::int32_t file) {
    std::string all = std::to_string(Kesh_TREGetLangID(file)) + '\n';
    for (const std::int32_t page : childrenOf(file)) {
        const PageInfo info = pageInfo(page);
        all += std::to_string(info.id) + '|' + info.title + '|' + info.description + '|' +
               std::to_string(info.voice) + '\n';
        for (const std::int32_t string : childrenOf(page))
            all +=
                "  " + std::to_string(stringInfo(string).id) + '|' + stringInfo(string).text + '\n';
    }
    return all;
}

/// From a copy on the heap without a terminator, so that the sanitizer sees every byte read too
/// far.
template <typename Load>
std::int32_t loadExact(std::string_view bytes, Load load) {
    const auto exact = std::make_unique<char[]>(bytes.size());
    bytes.copy(exact.get(), bytes.size());
    return load(std::string_view(exact.get(), bytes.size()), "t.xml");
}

class LanguageFile {
public:
    explicit LanguageFile(std::string_view bytes)
        : handle(loadExact(bytes, Kesh_TRELoadFromMemory)) {
        EXPECT_NE(handle, 0) << lastErrorText();
    }
    ~LanguageFile() { Kesh_DeleteHandle(0, handle); }
    LanguageFile(const LanguageFile&) = delete;
    LanguageFile& operator=(const LanguageFile&) = delete;

    [[nodiscard]] std::int32_t page(std::size_t at) const { return childrenOf(handle).at(at); }
    [[nodiscard]] std::int32_t string(std::size_t pageAt, std::size_t at) const {
        return childrenOf(page(pageAt)).at(at);
    }
    [[nodiscard]] std::string saved() const {
        std::string bytes;
        EXPECT_EQ(Kesh_TRESaveToMemory(handle, bytes), 1) << lastErrorText();
        return bytes;
    }

    const std::int32_t handle;
};

} // namespace support
