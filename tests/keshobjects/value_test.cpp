#include "keshobjects/places.h"
#include "keshobjects/value.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <random>

using namespace keshobjects;

namespace {

TEST(Value, SpellingTellsIntegerRealOrText) {
    const struct {
        std::string_view spelling;
        KeshValue meaning;
    } rows[] = {
        {"0", 0},
        {"007", 7},
        {"+5", 5},
        {"-12", -12},
        {"2147483647", 2147483647},
        {"-2147483648", std::numeric_limits<std::int32_t>::min()},
        {"2147483648", 2147483648.0},
        {"1.0", 1.0},
        {".5", 0.5},
        {"5.", 5.0},
        {"-.5", -0.5},
        {"+.5", 0.5},
        {"10203040", 10203040},
        {"99999999", 99999999},
        {"123456789", 123456789},
        {"1e3", 1000.0},
        {"1E-3", 0.001},
        {"1.5e+2", 150.0},
        {"4.9e-324", 4.9e-324},
        {"1.7976931348623157e308", std::numeric_limits<double>::max()},
        {"", ""},
        {".", "."},
        {"-", "-"},
        {"+", "+"},
        {"+-5", "+-5"},
        {"--5", "--5"},
        {"1e", "1e"},
        {"1e+", "1e+"},
        {"e5", "e5"},
        {"1.2.3", "1.2.3"},
        {"1,5", "1,5"},
        {"1 2", "1 2"},
        {" 1", " 1"},
        {"1 ", "1 "},
        {"0x10", "0x10"},
        {"1e400", "1e400"},
        {"-1e400", "-1e400"},
        {"1e-400", "1e-400"},
        {"nan", "nan"},
        {"-nan", "-nan"},
        {"inf", "inf"},
        {"+inf", "+inf"},
        {"infinity", "infinity"},
        {"SHIP_1", "SHIP_1"},
        {"\xC4", "\xC4"},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(readValue(row.spelling), row.meaning) << '"' << row.spelling << '"';
        // At its place in a text a value reads as it does alone, whatever follows it.
        const bool blankAtEdge = row.spelling != trimEnd(row.spelling) || row.spelling == " 1";
        for (const std::string_view behind :
             {";", "", " \r\n;", ";7;", "\t", ";12345678;", "\r\n;12345678;"}) {
            if (blankAtEdge)
                continue;
            const std::string text = "x;" + std::string(row.spelling) + std::string(behind);
            EXPECT_EQ(numberAt(text, 2), readNumber(row.spelling)) << '"' << text << '"';
            EXPECT_EQ(integerAt(text, 2), readInteger(row.spelling)) << '"' << text << '"';
        }
    }
}

TEST(Value, NumbersAreSpelledShortAndWithoutExponentInTheMiddle) {
    const struct {
        double number;
        std::string_view spelling;
    } rows[] = {
        {0, "0"},
        {5, "5"},
        {-3, "-3"},
        {0.1, "0.1"},
        {0.5, "0.5"},
        {1e14, "100000000000000"},
        {123456789012345.0, "123456789012345"},
        {1e-15, "0.000000000000001"},
        {1.5e-10, "0.00000000015"},
        {1e16, "1e+16"},
        {1e-16, "1e-16"},
        {-2.5e300, "-2.5e+300"},
    };
    for (const auto& row : rows)
        EXPECT_EQ(spellNumber(row.number), row.spelling);
}

TEST(Value, AnyNumberReadsBackAsItIs) {
    std::mt19937_64 random(11);
    std::vector<double> numbers{-0.0, 5e-324, std::numeric_limits<double>::max(),
                                std::nextafter(1e15, 0), std::nextafter(1e-15, 0)};
    while (numbers.size() < 20000) {
        const auto number = std::bit_cast<double>(random());
        if (std::isfinite(number))
            numbers.push_back(number);
    }
    for (const double number : numbers)
        ASSERT_EQ(readNumber(spellNumber(number)), number) << number;
}

TEST(Value, EqualityIsByNumberOrByBytes) {
    EXPECT_TRUE(equalValues(2, 2.0));
    EXPECT_TRUE(equalValues(0, -0.0));
    EXPECT_FALSE(equalValues(2, 2.5));
    EXPECT_FALSE(equalValues(2, "2"));
    EXPECT_FALSE(equalValues("a", "A"));
    EXPECT_TRUE(equalValues("a", "a"));
    EXPECT_FALSE(equalValues(0, KeshValue()));
    EXPECT_TRUE(equalValues(KeshValue(), KeshValue()));
}

} // namespace
