#include "keshobjects/scan.h"
#include "loadedtext.h"

#include <array>
#include <random>

using support::LoadedText;

namespace {

/// Text from few characters, so that every neighbourhood of them comes up.
std::string randomText(std::mt19937& random, std::string_view characters) {
    std::string text(random() % 200, '\0');
    for (char& c : text)
        c = characters[random() % characters.size()];
    return text;
}

#if defined(__SSE2__)
TEST(Scan, VectorAndPlainCutTheSameRuns) {
    using namespace std::string_view_literals;
    std::mt19937 random(3);
    for (int round = 0; round < 20000; ++round) {
        const bool mostlyPlain = round % 2 == 0;
        std::string text =
            randomText(random, mostlyPlain ? "abc;;12345678901234567890,.-_\x7F\x80\xFF"sv
                                           : "; /*\r\n\0\t!\x80\xFF"sv);
        text.append(keshobjects::textSlack, '\0');
        const std::int64_t count = random() % 300;
        std::array<KeshPlace, 300> plain{};
        std::array<KeshPlace, 300> vector{};
        const char* plainAt = text.data();
        const char* vectorAt = text.data();
        const auto expected = keshobjects::cutPlain(text.data(), plainAt, count, plain.data());
        ASSERT_EQ(keshobjects::cutVector(text.data(), vectorAt, count, vector.data()), expected);
        ASSERT_EQ(vectorAt, plainAt);
        ASSERT_EQ(vector, plain);
    }
}
#endif

/// What values a text has, character by character; empty where a remark never ends.
std::optional<std::vector<std::string>> cutSlowly(std::string_view text) {
    std::string bare;
    std::vector<std::string> values;
    const auto take = [&] {
        const std::size_t start = bare.find_first_not_of(" \t\r\n");
        const auto value =
            start == bare.npos ? std::string_view() : std::string_view(bare).substr(start);
        values.emplace_back(keshobjects::trimEnd(value));
        bare.clear();
    };
    for (std::size_t at = 0; at < text.size();) {
        const std::string_view rest = text.substr(at);
        if (rest.starts_with("//")) {
            at += std::min(rest.find_first_of("\r\n"), rest.size());
        } else if (rest.starts_with("/*")) {
            const std::size_t end = rest.find("*/", 2);
            if (end == rest.npos)
                return std::nullopt;
            at += end + 2;
        } else if (rest.front() == ';') {
            take();
            ++at;
        } else {
            bare += rest.front();
            ++at;
        }
    }
    take();
    if (values.back().empty())
        values.pop_back();
    return values;
}

TEST(Scan, RandomTextsGiveTheValuesThatASlowReaderSees) {
    std::mt19937 random(5);
    for (int round = 0; round < 20000; ++round) {
        const std::string content = randomText(
            random, round % 2 == 0 ? "ab;;;, /*\r\n\t\x80\xFF" : "abcdefgh1234567890;;;;;; /*\n");
        const auto expected = cutSlowly(content);
        LoadedText text(content);
        const auto values = text.spellings(256);
        ASSERT_EQ(Kesh_GetLastError(), expected ? KESH_E_END : KESH_E_REMARK) << content;
        ASSERT_EQ(values, expected.value_or(values)) << content;
    }
}

TEST(Scan, WrittenValuesStandInOnePiece) {
    std::mt19937 random(7);
    int found = 0;
    for (int round = 0; round < 20000; ++round) {
        const std::string content = randomText(random, "abc1234567890;;;;;;;; /\n");
        LoadedText text(content);
        const std::int64_t count = 1 + random() % 4;
        std::array<KeshPlace, 4> places{};
        bool written = true;
        if (Kesh_TXTLoadPlaces(text.handle(), count, places.data(), written) != count)
            continue;
        std::string piece;
        const std::string_view whole = Kesh_TXTGetText(text.handle());
        for (std::size_t i = 0; i < static_cast<std::size_t>(count); ++i)
            piece += std::string(keshobjects::valueAt(whole, places[i])) + ";";
        ASSERT_EQ(written, whole.substr(places[0], piece.size()) == piece) << content;
        found += written ? 1 : 0;
    }
    EXPECT_GT(found, 1000);
}

} // namespace
