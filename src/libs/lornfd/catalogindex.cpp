#include "lornfd/catalog.h"
#include "lornfd/catalogcache.h"
#include "lornfd/errors.h"
#include "lornfd/foldedhash.h"
#include "lornfd/paths.h"

#include <algorithm>
#include <bit>
#include <charconv>
#include <filesystem>
#include <limits>
#include <numeric>
#include <optional>
#include <utility>

namespace lornfd {

namespace {

constexpr std::string_view signature = "KESHCAT ";
constexpr std::string_view version = "1 ";
constexpr std::size_t checksumDigits = 8;
constexpr std::size_t longestName = 255;

struct Line {
    std::int64_t offset;
    std::int64_t size;
    std::uint32_t crc;
    std::uint32_t name; ///< offset of the name in the text
    std::uint8_t length;
};

struct Slot {
    std::uint32_t hash;
    std::uint32_t line; ///< position + 1; 0 is an empty slot
};

/// Takes the part before `end` off the front of `rest`; all of it if `end` does not occur.
std::string_view takeUntil(std::string_view& rest, char end) {
    const std::size_t length = std::min(rest.find(end), rest.size());
    const std::string_view part = rest.substr(0, length);
    rest.remove_prefix(std::min(length + 1, rest.size()));
    return part;
}

std::string_view withoutReturn(std::string_view line) {
    return line.substr(0, line.size() - (line.ends_with('\r') ? 1 : 0));
}

template <typename Number>
bool readNumber(std::string_view text, Number& number, int base = 10) {
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number, base);
    return error == std::errc() && end == text.data() + text.size() && text.front() != '-';
}

std::uint32_t hashOf(std::string_view name) {
    return static_cast<std::uint32_t>(foldedHash(name));
}

} // namespace

struct CatalogIndex::Data {
    std::string text;
    std::string path;
    std::string dataPath;
    std::vector<Line> lines;
    std::vector<Slot> slots;

    [[nodiscard]] std::string_view name(const Line& line) const {
        return std::string_view(text).substr(line.name, line.length);
    }
    [[nodiscard]] std::size_t slotOf(std::string_view wanted, std::uint32_t hash) const;
    const char* addLine(std::string_view line, std::int64_t dataSize);
    const char* readName(std::string_view name, Line& line);
    std::optional<std::size_t> overlappingLine() const;
    bool parse(std::int64_t dataSize);
    [[nodiscard]] bool broken(std::size_t line, std::string reason) const;
};

/// Position of the slot that holds the name, or of the empty one where it belongs.
std::size_t CatalogIndex::Data::slotOf(std::string_view wanted, std::uint32_t hash) const {
    const std::size_t mask = slots.size() - 1;
    std::size_t i = hash & mask;
    while (slots[i].line != 0 &&
           (slots[i].hash != hash || !equalNoCase(name(lines[slots[i].line - 1]), wanted)))
        i = (i + 1) & mask;
    return i;
}

const char* CatalogIndex::Data::readName(std::string_view spelled, Line& line) {
    const std::size_t at = static_cast<std::size_t>(spelled.data() - text.data());
    if (hasSpecialByte(spelled))
        std::replace(text.begin() + static_cast<std::ptrdiff_t>(at),
                     text.begin() + static_cast<std::ptrdiff_t>(at + spelled.size()), '/', '\\');
    if (spelled.size() > longestName)
        return "an entry name longer than 255 bytes";
    if (!isSafeEntryName(spelled))
        return "an entry name that is not allowed";
    line.name = static_cast<std::uint32_t>(at);
    line.length = static_cast<std::uint8_t>(spelled.size());
    return nullptr;
}

/// Gives what is wrong with a line, or null.
const char* CatalogIndex::Data::addLine(std::string_view rest, std::int64_t dataSize) {
    Line line{};
    if (!readNumber(takeUntil(rest, ' '), line.offset))
        return "the offset is not a whole number";
    if (!readNumber(takeUntil(rest, ' '), line.size))
        return "the size is not a whole number";
    const std::string_view checksum = takeUntil(rest, ' ');
    if (checksum.size() != checksumDigits || !readNumber(checksum, line.crc, 16))
        return "the checksum is not a number of 8 hexadecimal digits";
    if (const char* reason = readName(rest, line))
        return reason;
    if (line.offset > dataSize || line.size > dataSize - line.offset)
        return "the entry ends behind the end of the data file";
    const std::uint32_t hash = hashOf(rest);
    Slot& slot = slots[slotOf(rest, hash)];
    if (slot.line != 0)
        return "an entry of this name stands before";
    lines.push_back(line);
    slot = {hash, static_cast<std::uint32_t>(lines.size())};
    return nullptr;
}

/// Position of the later of two lines that name the same bytes.
std::optional<std::size_t> CatalogIndex::Data::overlappingLine() const {
    const auto firstOverlap =
        [&](const auto& order) -> std::optional<std::pair<std::size_t, std::size_t>> {
        std::optional<std::size_t> before;
        for (const std::size_t position : order) {
            const Line& line = lines[position];
            if (line.size == 0)
                continue;
            if (before && line.offset < lines[*before].offset + lines[*before].size)
                return std::pair{*before, position};
            before = position;
        }
        return std::nullopt;
    };
    std::vector<std::uint32_t> order(lines.size());
    std::iota(order.begin(), order.end(), 0U);
    if (!firstOverlap(order)) // as written, an index is in order
        return std::nullopt;
    std::ranges::sort(order, {}, [&](std::uint32_t position) {
        return std::pair{lines[position].offset, position};
    });
    const auto overlap = firstOverlap(order);
    return overlap ? std::optional(std::max(overlap->first, overlap->second)) : std::nullopt;
}

bool CatalogIndex::Data::broken(std::size_t line, std::string reason) const {
    return fail(LORNFD_E_CATALOG,
                {.file = path, .place = linePlace(line), .reason = std::move(reason)});
}

bool CatalogIndex::Data::parse(std::int64_t dataSize) {
    std::string_view rest = text;
    const auto dataName = catalogDataName(text);
    if (!dataName)
        return broken(1, "it does not begin with \"KESHCAT 1\" and the name of a data file");
    dataPath = (std::filesystem::path(path).parent_path() / *dataName).string();
    if (!text.ends_with('\n'))
        return broken(static_cast<std::size_t>(std::ranges::count(text, '\n')) + 1,
                      "the line has no end; the index is cut");
    if (text.size() > std::numeric_limits<std::uint32_t>::max())
        return broken(1, "the index is larger than 4 GB");
    takeUntil(rest, '\n');
    const auto count = static_cast<std::size_t>(std::ranges::count(rest, '\n'));
    lines.reserve(count);
    slots.resize(std::bit_ceil(count * 2 + 1));
    while (!rest.empty()) {
        if (const char* reason = addLine(withoutReturn(takeUntil(rest, '\n')), dataSize))
            return broken(lines.size() + 2, reason);
    }
    if (const auto line = overlappingLine())
        return broken(*line + 2, "the entry's bytes belong to another entry as well");
    return true;
}

std::optional<std::string_view> catalogDataName(std::string_view text) {
    std::string_view line = withoutReturn(takeUntil(text, '\n'));
    if (!line.starts_with(signature) || !line.substr(signature.size()).starts_with(version))
        return std::nullopt;
    line.remove_prefix(signature.size() + version.size());
    if (!isSafeEntryName(line) || line.find_first_of("\\/") != std::string_view::npos)
        return std::nullopt;
    return line;
}

CatalogIndex::CatalogIndex(std::unique_ptr<Data> data) : m(std::move(data)) {}

CatalogIndex::~CatalogIndex() = default;

std::shared_ptr<const CatalogIndex> CatalogIndex::open(std::string_view catalog) {
    const auto opened = openCatalog(catalog);
    return opened ? opened->index : nullptr;
}

std::shared_ptr<const CatalogIndex> CatalogIndex::parse(std::string text, std::int64_t dataSize,
                                                        std::string_view nameForMessages) {
    auto data = std::make_unique<Data>();
    data->text = std::move(text);
    data->path = nameForMessages;
    if (!data->parse(dataSize))
        return nullptr;
    return std::shared_ptr<const CatalogIndex>(new CatalogIndex(std::move(data)));
}

std::size_t CatalogIndex::size() const noexcept {
    return m->lines.size();
}

CatalogEntry CatalogIndex::entry(std::size_t position) const {
    const Line& line = m->lines[position];
    return {line.offset, line.size, line.crc, m->name(line)};
}

std::size_t CatalogIndex::find(std::string_view name) const {
    char separated[longestName];
    if (name.size() > sizeof separated)
        return npos;
    std::ranges::replace_copy(name, separated, '/', '\\');
    const std::string_view wanted(separated, name.size());
    const std::uint32_t line = m->slots[m->slotOf(wanted, hashOf(wanted))].line;
    return line == 0 ? npos : line - 1;
}

const std::string& CatalogIndex::path() const noexcept {
    return m->path;
}

const std::string& CatalogIndex::dataPath() const noexcept {
    return m->dataPath;
}

} // namespace lornfd
