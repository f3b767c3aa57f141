#include "keshobjects/keshtexts.h"
#include "tdata/DataCheck.h"
#include "textres/clsDescServer.h"

#include <unordered_set>
#include <utility>

namespace {

/// -1 stands for an id that is missing or no number.
constexpr std::int32_t NoId = -1;

std::uint64_t KeyOf(std::int32_t page, std::int32_t id) {
    return std::uint64_t{static_cast<std::uint32_t>(page)} << 32U | static_cast<std::uint32_t>(id);
}

class TextChecker {
public:
    TextChecker(std::int32_t texts, std::string file) : m_texts(texts), m_file(std::move(file)) {}

    std::vector<Finding> Run() {
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
        else if (!m_pages.insert(id).second)
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
        else if (!m_strings.insert(KeyOf(page, id)).second)
            Add(name, "The string stands in this file more than once; the last one counts.");
        CheckReferences(name, string);
    }

    void CheckReferences(const std::string& name, std::int32_t string) {
        std::int32_t page = 0;
        std::int32_t id = 0;
        const std::int32_t bad = Kesh_TREFindBadReference(m_texts, string, page, id);
        const std::string reference =
            "The reference to " + std::to_string(page) + ':' + std::to_string(id);
        if (bad == KESH_REFERENCE_NOWHERE)
            Add(name, reference + " leads nowhere.");
        else if (bad == KESH_REFERENCE_CIRCLE)
            Add(name, reference + " leads in a circle.");
    }

    void Add(std::string name, std::string text) {
        m_findings.push_back({.File = m_file, .ID = std::move(name), .Text = std::move(text)});
    }

    std::int32_t m_texts;
    std::string m_file;
    std::unordered_set<std::int32_t> m_pages;
    std::unordered_set<std::uint64_t> m_strings; ///< page and string in one
    std::vector<Finding> m_findings;
};

} // namespace

std::vector<Finding> CheckLanguageFile(std::int32_t Texts, const std::string& File) {
    return TextChecker(Texts, File).Run();
}
