#include "languagefile.h"

#include <random>
#include <unordered_map>

using namespace support;

namespace {

/// The store, empty before and after.
class Store : public testing::Test {
protected:
    Store() { Kesh_TREDescServerUnload(); }
    ~Store() override { Kesh_TREDescServerUnload(); }

    static void load(std::string_view bytes) {
        EXPECT_EQ(loadExact(bytes, Kesh_TREDescServerLoadMemory), 1) << lastErrorText();
    }
    /// A file of one page 17 with these strings.
    static void loadStrings(const std::vector<std::pair<int, std::string>>& strings) {
        const std::int32_t file = Kesh_CreateObject(0, KESH_TEXT_FILE, 44);
        const std::int32_t page = Kesh_CreateObject(file, KESH_TEXT_PAGE, 17);
        for (const auto& [id, text] : strings)
            Kesh_TRESetStringInfo(page, Kesh_CreateObject(page, KESH_TEXT_STRING, id), id, text);
        std::string bytes;
        EXPECT_EQ(Kesh_TRESaveToMemory(file, bytes), 1);
        Kesh_DeleteHandle(0, file);
        load(bytes);
        Kesh_TREDescServerTranslateStrings();
    }
    static std::string text(int page, int id) {
        return stringInfo(Kesh_TREFindString(KESH_STORE, page, id)).text;
    }
    static std::string raw(int page, int id) {
        std::string text;
        EXPECT_EQ(Kesh_TREGetRawString(Kesh_TREFindString(KESH_STORE, page, id), text), 1);
        return text;
    }
    static std::string translated(std::int32_t object, std::string_view text) {
        std::string translated;
        EXPECT_EQ(Kesh_TRETranslateString(object, text, translated), 1) << lastErrorText();
        return translated;
    }
    /// The first of what Kesh_TREFindBadReferences says of string 17:`id`.
    static std::string bad(int id) {
        std::vector<KeshBadReference> found;
        EXPECT_EQ(
            Kesh_TREFindBadReferences(KESH_STORE, Kesh_TREFindString(KESH_STORE, 17, id), found),
            1);
        return found.empty() ? "good"
                             : std::to_string(found[0].Kind) + ' ' + std::to_string(found[0].Page) +
                                   ':' + std::to_string(found[0].Id);
    }
};

TEST_F(Store, LaterFilesWinAndABrokenOneAddsNothing) {
    Kesh_TRESetLangID(KESH_STORE, 44);
    load("<texts language='7'><page id='3' title='A' voice='1'><string id='2'>old</string>"
         "<string id='1'>one</string><string>no id</string></page>"
         "<page><string id='1'>no page</string></page><page id='2'/></texts>");
    load("<texts><page id='5'><string id='-1'>m</string></page><page id='3' description='D'>"
         "<string id='2'>newer</string><string id='2'>new</string><string id='4'/></page></texts>");
    const std::string content = "44\n3|A|D|1\n  2|new\n  1|one\n  4|\n2|||0\n5|||0\n  -1|m\n";
    EXPECT_EQ(contentOf(KESH_STORE), content);
    EXPECT_EQ(loadExact("<texts><page id='3' title='B'><string id='1'>x</string>"
                        "<string id='9'>x</string></page><page id='9'>",
                        Kesh_TREDescServerLoadMemory),
              0);
    EXPECT_EQ(contentOf(KESH_STORE), content);
    EXPECT_EQ(Kesh_TREFindString(KESH_STORE, 3, 9), 0);
    EXPECT_EQ(Kesh_TREFindString(KESH_STORE, 3, 3), 0);
    EXPECT_EQ(Kesh_GetLastError(), KESH_OK);
    EXPECT_EQ(text(5, -1), "m");
    const std::int32_t string = Kesh_TREFindString(KESH_STORE, 3, 2);
    Kesh_TREDescServerUnload();
    EXPECT_EQ(contentOf(KESH_STORE), "44\n");
    std::string gone;
    EXPECT_EQ(Kesh_TREGetRawString(string, gone), 0);
}

TEST_F(Store, FindsWhatAPlainMapFinds) {
    std::mt19937 random(3);
    std::unordered_map<std::int64_t, std::string> plain;
    for (int file = 0; file < 20; ++file) {
        std::string bytes = "<texts>";
        for (int i = 0; i < 400; ++i) {
            const auto page = static_cast<std::int32_t>(random() % 7) - 3;
            const auto id = static_cast<std::int32_t>(random() % 3000) * 700'001;
            std::string value = std::to_string(random());
            if (i == 0) // larger than any block of the store
                value.append(3'000'000, 'x');
            bytes += "<page id='" + std::to_string(page) + "'><string id='" + std::to_string(id) +
                     "'>" + value + "</string></page>";
            plain[page * (std::int64_t{1} << 32U) + id] = value;
        }
        load(bytes + "</texts>");
    }
    std::size_t found = 0;
    for (std::int32_t page = -4; page < 5; ++page)
        for (std::int32_t i = 0; i < 3000; ++i) {
            const std::int32_t id = i * 700'001;
            const auto known = plain.find(page * (std::int64_t{1} << 32U) + id);
            const std::int32_t string = Kesh_TREFindString(KESH_STORE, page, id);
            ASSERT_EQ(string != 0, known != plain.end());
            if (string == 0)
                continue;
            ++found;
            ASSERT_EQ(stringInfo(string), (StringInfo{id, known->second}));
        }
    EXPECT_EQ(found, plain.size());
    std::size_t listed = 0;
    for (const std::int32_t page : childrenOf(KESH_STORE))
        listed += childrenOf(page).size();
    EXPECT_EQ(listed, plain.size());
}

// --- References and codes

TEST_F(Store, RawResolvedAndTranslated) {
    load("<texts><page id='20'><string id='1'>[b]x[/b]\\n</string></page></texts>");
    loadStrings({{1, "Ferry"},
                 {2, "{17:1} \\{17:1} {:1}{20:1}[i]"},
                 {3, "{:2}{17:99}{:-4}"},
                 {4, "{17:1"},
                 {5, "{:17:1}{ 17:1}{17:1 }{+17:1}{}{:}{99999999999:1}{:4}:1}"}});
    EXPECT_EQ(raw(17, 2), "{17:1} \\{17:1} {:1}{20:1}[i]");
    EXPECT_EQ(text(17, 2), "Ferry \\{17:1} Ferry[b]x[/b]\\n[i]");
    EXPECT_EQ(text(17, 3), text(17, 2) + "[string 17:99][string 17:-4]");
    EXPECT_EQ(text(17, 5), "{:17:1}{ 17:1}{17:1 }{+17:1}{}{:}{99999999999:1}{17:1:1}");
    EXPECT_EQ(translated(Kesh_TREFindString(KESH_STORE, 17, 2), raw(17, 2)),
              "Ferry {17:1} Ferryx\n");
    load("<texts><page id='17'><string id='6'>{:1}</string></page></texts>");
    EXPECT_EQ(text(17, 6), "{:1}") << "not yet resolved";
    Kesh_TREDescServerTranslateStrings();
    EXPECT_EQ(text(17, 6), "Ferry");
    // A file's own strings come before those of the store.
    const LanguageFile file("<texts><page id='17'><string id='1'>Own</string>"
                            "<string id='7'>{:1}{20:1}{:7}</string></page></texts>");
    EXPECT_EQ(translated(file.string(0, 1), stringInfo(file.string(0, 1)).text),
              "Ownx\n[string 17:7]");
    EXPECT_EQ(translated(file.page(0), "{:1} {:2}"), "Own Own {17:1} Ownx\n");
    EXPECT_EQ(translated(file.handle, "{17:1} {:1}"), "Own {:1}");
    EXPECT_EQ(translated(KESH_STORE, "{17:1}"), "Ferry");
}

TEST_F(Store, CodesAndEscapes) {
    const struct {
        const char* raw;
        const char* shown;
    } rows[] = {
        {"", ""},
        {"\\n\\t\\\\\\{\\}\\x\\", "\n\t\\{}\\x\\"},
        {"\\\\n", "\\n"},
        {"[b]a[/b][i]b[/i][color=dark red]c[/color]", "abc"},
        {"[B][u][color=][color=a[b][color=", "[B][u][color=][color=a[color="},
        {"[color=a\nb]", "[color=a\nb]"},
        {"\\[b]", "\\"},
        {"\\{17:1\\}", "{17:1}"},
        {"[b", "[b"},
        {"ä[b]\xF0\x9F\x98\x80", "ä\xF0\x9F\x98\x80"},
    };
    for (const auto& row : rows)
        EXPECT_EQ(translated(KESH_STORE, row.raw), row.shown);
}

TEST_F(Store, CirclesAndBombsEndInTheBracketForm) {
    std::vector<std::pair<int, std::string>> strings = {{1, "a{:1}"},    {2, "b{:3}"}, {3, "c{:2}"},
                                                        {4, "d{:2}"},    {5, "e{:9}"}, {6, "{:5}"},
                                                        {7, "{:8}{:8}"}, {8, "ok"}};
    for (int i = 0; i < 1000; ++i) // a circle of 1,000
        strings.emplace_back(2000 + i, "{:" + std::to_string(2000 + (i + 1) % 1000) + "}");
    for (int i = 0; i < 40; ++i) // doubles 40 times
        strings.emplace_back(100 + i, "{:" + std::to_string(101 + i) +
                                          "}{:" + std::to_string(101 + i) + "}");
    strings.emplace_back(140, "boom");
    for (int i = 0; i < 63; ++i) // as deep as it may
        strings.emplace_back(200 + i, "{:" + std::to_string(201 + i) + "}");
    strings.emplace_back(263, "deep");
    strings.emplace_back(199, "{:200}");
    strings.emplace_back(198, "{:199}");
    strings.emplace_back(300, std::string(600'000, 'x'));
    strings.emplace_back(301, "a{:300}b{:300}c{:8}");
    strings.emplace_back(302, "{:301}");
    std::string many;
    for (int i = 0; i < 20'000; ++i)
        many += "{:8}";
    strings.emplace_back(303, many);
    loadStrings(strings);
    EXPECT_EQ(text(17, 1), "a[string 17:1]");
    EXPECT_EQ(text(17, 2), "bc[string 17:2]");
    EXPECT_EQ(text(17, 4), "dbc[string 17:2]");
    EXPECT_EQ(text(17, 7), "okok");
    EXPECT_EQ(text(17, 2000), "[string 17:2065]");
    EXPECT_EQ(text(17, 100), "[string 17:101][string 17:101]");
    EXPECT_EQ(text(17, 199), "deep");
    EXPECT_EQ(text(17, 198), "[string 17:263]");
    EXPECT_EQ(text(17, 301), "a" + std::string(600'000, 'x') + "b[string 17:300]c[string 17:8]");
    EXPECT_EQ(text(17, 302), "[string 17:301]");
    EXPECT_TRUE(text(17, 303).starts_with("okok"));
    EXPECT_TRUE(text(17, 303).ends_with("[string 17:8]"));
    for (const auto& [id, told] : std::vector<std::pair<int, const char*>>{{1, "2 17:1"},
                                                                           {2, "2 17:3"},
                                                                           {3, "2 17:2"},
                                                                           {4, "good"},
                                                                           {5, "1 17:9"},
                                                                           {6, "good"},
                                                                           {7, "good"},
                                                                           {100, "good"},
                                                                           {2500, "2 17:2501"}})
        EXPECT_EQ(bad(id), told) << id;
}

} // namespace

TEST_F(Store, AllBadReferencesAreFoundInOnePass) {
    // A circle of 3,000; and 400 that each refer to all behind them, with no circle but a loose
    // end.
    std::string pages = "<page id='1'>";
    for (int i = 0; i < 3000; ++i)
        pages += "<string id='" + std::to_string(i) + "'>{:" + std::to_string((i + 1) % 3000) +
                 "}</string>";
    pages += "</page><page id='2'>";
    for (int i = 0; i < 400; ++i) {
        pages += "<string id='" + std::to_string(i) + "'>";
        for (int next = i + 1; next <= 400; ++next)
            pages += "{:" + std::to_string(next) + '}';
        pages += "</string>";
    }
    load("<texts>" + pages + "</page></texts>");
    std::vector<KeshBadReference> found;
    ASSERT_EQ(Kesh_TREFindBadReferences(KESH_STORE, 0, found), 1);
    ASSERT_EQ(found.size(), 3400U);
    for (std::size_t i = 0; i < found.size(); ++i) {
        const bool circle = i < 3000;
        EXPECT_EQ(found[i].Kind, circle ? KESH_REFERENCE_CIRCLE : KESH_REFERENCE_NOWHERE);
        EXPECT_EQ(found[i].Id, circle ? static_cast<int>(i + 1) % 3000 : 400);
    }
}
