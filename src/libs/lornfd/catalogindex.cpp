#include "lornfd/catalog.h"
#include "lornfd/catalogcache.h"
#include "lornfd/errors.h"
#include "lornfd/namescan.h"
#include "lornfd/paths.h"

#include <algorithm>
#include <bit>
#include <charconv>
#include <filesystem>
#include <optional>
#include <utility>

namespace lornfd {

namespace {

constexpr std::string_view signature = "KESHCAT 1 ";
constexpr std::size_t longestName = 255;
constexpr std::size_t typicalLine = 32; // bytes; only room is made by it

/// A line of the text. Its numbers are read again when somebody asks: most entries are never asked
/// for.
struct Line {
    std::uint32_t name; ///< offset of the name in the text
    std::uint32_t hash; ///< of the name
};

/// True if a text holds a control character other than "\n", ":" or "/". Written so that compilers
/// make vector code of it.
bool isUnusual(std::string_view text) {
    unsigned char unusual = 0;
    for (const char c : text) {
        const auto byte = static_cast<unsigned char>(c);
        unusual = static_cast<unsigned char>(unusual | ((byte < 0x20) & (byte != '\n')) |
                                             (byte == 0x7f) | (byte == ':') | (byte == '/'));
    }
    return unusual != 0;
}

/// Brings CR LF and "/" into the form in which an index is written. Gives the new size.
std::size_t normalize(char* text, std::size_t size) {
    std::size_t length = 0;
    for (std::size_t i = 0; i < size; ++i)
        if (text[i] != '\r' || i + 1 == size || text[i + 1] != '\n')
            text[length++] = text[i] == '/' ? '\\' : text[i];
    return length;
}

// The readers below stop at a line break at the latest, which an index always ends with.

bool takeNumber(const char*& at, std::int64_t& number) {
    constexpr int mostDigits = 18; // as many as always fit
    const char* const begin = at;
    std::uint64_t value = 0;
    for (; *at >= '0' && *at <= '9'; ++at)
        value = value * 10 + static_cast<unsigned char>(*at - '0');
    number = static_cast<std::int64_t>(value);
    const std::ptrdiff_t digits = at - begin;
    return digits > 0 && digits <= mostDigits && *at++ == ' ';
}

bool takeChecksum(const char*& at, std::uint32_t& crc) {
    constexpr std::ptrdiff_t digits = 8;
    const auto [end, error] = std::from_chars(at, at + digits, crc, 16);
    if (error != std::errc() || end != at + digits || *end != ' ')
        return false;
    at = end + 1;
    return true;
}

/// Reads the numbers of a line and leaves `at` at its name. Gives what is wrong with them, or null.
const char* takeNumbers(const char*& at, CatalogEntry& entry) {
    if (!takeNumber(at, entry.offset))
        return "the offset is not a whole number";
    if (!takeNumber(at, entry.size))
        return "the size is not a whole number";
    if (!takeChecksum(at, entry.crc))
        return "the checksum is not a number of 8 hexadecimal digits";
    return nullptr;
}

} // namespace

struct CatalogIndex::Data {
    Buffer buffer;
    std::string_view text; ///< of the buffer; scanSlack line breaks follow
    std::string path;
    std::string dataPath;
    std::vector<Line> lines;
    std::vector<std::uint32_t> slots; ///< position of a line + 1, by hash; 0 is empty
    std::int64_t end = 0;             ///< of the bytes of the lines so far
    bool inOrder = true;              ///< no line's bytes begin before those of the lines above end

    [[nodiscard]] CatalogEntry entry(std::size_t position) const;
    [[nodiscard]] bool hasName(const Line& line, std::string_view name) const;
    bool parse(std::int64_t dataSize);
    bool parseLines(std::int64_t dataSize);
    bool makeRoom();
    const char* addLine(const char*& at, bool unusual, std::int64_t dataSize);
    [[nodiscard]] std::size_t slotOf(std::string_view wanted, std::uint32_t hash) const;
    [[nodiscard]] std::optional<std::size_t> enterNames();
    [[nodiscard]] std::optional<std::size_t> overlappingLine() const;
    [[nodiscard]] bool broken(std::size_t line, std::string reason) const;
};

CatalogEntry CatalogIndex::Data::entry(std::size_t position) const {
    const std::size_t name = lines[position].name;
    const char* at = text.data() + text.rfind('\n', name) + 1;
    CatalogEntry entry{};
    takeNumbers(at, entry);
    entry.name = text.substr(name, text.find('\n', name) - name);
    return entry;
}

bool CatalogIndex::Data::hasName(const Line& line, std::string_view name) const {
    return equalNoCase(text.substr(line.name, name.size()), name) &&
           text[line.name + name.size()] == '\n';
}

/// Gives what is wrong with a line, or null; then `at` is the next line.
const char* CatalogIndex::Data::addLine(const char*& at, bool unusual, std::int64_t dataSize) {
    CatalogEntry entry{};
    if (const char* reason = takeNumbers(at, entry))
        return reason;
    const ScannedName name = scanName(at);
    if (name.length > longestName)
        return "the entry's name is longer than 255 bytes";
    if ((unusual || !name.harmless) && !isSafeEntryName({at, name.length}))
        return "the entry's name is not allowed";
    if (entry.offset > dataSize || entry.size > dataSize - entry.offset)
        return "the entry ends behind the end of the data file";
    inOrder = inOrder && entry.offset >= end;
    end = entry.offset + entry.size;
    lines.push_back({static_cast<std::uint32_t>(at - text.data()), name.hash});
    at += name.length + 1;
    return nullptr;
}

/// Position of the slot that holds the name, or of the empty one where it belongs.
std::size_t CatalogIndex::Data::slotOf(std::string_view wanted, std::uint32_t hash) const {
    const std::size_t mask = slots.size() - 1;
    std::size_t i = hash & mask;
    for (; slots[i] != 0; i = (i + 1) & mask) {
        const Line& line = lines[slots[i] - 1];
        if (line.hash == hash && hasName(line, wanted))
            break;
    }
    return i;
}

/// Gives the position of a line whose name stands before.
std::optional<std::size_t> CatalogIndex::Data::enterNames() {
    slots.resize(std::bit_ceil(lines.size() * 2 + 1));
    const std::size_t mask = slots.size() - 1;
    for (std::uint32_t i = 0; i < lines.size(); ++i) {
        std::size_t slot = lines[i].hash & mask;
        for (; slots[slot] != 0; slot = (slot + 1) & mask)
            if (lines[slots[slot] - 1].hash == lines[i].hash &&
                hasName(lines[slots[slot] - 1], entry(i).name))
                return i;
        slots[slot] = i + 1;
    }
    return std::nullopt;
}

/// Gives the position of the later of two lines that name the same bytes.
std::optional<std::size_t> CatalogIndex::Data::overlappingLine() const {
    if (inOrder)
        return std::nullopt;
    struct Part {
        std::int64_t offset;
        std::int64_t end;
        std::size_t line;
    };
    std::vector<Part> parts;
    for (std::size_t i = 0; i < lines.size(); ++i)
        if (const CatalogEntry part = entry(i); part.size > 0)
            parts.push_back({part.offset, part.offset + part.size, i});
    std::ranges::sort(parts, {}, [](const Part& part) {
        return std::pair{part.offset, part.line};
    });
    const auto overlap = std::ranges::adjacent_find(
        parts, [](const Part& first, const Part& second) { return second.offset < first.end; });
    return overlap != parts.end() ? std::optional(std::max(overlap[0].line, overlap[1].line))
                                  : std::nullopt;
}

bool CatalogIndex::Data::broken(std::size_t line, std::string reason) const {
    return fail(LORNFD_E_CATALOG,
                {.file = path, .place = linePlace(line), .reason = std::move(reason)});
}

bool CatalogIndex::Data::parse(std::int64_t dataSize) {
    const auto dataName = catalogDataName(text);
    if (!dataName)
        return broken(1, "it does not begin with \"KESHCAT 1\" and the name of a data file");
    dataPath = (std::filesystem::path(path).parent_path() / *dataName).string();
    if (!text.ends_with('\n'))
        return broken(static_cast<std::size_t>(std::ranges::count(text, '\n')) + 1,
                      "the line has no end; the index is cut");
    if (!parseLines(dataSize))
        return false;
    if (const auto line = enterNames())
        return broken(*line + 2, "an entry of this name stands in a line above");
    if (const auto line = overlappingLine())
        return broken(*line + 2, "the entry's bytes belong to another entry as well");
    return true;
}

/// Puts the slack behind the text that scanning the names asks for.
bool CatalogIndex::Data::makeRoom() {
    const std::size_t size = buffer.size();
    if (!buffer.resize(size + scanSlack))
        return fail(LORNFD_E_TOO_BIG,
                    {.file = path, .place = {}, .reason = "there is no memory for it"});
    std::fill_n(buffer.data() + size, scanSlack, '\n');
    text = buffer.view().substr(0, size);
    return true;
}

bool CatalogIndex::Data::parseLines(std::int64_t dataSize) {
    const bool unusual = isUnusual(text.substr(text.find('\n')));
    if (unusual) {
        text = text.substr(0, normalize(buffer.data(), text.size()));
        std::fill_n(buffer.data() + text.size(), scanSlack, '\n');
    }
    lines.reserve(text.size() / typicalLine);
    const char* at = text.data() + text.find('\n') + 1;
    while (at != text.data() + text.size())
        if (const char* reason = addLine(at, unusual, dataSize))
            return broken(lines.size() + 2, reason);
    return true;
}

std::optional<std::string_view> catalogDataName(std::string_view text) {
    std::string_view line = text.substr(0, text.find('\n'));
    if (!line.starts_with(signature))
        return std::nullopt;
    line.remove_prefix(signature.size());
    if (line.ends_with('\r'))
        line.remove_suffix(1);
    if (!isSafeEntryName(line) || line.find_first_of("\\/") != std::string_view::npos)
        return std::nullopt;
    return line;
}

CatalogIndex::CatalogIndex(std::unique_ptr<Data> data) : m(std::move(data)) {}

CatalogIndex::~CatalogIndex() = default;

std::shared_ptr<const CatalogIndex> CatalogIndex::open(std::string_view catalog) {
    const auto opened = openCatalog(catalog, Look::Always);
    return opened ? opened->index : nullptr;
}

std::shared_ptr<const CatalogIndex> CatalogIndex::parse(Buffer text, std::int64_t dataSize,
                                                        std::string_view nameForMessages) {
    auto data = std::make_unique<Data>();
    data->buffer = std::move(text);
    data->path = nameForMessages;
    if (!data->makeRoom() || !data->parse(dataSize))
        return nullptr;
    return std::shared_ptr<const CatalogIndex>(new CatalogIndex(std::move(data)));
}

std::size_t CatalogIndex::size() const noexcept {
    return m->lines.size();
}

CatalogEntry CatalogIndex::entry(std::size_t position) const {
    return m->entry(position);
}

std::size_t CatalogIndex::find(std::string_view name) const {
    char separated[longestName];
    if (name.size() > sizeof separated)
        return npos;
    if (name.find('/') != std::string_view::npos) {
        std::ranges::replace_copy(name, separated, '/', '\\');
        name = {separated, name.size()};
    }
    const std::uint32_t slot = m->slots[m->slotOf(name, foldedHash(name))];
    return slot == 0 ? npos : slot - 1;
}

const std::string& CatalogIndex::path() const noexcept {
    return m->path;
}

const std::string& CatalogIndex::dataPath() const noexcept {
    return m->dataPath;
}

} // namespace lornfd
