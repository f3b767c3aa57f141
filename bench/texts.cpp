#include "bench/groups.h"
#include "bench/plainread.h"
#include "bench/tfile.h"
#include "keshobjects/keshtexts.h"
#include "lornfd/lornfd.h"

#include <malloc.h>
#include <memory>
#include <pugixml.hpp>
#include <random>
#include <string>
#include <unordered_map>
#include <vector>

namespace bench {

namespace {

constexpr std::int64_t textBytes = 50'000'000;
constexpr int fileCount = 10;
constexpr int storedStrings = 100'000;
constexpr int lookups = 1'000'000;

/// Sentences of invented words, one in four with letters beyond ASCII, some with a reference.
class Sentences {
public:
    std::string next() {
        static constexpr const char* words[] = {"ferry",   "harbour", "lamp",   "Fähre", "the",
                                                "orchard", "wait",    "Träger", "slow",  "green",
                                                "of",      "a",       "crate",  "grüne"};
        std::string text;
        for (auto count = 3 + m_random() % 12; count > 0; --count)
            text.append(words[m_random() % std::size(words)]) += ' ';
        return m_random() % 16 == 0
                   ? text + "{17:" + std::to_string(m_random() % 1000) + "} &amp; co"
                   : text;
    }

private:
    std::mt19937 m_random{5};
};

/// Files of a language that have this many bytes or strings together.
std::vector<std::string> languageFiles(std::int64_t bytes, int strings) {
    Sentences sentences;
    std::vector<std::string> files;
    int id = 0;
    for (int i = 0; i < fileCount; ++i) {
        std::string text = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<texts language=\"44\">\n";
        const auto full = [&] {
            return bytes > 0 ? static_cast<std::int64_t>(text.size()) >= bytes / fileCount
                             : id >= strings * (i + 1) / fileCount;
        };
        for (int page = 1; !full(); ++page) {
            text += " <page id=\"" + std::to_string(100 * i + page) +
                    "\" title=\"Objects\" description=\"\" voice=\"0\">\n";
            for (int k = 0; k < 2500 && !full(); ++k)
                text += "  <string id=\"" + std::to_string(++id) + "\">" + sentences.next() +
                        "</string>\n";
            text += " </page>\n";
        }
        files.push_back(text + "</texts>\n");
    }
    return files;
}

std::int32_t openFile(const std::string& path) {
    return LornFD_OpenFile(path, LORNFD_READ, LORNFD_OPEN_EXISTING, LORNFD_AS_IS);
}

int loadStore(const std::vector<std::string>& paths) {
    Kesh_TREDescServerUnload();
    for (const std::string& path : paths) {
        const std::int32_t file = openFile(path);
        if (Kesh_TREDescServerLoadFile(file) == 0)
            fail("cannot load " + path);
        LornFD_CloseFile(file);
    }
    return Kesh_TREDescServerTranslateStrings();
}

/// Parses each file. Documents are kept until all are parsed, as a store keeps its texts, or
/// dropped at once, so that each takes the memory of the one before.
std::size_t parseFiles(const std::vector<std::string>& paths, bool keepAll) {
    std::vector<std::unique_ptr<pugi::xml_document>> documents;
    for (const std::string& path : paths) {
        const Bytes bytes = readPlain(path);
        if (!keepAll)
            documents.clear();
        documents.push_back(std::make_unique<pugi::xml_document>());
        if (!documents.back()->load_buffer(bytes.data.get(), bytes.size))
            fail("pugixml cannot parse " + path);
    }
    return documents.size();
}

std::size_t bytesInUse() {
    const struct mallinfo2 info = ::mallinfo2();
    return info.uordblks + info.hblkhd;
}

Row memoryRow(const std::vector<std::string>& paths) {
    const std::size_t before = bytesInUse();
    loadStore(paths);
    const auto used = static_cast<double>(bytesInUse() - before);
    const double allowed = 1.5 * textBytes;
    return {"memory of the texts loaded",
            "1.5 times the files' bytes",
            spellRatio(used / 1e6) + " MB",
            spellRatio(allowed / 1e6) + " MB",
            used / allowed,
            "at most 1.00",
            used <= allowed};
}

std::uint64_t keyOf(std::int32_t page, std::int32_t id) {
    return (std::uint64_t{static_cast<std::uint32_t>(page)} << 32U) |
           static_cast<std::uint32_t>(id);
}

struct Address {
    std::int32_t page;
    std::int32_t id;
};

std::vector<Address> addressesInStore() {
    std::int32_t count = 0;
    const auto childrenOf = [&count](std::int32_t object) {
        Kesh_EnumObjects(object, nullptr, 0, count);
        std::vector<std::int32_t> children(static_cast<std::size_t>(count));
        Kesh_EnumObjects(object, children.data(), count, count);
        return children;
    };
    std::vector<Address> addresses;
    std::string text;
    std::int32_t unused = 0;
    for (const std::int32_t page : childrenOf(KESH_STORE))
        for (const std::int32_t string : childrenOf(page)) {
            Address address{};
            Kesh_TREGetPageInfo(page, address.page, text, text, unused);
            Kesh_TREGetStringInfo(string, address.id, unused, text);
            addresses.push_back(address);
        }
    return addresses;
}

Row lookupRow(const char* work, const std::vector<Address>& order, int rounds) {
    std::unordered_map<std::uint64_t, std::int32_t> map;
    for (const Address& address : order)
        map[keyOf(address.page, address.id)] =
            Kesh_TREFindString(KESH_STORE, address.page, address.id);
    const auto sumOf = [&order](auto find) {
        std::int64_t sum = 0;
        for (std::size_t i = 0, at = 0; i < lookups; ++i, at = at + 1 == order.size() ? 0 : at + 1)
            sum += find(order[at]);
        return sum;
    };
    const auto ours = [&] {
        return sumOf([](const Address& a) { return Kesh_TREFindString(KESH_STORE, a.page, a.id); });
    };
    const auto theirs = [&] {
        return sumOf([&map](const Address& a) { return map.find(keyOf(a.page, a.id))->second; });
    };
    if (ours() != theirs())
        fail("the lookups differ");
    return fasterRow(work, "std::unordered_map with a 64-bit key", bestOf(rounds, ours, theirs), 1);
}

std::vector<std::string> writeFiles(const Options& options, const std::vector<std::string>& files) {
    std::vector<std::string> paths;
    for (const std::string& file : files) {
        paths.push_back(options.directory / (std::to_string(paths.size()) + "-L044.xml"));
        writePlain(paths.back(), file);
    }
    return paths;
}

} // namespace

std::vector<Row> textRows(const Options& options) {
    std::vector<Row> rows;
    std::vector<std::string> paths = writeFiles(options, languageFiles(textBytes, 0));
    const Row memory = memoryRow(paths); // first, since the store keeps its memory for other loads
    const auto load = [&] { return loadStore(paths); };
    const Times dropped = bestOf(options.rounds, load, [&] { return parseFiles(paths, false); });
    rows.push_back(withinRow("language files of 50 MB, plain, cached, to the store",
                             "pugixml parsing the same bytes, documents dropped", dropped, 1.5));
    const Times kept = bestOf(options.rounds, load, [&] { return parseFiles(paths, true); });
    rows.push_back(besides(withinRow("", "the same, all documents kept", kept, 1.5)));
    rows.push_back(memory);

    paths = writeFiles(options, languageFiles(0, storedStrings));
    loadStore(paths);
    std::vector<Address> order = addressesInStore();
    rows.push_back(
        lookupRow("1,000,000 lookups in 100,000 strings, in order", order, options.rounds));
    std::shuffle(order.begin(), order.end(), std::mt19937(9));
    rows.push_back(
        lookupRow("1,000,000 lookups in 100,000 strings, shuffled", order, options.rounds));
    Kesh_TREDescServerUnload();
    return rows;
}

} // namespace bench
