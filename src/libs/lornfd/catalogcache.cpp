#include "lornfd/catalogcache.h"

#include "lornfd/errors.h"
#include "lornfd/namescan.h"
#include "lornfd/paths.h"

#include <algorithm>
#include <chrono>
#include <filesystem>
#include <limits>
#include <map>
#include <mutex>
#include <string>
#include <utility>

namespace lornfd {

namespace {

using namespace std::chrono_literals;

constexpr std::size_t mostKept = 64; // each holds two open files
constexpr int mostAttempts = 3;

using Clock = std::chrono::steady_clock;

// A system call for each of ten thousand entries costs as much as reading them. Opens that follow
// each other this closely cannot be told from opens at one time.
constexpr auto lookInterval = 50us;
constexpr auto burstGap = 1ms;
constexpr int burstLooks = 16; // without a gap and without a change, before looks become fewer

struct Kept {
    std::string lookup; ///< native path before links are followed: they may be set anew
    std::shared_ptr<const OpenCatalog> catalog;
    std::uint64_t lastUse = 0;
    Clock::time_point lastLook = {};
    int looks = 0; ///< in this burst
};

struct Cache {
    std::mutex mutex;
    std::map<std::string, Kept, std::less<>> kept; ///< by the name as given
    std::uint64_t uses = 0;
};

Cache& cache() {
    static Cache instance;
    return instance;
}

bool readIndexText(const platform::File& file, const std::string& path, std::int64_t size,
                   Buffer& text) {
    constexpr std::int64_t mostBytes = std::numeric_limits<std::uint32_t>::max() - scanSlack;
    if (size > mostBytes)
        return fail(LORNFD_E_TOO_BIG,
                    {.file = path, .place = {}, .reason = "an index has less than 4 GB"});
    text = Buffer(static_cast<std::size_t>(size));
    std::size_t got = 0;
    const std::error_code error = text.data() ? file.read(0, text.data(), text.size(), got)
                                              : std::make_error_code(std::errc::not_enough_memory);
    if (!error && text.resize(got))
        return true;
    return fail(LORNFD_E_READ, {.file = path, .place = offsetPlace(0), .reason = error.message()});
}

bool openIndex(const std::string& path, OpenCatalog& catalog) {
    std::error_code error = catalog.indexFile.open(path);
    if (error == std::errc::no_such_file_or_directory)
        return fail(LORNFD_E_NOT_FOUND, {.file = path, .place = {}, .reason = {}});
    if (!error)
        error = catalog.indexFile.stamp(catalog.stamp);
    if (error)
        return fail(LORNFD_E_OPEN, path, error);
    return catalog.stamp.regular ||
           fail(LORNFD_E_OPEN, {.file = path, .place = {}, .reason = "it is not a file"});
}

enum class Data { Opened, Missing, Refused };

/// Opens the data file that an index names, as far as that can be told.
Data openData(const std::string& path, std::string_view text, OpenCatalog& catalog) {
    catalog.dataSize = 0;
    const auto name = catalogDataName(text);
    if (!name)
        return Data::Opened; // the parser tells what is wrong with the name
    const std::string dataPath =
        realPath((std::filesystem::path(path).parent_path() / *name).string());
    platform::FileStamp stamp;
    std::error_code error = catalog.data.open(dataPath);
    if (error == std::errc::no_such_file_or_directory)
        return Data::Missing;
    if (!error)
        error = catalog.data.stamp(stamp);
    if (!error && !stamp.regular)
        error = std::make_error_code(std::errc::invalid_argument);
    if (error) {
        fail(LORNFD_E_OPEN, dataPath, error);
        return Data::Refused;
    }
    catalog.dataSize = stamp.size;
    return Data::Opened;
}

std::shared_ptr<const OpenCatalog> read(const std::string& lookup) {
    for (int attempt = 1;; ++attempt) {
        const std::string path = realPath(lookup);
        auto catalog = std::make_shared<OpenCatalog>();
        Buffer text;
        if (!openIndex(path, *catalog) ||
            !readIndexText(catalog->indexFile, path, catalog->stamp.size, text))
            return nullptr;
        const Data data = openData(path, text, *catalog);
        // Between the two another program may have put everything into a new data file.
        platform::FileStamp now;
        if (data == Data::Missing && attempt < mostAttempts && !platform::stamp(path, now) &&
            now != catalog->stamp)
            continue;
        if (data == Data::Refused)
            return nullptr;
        catalog->index = CatalogIndex::parse(std::move(text), catalog->dataSize, path);
        if (!catalog->index && data == Data::Missing)
            fail(LORNFD_E_CATALOG, {.file = path,
                                    .place = linePlace(1),
                                    .reason = "the data file that it names is missing"});
        return catalog->index ? catalog : nullptr;
    }
}

bool isCurrent(Kept& kept, Look look) {
    const Clock::time_point now = Clock::now();
    if (look == Look::InBurst && kept.looks >= burstLooks && now - kept.lastLook < lookInterval)
        return true;
    kept.looks = now - kept.lastLook < burstGap ? kept.looks + 1 : 0;
    kept.lastLook = now;
    platform::FileStamp stamp;
    return !platform::stamp(kept.lookup, stamp) && stamp == kept.catalog->stamp;
}

void makeRoom(Cache& cache) {
    if (cache.kept.size() < mostKept)
        return;
    cache.kept.erase(std::ranges::min_element(
        cache.kept, {}, [](const auto& pair) { return pair.second.lastUse; }));
}

} // namespace

std::shared_ptr<const OpenCatalog> openCatalog(std::string_view catalog, Look look) {
    Cache& all = cache();
    const std::scoped_lock lock(all.mutex);
    const auto found = all.kept.find(catalog);
    if (found != all.kept.end()) {
        if (isCurrent(found->second, look)) {
            found->second.lastUse = ++all.uses;
            return found->second.catalog;
        }
        all.kept.erase(found);
    }
    std::string lookup = resolvePath(catalog);
    auto opened = read(lookup);
    if (!opened)
        return nullptr;
    makeRoom(all);
    all.kept[std::string(catalog)] = {std::move(lookup), opened, ++all.uses};
    return opened;
}

void expectCatalogChange() {
    Cache& all = cache();
    const std::scoped_lock lock(all.mutex);
    for (auto& [name, kept] : all.kept)
        kept.looks = 0;
}

} // namespace lornfd
