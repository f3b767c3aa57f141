// Data that is large instead of varied.

#include "lornfd/catalog.h"
#include "lornfd/lornfd.h"
#include "sample/output.h"
#include "sample/random.h"
#include "sample/samplegame.h"
#include "sample/ttext.h"

#include <array>
#include <charconv>

namespace sample {

namespace {

constexpr int filesADirectory = 100;
constexpr int valuesARecord = 17;

class LargeText {
public:
    explicit LargeText(std::int64_t bytes) {
        m_text.reserve(static_cast<std::size_t>(bytes) + 4096);
    }

    template <class Number>
    void value(Number number) {
        std::array<char, 32> buffer{};
        const auto end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), number).ptr;
        *end = ';';
        m_text.append(buffer.data(), end + 1);
    }
    void text(std::string_view value) { m_text.append(value).append(";"); }
    void endRecord() { m_text.append("\r\n"); }
    [[nodiscard]] std::int64_t size() const { return static_cast<std::int64_t>(m_text.size()); }
    [[nodiscard]] std::string take() { return std::move(m_text); }

private:
    std::string m_text;
};

/// 17 values in about 120 bytes.
void addWare(LargeText& text, Random& random, int number) {
    text.text("wares\\body" + spell(number % 1000));
    text.value(random.below(1000));
    text.value(random.below(1000) / 1000.0);
    text.value(random.below(1 << 20) / 1024.0);
    text.value(0);
    text.value(number);
    text.value(12000 + 10 * (number % 90000));
    for (int i = 0; i < valuesARecord - 8; ++i)
        text.value(i % 3 == 2 ? random.below(100) : random.below(10000000));
    text.text("WARE_" + spell(number));
    text.endRecord();
}

/// A T file of about 1 KB.
GameFile smallFile(int number) {
    constexpr int records = 8;
    Random random(static_cast<std::uint32_t>(number));
    LargeText text(1024);
    for (int i = 0; i < records; ++i)
        addWare(text, random, number * records + i);
    return {largeEntryName(number), "48;" + spell(records) + ";\r\n" + text.take(), LORNFD_PLAIN};
}

} // namespace

std::string largeWareText(std::int64_t bytes) {
    Random random(99);
    LargeText records(bytes);
    int count = 0;
    while (records.size() < bytes)
        addWare(records, random, count++);
    return "// Large sample data\r\n48;" + spell(count) + ";\r\n" + records.take();
}

std::string largeEntryName(int number) {
    constexpr std::array<std::string_view, 4> roots = {"types\\", "objects\\v\\", "objects\\cut\\",
                                                       "textures\\"};
    const int directory = number / filesADirectory;
    return std::string(roots[static_cast<std::size_t>(directory) % roots.size()]) + "group" +
           spell(directory) + "\\file" + spell(number) + ".txt";
}

bool writeLargeCatalog(const std::string& catalog, int count, std::string& error) {
    const auto update = lornfd::CatalogUpdate::begin(catalog, true);
    bool good = update != nullptr;
    for (int i = 0; good && i < count; ++i) {
        const GameFile file = smallFile(i);
        good = update->put(file.name, file.content);
    }
    good = good && update->commit();
    if (!good)
        error = driverError();
    return good;
}

bool writeLargeTree(const std::string& directory, int count, std::string& error) {
    for (int i = 0; i < count; ++i)
        if (!writeLooseFile(directory, smallFile(i), error))
            return false;
    return true;
}

} // namespace sample
