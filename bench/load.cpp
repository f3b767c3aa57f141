#include "bench/groups.h"
#include "bench/plainread.h"
#include "bench/tfile.h"
#include "sample/samplegame.h"

#include <charconv>
#include <cstring>
#include <malloc.h>
#include <string>
#include <string_view>
#include <variant>

namespace bench {

namespace {

constexpr int valuesARecord = 17;

/// A text value as a place in the loaded bytes, so that a variant has 16 bytes.
struct TextPlace {
    std::uint32_t offset;
    std::uint32_t size;
};
using PlainValue = std::variant<std::int32_t, double, TextPlace>;
static_assert(sizeof(PlainValue) == 16);

struct PlainTable {
    Bytes bytes;
    std::vector<PlainValue> values; ///< record by record
};

constexpr bool isBlank(char c) {
    return c == ' ' || c == '\t' || c == '\r' || c == '\n';
}

PlainValue plainValue(const char* first, const char* last, const char* base) {
    std::int32_t whole = 0;
    const auto asWhole = std::from_chars(first, last, whole);
    if (asWhole.ec == std::errc() && asWhole.ptr == last)
        return whole;
    double real = 0;
    const auto asReal = std::from_chars(first, last, real);
    if (asReal.ec == std::errc() && asReal.ptr == last)
        return real;
    return TextPlace{static_cast<std::uint32_t>(first - base),
                     static_cast<std::uint32_t>(last - first)};
}

/// The values of a T file, split at each ";", blanks around them cut off, its remark line skipped.
/// The table keeps its memory from one call to the next.
std::size_t splitFile(const std::string& path, PlainTable& table) {
    readPlain(path, table.bytes);
    table.values.clear();
    const std::string_view text = table.bytes.view();
    const char* const base = text.data();
    const char* const end = base + text.size();
    const char* at = base;
    if (text.starts_with("//"))
        at += text.find('\n') + 1;
    while (const void* found = std::memchr(at, ';', static_cast<std::size_t>(end - at))) {
        const char* const stop = static_cast<const char*>(found);
        const char* last = stop;
        while (at < last && isBlank(*at))
            ++at;
        while (last > at && isBlank(last[-1]))
            --last;
        table.values.push_back(plainValue(at, last, base));
        at = stop + 1;
    }
    return table.values.size();
}

std::size_t countSeparators(std::string_view text) {
    std::size_t count = 0;
    const char* at = text.data();
    const char* const end = at + text.size();
    while (const void* found = std::memchr(at, ';', static_cast<std::size_t>(end - at))) {
        ++count;
        at = static_cast<const char*>(found) + 1;
    }
    return count;
}

/// All values that are numbers: the first and the last of a record are texts.
double sumOfNumbers(const clsTxtParser& parser) {
    double sum = 0;
    for (const RecordPtr& record : parser.ByIndex())
        for (int i = 1; i < valuesARecord - 1; ++i)
            sum += *record->ValueNumber(i);
    return sum;
}

std::vector<std::string_view> numberSpellings(const clsTxtParser& parser) {
    std::vector<std::string_view> spellings;
    spellings.reserve(parser.ByIndex().size() * (valuesARecord - 2));
    for (const RecordPtr& record : parser.ByIndex())
        for (int i = 1; i < valuesARecord - 1; ++i)
            spellings.push_back(record->ValueText(i));
    return spellings;
}

double sumOfSpellings(const std::vector<std::string_view>& spellings) {
    double sum = 0;
    for (const std::string_view spelling : spellings) {
        double number = 0;
        std::from_chars(spelling.data(), spelling.data() + spelling.size(), number);
        sum += number;
    }
    return sum;
}

Row numbersRow(const clsTxtParser& parser, int rounds) {
    const auto spellings = numberSpellings(parser);
    if (sumOfNumbers(parser) != sumOfSpellings(spellings))
        fail("the numbers differ");
    const Times times = bestOf(
        rounds, [&] { return sumOfNumbers(parser); }, [&] { return sumOfSpellings(spellings); });
    return withinRow("every number converted, memory warm", "std::from_chars over the same values",
                     times, 1.2);
}

std::size_t bytesInUse() {
    const struct mallinfo2 info = ::mallinfo2();
    return info.uordblks + info.hblkhd;
}

Row memoryRow(const std::string& path, std::size_t textBytes) {
    const std::size_t before = bytesInUse();
    const auto parser = loadFile(path);
    const double over = static_cast<double>(bytesInUse() - before) - static_cast<double>(textBytes);
    const double records = static_cast<double>(parser->ByIndex().size());
    const double values = records * valuesARecord;
    const double allowed = 5 * values + 100 * records;
    const double eachRecord = (over - 4 * values) / records;
    return {"memory after loading, over the text's bytes",
            "5 bytes a value and 100 a record",
            spellRatio(over / 1e6) + " MB (4 a value, " + spellRatio(eachRecord) + " a record)",
            spellRatio(allowed / 1e6) + " MB",
            over / allowed,
            "at most 1.00",
            over <= allowed};
}

} // namespace

std::vector<Row> loadRows(const Options& options) {
    const std::string path = options.directory / "TWareT_large.txt";
    writePlain(path, sample::largeWareText(std::int64_t{options.megabytes} * 1000000));
    const std::size_t values = countSeparators(readPlain(path).view());
    std::vector<Row> rows;

    const auto load = [&] { return loadFile(path); };
    const Times split = bestOf(options.rounds, load, [&] {
        PlainTable table;
        table.values.reserve(values);
        splitFile(path, table);
        return table;
    });
    rows.push_back(fasterRow("T file, plain, cached, to records",
                             "split at ';', from_chars into 16-byte variants", split, 3));

    PlainTable table;
    table.values.reserve(values);
    const Times reused = bestOf(options.rounds, load, [&] { return splitFile(path, table); });
    rows.push_back(
        besides(fasterRow("", "the same, its memory kept from the round before", reused, 3)));

    const Times scan = bestOf(options.rounds, load, [&] {
        readPlain(path, table.bytes);
        return countSeparators(table.bytes.view());
    });
    rows.push_back(fasterRow("T file, plain, cached, to records",
                             "read into memory kept, memchr for each ';'", scan, 0.6));

    rows.push_back(numbersRow(*loadFile(path), options.rounds));
    rows.push_back(memoryRow(path, readPlain(path).size));
    return rows;
}

} // namespace bench
