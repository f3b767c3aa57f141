// Targets whose replacing is disturbed, and what has to hold afterwards.
#pragma once

#include "scratch.h"

#include <cstdlib>
#include <ostream>
#include <set>
#include <string>

namespace saving {

/// A place that is saved to; a table row.
struct Target {
    const char* title;
    const char* name; ///< in the directory
    std::int32_t form;
    bool exists;           ///< before the save
    std::size_t spare = 0; ///< dead bytes in the catalog beforehand
};

inline constexpr Target targets[] = {
    {"Plain", "file.txt", LORNFD_PLAIN, true},
    {"NewPlain", "file.txt", LORNFD_PLAIN, false},
    {"Gzip", "file.pck", LORNFD_GZIP, true},
    {"Zstd", "file.pck", LORNFD_ZSTD, true},
    {"Entry", "c.cat::types\\entry", LORNFD_PLAIN, true},
    {"NewEntry", "c.cat::types\\new", LORNFD_PLAIN, false},
    {"PackedEntry", "c.cat::types\\entry", LORNFD_ZSTD, true},
    {"CompactedEntry", "c.cat::types\\entry", LORNFD_PLAIN, true, 400'000},
};

inline void PrintTo(const Target& target, std::ostream* out) {
    *out << target.title;
}

/// ./test --long sets it; otherwise a tenth of the cases runs.
inline bool isLong() {
    return std::getenv("KESH_LONG") != nullptr;
}

/// A directory with a target as it stands before the save, and others that must not change.
class Scene {
public:
    explicit Scene(const Target& target, std::size_t size = 40'000)
        : m_target(target), m_size(size), name(directory / target.name) {
        scratch::writeFile(directory / "bystander.txt", "bystander");
        scratch::makeCatalog(directory / "c.cat", {{"first", scratch::noise(5000, 10)},
                                                   {"types\\entry", "replaced at once"},
                                                   {"last", scratch::noise(5000, 11)}});
        EXPECT_TRUE(!target.exists || scratch::save(name, old(), target.form));
        if (target.spare > 0) // a tail that a crash left
            scratch::writeFile(directory / dataName(), scratch::readFile(directory / dataName()) +
                                                           std::string(target.spare, 't'));
    }

    [[nodiscard]] std::string old() const { return scratch::noise(m_size, 1); }
    /// Of another length each, so that a mixture would show.
    [[nodiscard]] std::string version(unsigned number) const {
        return scratch::noise(m_size / 2 + number % 5 * m_size / 4, 2 + number);
    }
    bool save(unsigned number) const { return scratch::save(name, version(number), m_target.form); }

    [[nodiscard]] bool holdsOld() const {
        return m_target.exists
                   ? scratch::load(name) == old()
                   : scratch::load(name) == "error " + std::to_string(LORNFD_E_NOT_FOUND);
    }
    [[nodiscard]] bool holds(unsigned number) const {
        return scratch::load(name) == version(number);
    }
    [[nodiscard]] bool othersStand() const {
        return scratch::readFile(directory / "bystander.txt") == "bystander" &&
               scratch::load(directory / "c.cat::first") == scratch::noise(5000, 10) &&
               scratch::load(directory / "c.cat::last") == scratch::noise(5000, 11);
    }
    /// Nothing but what belongs there: no temporary file, no lock, no second data file.
    [[nodiscard]] bool isTidy() const {
        std::set<std::string> wanted = {"bystander.txt", "c.cat", dataName()};
        const bool inCatalog = name.find("::") != std::string::npos;
        if (!inCatalog && std::filesystem::exists(name))
            wanted.insert(m_target.name);
        return directory.names() == wanted;
    }
    [[nodiscard]] std::string listing() const {
        std::string all;
        for (const std::string& file : directory.names())
            all += file + " ";
        return all;
    }

private:
    [[nodiscard]] std::string dataName() const {
        const auto index = lornfd::CatalogIndex::open(directory / "c.cat");
        return index ? std::filesystem::path(index->dataPath()).filename().string() : "no index";
    }

    const Target& m_target;
    std::size_t m_size;

public:
    const scratch::Directory directory;
    const std::string name;
};

} // namespace saving
