#include "core/mdlCommon.h"
#include "keshobjects/keshtexts.h"
#include "keshobjects/numberhash.h"
#include "tdata/DataCheck.h"
#include "textres/clsDescServer.h"

#include <unordered_set>
#include <utility>

namespace {

/// -1 stands for an id that is missing or no number.
constexpr std::int32_t NoId = -1;

class TextChecker {
public:
    TextChecker(std::int32_t texts, std::string file) : m_texts(texts), m_file(std::move(file)) {}

    std::vector<Finding> Run() {
        if (Kesh_TREFindBadReferences(m_texts, 0, m_bad) == 0)
            Add({}, "The references could not be checked: " + KeshErrorText());
        for (const std::int32_t page : EnumChildren(m_texts))
            CheckPage(page);
        return std::move(m_findings);
    }

private:
    void CheckPage(std::int32_t page) {
        std::int32_t id = NoId;
        std::int32_t voice = 0;
        std::string title;
        std::string description;
        Kesh_TREGetPageInfo(page, id, title, description, voice);
        if (id == NoId)
            Add(std::to_string(id), "The page has no number, or -1.");
        else if (!m_pages.insert(keshobjects::keyOf(id, 0)).second)
            Add(std::to_string(id), "The page stands in this file more than once.");
        for (const std::int32_t string : EnumChildren(page))
            CheckString(id, string);
    }

    void CheckString(std::int32_t page, std::int32_t string) {
        std::int32_t id = NoId;
        std::int32_t second = 0;
        std::string text;
        Kesh_TREGetStringInfo(string, id, second, text);
        const std::string name = std::to_string(page) + ':' + std::to_string(id);
        if (id == NoId)
            Add(name, "The string has no number, or -1.");
        else if (!m_strings.insert(keshobjects::keyOf(page, id)).second)
            Add(name, "The string stands in this file more than once; the last one counts.");
        TellReferences(name, string);
    }

    /// The bad references are in the order of their strings.
    void TellReferences(const std::string& name, std::int32_t string) {
        for (; m_next < m_bad.size() && m_bad[m_next].String == string; ++m_next) {
            const KeshBadReference& bad = m_bad[m_next];
            Add(name, "The reference to " + std::to_string(bad.Page) + ':' +
                          std::to_string(bad.Id) +
                          (bad.Kind == KESH_REFERENCE_CIRCLE ? " leads in a circle."
                                                             : " leads nowhere."));
        }
    }

    void Add(std::string name, std::string text) {
        m_findings.push_back({.File = m_file, .ID = std::move(name), .Text = std::move(text)});
    }

    std::int32_t m_texts;
    std::string m_file;
    std::unordered_set<std::uint64_t, keshobjects::NumberHash> m_pages;
    std::unordered_set<std::uint64_t, keshobjects::NumberHash>
        m_strings; ///< page and string in one
    std::vector<KeshBadReference> m_bad;
    std::size_t m_next = 0; ///< in m_bad
    std::vector<Finding> m_findings;
};

} // namespace

std::vector<Finding> CheckLanguageFile(std::int32_t Texts, const std::string& File) {
    return TextChecker(Texts, File).Run();
}
