// The game's texts in two languages.
#pragma once

#include <map>
#include <string>
#include <string_view>

namespace sample {

/// One text in English and German, UTF-8.
struct Phrase {
    std::string_view english;
    std::string_view german;
};

class Texts {
public:
    static constexpr int English = 44;
    static constexpr int German = 49;
    static constexpr int SectorPage = 7;
    static constexpr int ObjectPage = 17;

    /// Fills the pages that do not depend on objects: races, classes, types, ware sizes, variants,
    /// help.
    Texts();

    void set(int page, int id, std::string english, std::string german);
    void set(int page, int id, const Phrase& phrase);
    /// The id of an object's name in page 17; its description has the next id. The first call for a
    /// key makes both, later ones find them.
    int object(const std::string& key, std::string english, std::string german,
               const Phrase& description = {});

    /// A language file with page 17 alone (its strings from `firstId` on), or with all other pages.
    [[nodiscard]] std::string objectsXml(int language, int firstId = 0) const;
    [[nodiscard]] std::string pagesXml(int language) const;
    /// The id that the next new object will get.
    [[nodiscard]] int nextObject() const;

private:
    struct Both {
        std::string english;
        std::string german;
    };
    [[nodiscard]] std::string page(int id, int language, int firstId) const;

    std::map<int, std::map<int, Both>> m_pages;
    std::map<std::string, int> m_objects;
};

} // namespace sample
