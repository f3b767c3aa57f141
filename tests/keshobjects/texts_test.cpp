#include "keshobjects/xmltext.h"
#include "languagefile.h"
#include "lornfd/lornfd.h"

#include <filesystem>
#include <limits>
#include <random>
#include <unistd.h>

using namespace support;

namespace {

/// As this program writes it, with a page of another hand behind.
constexpr std::string_view sampleFile =
    "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
    "<texts language=\"44\">\n"
    " <page id=\"17\" title=\"Objects\" description=\"All &amp; sundry\" voice=\"1\">\n"
    "  <string id=\"5\">Ferry</string>\n"
    "  <string id=\"6\"></string>\n"
    " </page>\n"
    " <page id='20' author=\"J &quot;D&quot;\" title='It&apos;s'>\n"
    "  <!-- first --><string  note='a' id = '1' >one<!-- in -->two</string>\n"
    "\n"
    "  <string id=\"2\"/> <!-- last -->\n"
    " </page>\n"
    "</texts>\n";

/// The sample file with one piece exchanged.
std::string sampleWith(std::string_view piece, std::string_view other) {
    std::string text(sampleFile);
    const std::size_t found = text.find(piece);
    EXPECT_NE(found, text.npos) << piece;
    EXPECT_EQ(text.find(piece, found + 1), text.npos) << piece;
    return text.replace(found, piece.size(), other);
}

// --- Reading

TEST(Texts, AFileReadsAsXmlSays) {
    const LanguageFile file(
        "\xEF\xBB\xBF<!DOCTYPE texts SYSTEM 'x>[.dtd'><?pi?>\r\n<texts language='-7' x=''>junk"
        "<page id='-2147483648' title='a\tb\r\nc&#10;&lt;' voice='2147483647'><other><string "
        "id='9'>no</string></other>"
        "<string id='+5'> a\r\nb\rc&#13;\n&#x1F600;&amp;lt; <![CDATA[<&amp;\r\n]]> d</string>"
        "<string id='&#49;'><b>in<i/></b> side<?p q?></string><string>no id</string>"
        "<string id='4294967296'> </string><string id='1'>twice</string></page>"
        "<page id='x'/><string id='1'>astray</string></texts><!-- end -->");
    EXPECT_EQ(contentOf(file.handle), "-7\n-2147483648|a b c\n<||2147483647\n"
                                      "  5| a\nb\nc\r\n\U0001F600&lt; <&amp;\n d\n"
                                      "  1|in side\n  -1|no id\n  -1| \n  1|twice\n"
                                      "-1|||0\n");
    EXPECT_EQ(Kesh_TREFindString(file.handle, std::numeric_limits<std::int32_t>::min(), 1),
              file.string(0, 4))
        << "the last of two";
    EXPECT_EQ(Kesh_TREFindString(file.handle, 1, 1), 0);
    EXPECT_EQ(Kesh_GetLastError(), KESH_OK);
}

TEST(Texts, BadFilesAreRefusedWithNameAndPlace) {
    std::string deep = "<texts>\n";
    for (int i = 0; i < 1'000'000; ++i)
        deep += "<a>";
    std::string wide = "<texts";
    for (int i = 0; i < 1'000'000; ++i)
        wide += " a" + std::to_string(i) + "=''";
    const struct {
        std::string bytes;
        std::string_view told;
    } rows[] = {
        {"", "no element in line 1"},
        {"\n\nonly text", "outside the root element in line 3"},
        {"<texts>\n<page id=\"1\">\n", "the end where \"page\" is open in line 3"},
        {"<texts></texts>\n<texts/>", "a second root element in line 2"},
        {"<texts/>\nrest", "line 2"},
        {"<universe>\n</universe>", "root element other than \"texts\" in line 1"},
        {"<texts>\n<page></texts>", "the end of \"texts\""},
        {"<texts>\n&unknown;</texts>", "line 2"},
        {"<texts>a & b</texts>", "no known reference"},
        {"<texts a='&#0;'/>", "no known reference"},
        {"<texts>\n&#xD800;</texts>", "no known reference in line 2"},
        {"<texts a='1' a='2'/>", "second time"},
        {"<texts a='1'b='2'/>", "does not belong"},
        {"<texts a=1/>", "without quotes"},
        {"<texts a/>", "without a value"},
        {"<texts a='<'/>", "\"<\" in an attribute"},
        {"<texts a='", "never ends"},
        {"<texts><!-- ", "remark that never ends"},
        {"<texts><![CDATA[ ]]", "CDATA section that never ends"},
        {"<texts><?p ", "instruction that never ends"},
        {"<texts/>\n<? ?>", "instruction without a name in line 2"},
        {"<![CDATA[]]><texts/>", "outside the root"},
        {"<texts><1/></texts>", "begins no tag"},
        {"<texts><", "begins no tag"},
        {"<texts><!x></texts>", "nothing known"},
        {"<!DOCTYPE texts [<!ENTITY a SYSTEM \"file:///etc/passwd\">]>\n<texts>&a;</texts>",
         "document type with declarations"},
        {"<!DOCTYPE texts'><texts/>", "document type that never ends"},
        {"<!DOCTYPE texts [<!ENTITY a \"aaaa\">]><texts/>", "document type with declarations"},
        {"<texts>\n\x01</texts>", "character that XML does not have in line 2"},
        {"<texts>\xEF\xBF\xBF</texts>", "character that XML does not have"},
        {"<texts>\n\xFF</texts>", "line 2"},
        {std::string("<texts>\n\0</texts>", 17), "NUL character stands in line 2"},
        {"\xFF\xFE<\0t\0e", "UTF-16"},
        {"<?xml version='1.0' encoding='UTF-16'?><texts/>", "UTF-16"},
        {"<?xml version='1.0' encoding='KOI8-R'?><texts/>", "KOI8-R"},
        {deep, "more than 64 elements open in line 2"},
        {wide, "too many"},
    };
    for (const auto& row : rows)
        for (const auto load : {Kesh_TRELoadFromMemory, Kesh_TREDescServerLoadMemory}) {
            SCOPED_TRACE(row.bytes.substr(0, 80));
            EXPECT_EQ(loadExact(row.bytes, load), 0);
            const std::string text = lastErrorText();
            EXPECT_NE(text.find(row.told), text.npos) << text;
            EXPECT_NE(text.find("t.xml"), text.npos) << text;
        }
    EXPECT_EQ(childrenOf(KESH_STORE), std::vector<std::int32_t>());
}

TEST(Texts, EveryCutOfAFileIsRefused) {
    const std::string_view whole = sampleFile.substr(0, sampleFile.size() - 1);
    for (std::size_t size = 0; size < whole.size(); ++size)
        EXPECT_EQ(loadExact(whole.substr(0, size), Kesh_TRELoadFromMemory), 0) << size;
}

/// Texts are scanned many bytes at a time, so every place within such a block is tried.
TEST(Texts, NothingIsMissedAtAnyPlace) {
    const std::string fillers[] = {"a", "\u00E4", "\u20AC", "\U0001F600", "a\n\u00E4"};
    const std::string bads[] = {"\x01",         "\x1F",         "\x80",
                                "\xC3",         "\xC1\x81",     "\xFF",
                                "\xE0\x9F\xBF", "\xEF\xBF\xBE", "\xF4\x90\x80\x80",
                                "\xC3\xC3",     "\xE2\x82"};
    for (const std::string& filler : fillers)
        for (std::size_t before = 0; before < 40; ++before)
            for (const std::string& end : {std::string(), filler, std::string(20, 'a')}) {
                std::string start;
                for (std::size_t i = 0; i < before; ++i)
                    start += filler;
                EXPECT_EQ(keshobjects::findNoXmlCharacter(start + end), start.npos);
                for (const std::string& bad : bads)
                    EXPECT_EQ(keshobjects::findNoXmlCharacter(start + bad + end), start.size());
                for (const char special : {'&', '\r', 'a'}) {
                    const std::string text = start + special + end + "<&\r<";
                    const auto found = keshobjects::findTextEnd(text, 0);
                    EXPECT_EQ(found.place, text.find('<'));
                    EXPECT_EQ(found.asItReads, special == 'a');
                }
            }
}

// --- Saving

TEST(Texts, AnUntouchedFileIsSavedByteForByte) {
    const std::string windows = "<?xml version='1.0' encoding='windows-1252'?>\r\n"
                                "<texts language='49'><page id='1' title='\xE4'>"
                                "<string id='2'>\x80 &#x20AC; &#228;</string></page></texts>";
    const std::string odd = "<?xml version=\"1.0\"?><!-- \xC3\xA4 --><texts\n\tlanguage = '44'  "
                            "foo=\"&#9;\" >\r\r\n<page/ ><page id='1'\r/></texts\t>\n\n<?end?>";
    for (const std::string& bytes :
         {std::string(sampleFile), windows, "\xEF\xBB\xBF" + std::string(sampleFile),
          sampleWith("/> <!-- last", ">&#10;]]&gt;<![CDATA[x]]></string> <!-- last"),
          std::string("<texts/>"), "<texts><page\r/></texts\t>\n<?end?>" + std::string(9, ' ')}) {
        const LanguageFile file(bytes);
        EXPECT_EQ(file.saved(), bytes);
        if (childrenOf(file.handle).empty() || childrenOf(file.page(0)).empty())
            continue;
        // Set to what it was, it is untouched as well.
        const PageInfo page = pageInfo(file.page(0));
        const StringInfo string = stringInfo(file.string(0, 0));
        const auto set = [&](const std::string& more) {
            EXPECT_EQ(Kesh_TRESetPageInfo(file.page(0), page.id, page.title + more,
                                          page.description + more, page.voice + 1),
                      1);
            EXPECT_EQ(Kesh_TRESetStringInfo(file.page(0), file.string(0, 0), string.id + 100,
                                            string.text + more),
                      1);
        };
        set("x");
        EXPECT_NE(file.saved(), bytes);
        Kesh_TRESetPageInfo(file.page(0), page.id, page.title, page.description, page.voice);
        Kesh_TRESetStringInfo(file.page(0), file.string(0, 0), string.id, string.text);
        EXPECT_EQ(file.saved(), bytes);
    }
    EXPECT_EQ(loadExact(odd, Kesh_TRELoadFromMemory), 0) << "\"/ >\" is no end of a tag";
}

struct EditCase {
    void (*edit)(const LanguageFile& file);
    const char* before; ///< this piece of the sample file ...
    const char* after;  ///< ... is saved so
};

void setText(const LanguageFile& file, std::size_t page, std::size_t at, std::int32_t id,
             std::string_view text) {
    EXPECT_EQ(Kesh_TRESetStringInfo(file.page(page), file.string(page, at), id, text), 1)
        << lastErrorText();
}
std::int32_t addString(std::int32_t page, std::int32_t id, std::string_view text) {
    const std::int32_t string = Kesh_CreateObject(page, KESH_TEXT_STRING, 0);
    EXPECT_EQ(stringInfo(string).id, -1);
    EXPECT_EQ(Kesh_TRESetStringInfo(page, string, id, text), 1) << lastErrorText();
    return string;
}
std::int32_t addPage(std::int32_t file, std::int32_t id) {
    const std::int32_t page = Kesh_CreateObject(file, KESH_TEXT_PAGE, 0);
    EXPECT_EQ(pageInfo(page).id, -1);
    EXPECT_EQ(Kesh_TRESetPageInfo(page, id, "<T>", "\"D\"\n", 0), 1) << lastErrorText();
    return page;
}
void removeString(const LanguageFile& file, std::size_t page, std::size_t at) {
    EXPECT_EQ(Kesh_DeleteHandle(file.page(page), file.string(page, at)), 1) << lastErrorText();
}

TEST(Texts, AnEditChangesItsOwnPlaceOnly) {
    const EditCase rows[] = {
        {[](const LanguageFile& f) { setText(f, 0, 0, 5, "a<&>\"'\r\n\t]]>"); },
         "<string id=\"5\">Ferry</string>",
         "<string id=\"5\">a&lt;&amp;&gt;\"'&#13;\n\t]]&gt;</string>"},
        {[](const LanguageFile& f) { setText(f, 0, 0, -8, "Ferry"); },
         "<string id=\"5\">Ferry</string>", "<string id=\"-8\">Ferry</string>"},
        {[](const LanguageFile& f) { setText(f, 1, 0, 3, "new"); },
         "<string  note='a' id = '1' >one<!-- in -->two</string>",
         "<string  note='a' id = \"3\" >new</string>"},
        {[](const LanguageFile& f) { setText(f, 1, 1, 2, "new"); }, "<string id=\"2\"/>",
         "<string id=\"2\">new</string>"},
        {[](const LanguageFile& f) { Kesh_TRESetPageInfo(f.page(1), 20, "\"It\"\t\r\n", "D", 0); },
         "title='It&apos;s'>", "title=\"&quot;It&quot;&#9;&#13;&#10;\" description=\"D\">"},
        {[](const LanguageFile& f) {
             Kesh_TRESetPageInfo(f.page(0), 18, "Objects", "All & sundry", 0);
         },
         "<page id=\"17\" title=\"Objects\" description=\"All &amp; sundry\" voice=\"1\">",
         "<page id=\"18\" title=\"Objects\" description=\"All &amp; sundry\" voice=\"0\">"},
        {[](const LanguageFile& f) { Kesh_TRESetLangID(f.handle, 49); }, "language=\"44\"",
         "language=\"49\""},
        {[](const LanguageFile& f) { removeString(f, 0, 1); }, "\n  <string id=\"6\"></string>",
         ""},
        {[](const LanguageFile& f) {
             removeString(f, 1, 1);
             removeString(f, 1, 0);
         },
         "<string  note='a' id = '1' >one<!-- in -->two</string>\n\n  <string id=\"2\"/> <!-- last",
         " <!-- last"},
        {[](const LanguageFile& f) { Kesh_DeleteHandle(f.handle, f.page(0)); },
         "\n <page id=\"17\" title=\"Objects\" description=\"All &amp; sundry\" voice=\"1\">\n"
         "  <string id=\"5\">Ferry</string>\n  <string id=\"6\"></string>\n </page>",
         ""},
        {[](const LanguageFile& f) {
             removeString(f, 0, 1);
             addString(f.page(0), 7, "a<b");
             addString(f.page(0), 8, "");
         },
         "\n  <string id=\"6\"></string>",
         "\n  <string id=\"7\">a&lt;b</string>\n  <string id=\"8\"></string>"},
        {[](const LanguageFile& f) { addString(f.page(1), 7, "x"); }, "<!-- last -->",
         "<!-- last -->\n  <string id=\"7\">x</string>"},
        {[](const LanguageFile& f) { addString(addPage(f.handle, 30), 1, "x"); }, "</texts>",
         " <page id=\"30\" title=\"&lt;T&gt;\" description=\"&quot;D&quot;&#10;\" voice=\"0\">\n"
         "  <string id=\"1\">x</string>\n </page>\n</texts>"},
        {[](const LanguageFile& f) {
             const std::int32_t page = addPage(f.handle, 30);
             Kesh_DeleteHandle(page, addString(page, 1, "x"));
             Kesh_DeleteHandle(f.handle, page);
             Kesh_DeleteHandle(f.page(0), addString(f.page(0), 1, "x"));
         },
         "</texts>", "</texts>"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.before);
        const LanguageFile file(sampleFile);
        row.edit(file);
        EXPECT_EQ(file.saved(), sampleWith(row.before, row.after));
        const LanguageFile again(file.saved());
        EXPECT_EQ(contentOf(again.handle), contentOf(file.handle));
    }
}

TEST(Texts, NewElementsFollowTheFormOfTheFile) {
    const struct {
        const char* before;
        const char* after;
    } rows[] = {
        {"<texts/>", "<texts><page id=\"1\" title=\"&lt;T&gt;\" description=\"&quot;D&quot;&#10;\" "
                     "voice=\"0\"><string id=\"2\">x</string></page></texts>"},
        {"<?x?>\r\n<texts />", "<?x?>\r\n<texts>\r\n <page>\r\n  <string id=\"2\">x</string>\r\n"
                               " </page>\r\n</texts>"},
        {"<texts>\n</texts>",
         "<texts>\n <page>\n  <string id=\"2\">x</string>\n </page>\n</texts>"},
        {"<texts>\n\t<page/></texts>",
         "<texts>\n\t<page/>\n\t<page>\n\t <string id=\"2\">x</string>\n\t</page></texts>"},
    };
    for (const auto& row : rows) {
        const LanguageFile file(row.before);
        addString(addPage(file.handle, 1), 2, "x");
        std::string expected = row.after;
        if (const std::size_t at = expected.rfind("<page>"); at != expected.npos)
            expected.replace(at, 6,
                             "<page id=\"1\" title=\"&lt;T&gt;\" description=\"&quot;D&quot;&#10;\""
                             " voice=\"0\">");
        EXPECT_EQ(file.saved(), expected);
    }
    const LanguageFile page("<texts>\n <page id=\"1\" /></texts>");
    addString(page.page(0), 2, "x");
    EXPECT_EQ(Kesh_TRESetPageInfo(page.page(0), 1, "t", "", 0), 1);
    EXPECT_EQ(page.saved(), "<texts>\n <page id=\"1\" title=\"t\">\n  <string id=\"2\">x</string>\n"
                            " </page></texts>");
    const LanguageFile windows("<?xml version='1.0' encoding='windows-1252'?><texts/>");
    addString(addPage(windows.handle, 1), 2, "ä€Ж");
    EXPECT_NE(windows.saved().find(">\xE4\x80&#x416;<"), std::string::npos) << windows.saved();
}

/// Random edits; what is saved reads again as what was there, and saving it again changes nothing.
TEST(Texts, AnythingGoesThroughAFile) {
    std::mt19937 random(7);
    const std::string pieces[] = {"a",   " ",     "\r", "\n",    "\t",     "&",          "<",
                                  ">",   "\"",    "'",  "ä",     "\u20AC", "\U0001F600", "\x7F",
                                  "]]>", "&amp;", "--", "{1:2}", "\u0085"};
    const auto text = [&] {
        std::string made;
        for (auto count = random() % 6; count > 0; --count)
            made += pieces[random() % std::size(pieces)];
        return made;
    };
    for (int round = 0; round < 300; ++round) {
        const LanguageFile file(sampleFile);
        for (int step = 0; step < 12; ++step) {
            const auto pages = childrenOf(file.handle);
            const auto id = static_cast<std::int32_t>(random());
            const std::int32_t page = pages.empty() || random() % 6 == 0
                                          ? addPage(file.handle, id)
                                          : pages[random() % pages.size()];
            const auto strings = childrenOf(page);
            const std::int32_t string = strings.empty() || random() % 3 == 0
                                            ? addString(page, id, text())
                                            : strings[random() % strings.size()];
            switch (random() % 4) {
            case 0:
                Kesh_TRESetPageInfo(page, pageInfo(page).id, text(), text(), id);
                break;
            case 1:
                Kesh_DeleteHandle(page, string);
                break;
            case 2:
                if (random() % 3 == 0)
                    Kesh_DeleteHandle(file.handle, page);
                break;
            default:
                Kesh_TRESetStringInfo(page, string, id, text());
            }
        }
        const std::string saved = file.saved();
        const LanguageFile again(saved);
        ASSERT_EQ(contentOf(again.handle), contentOf(file.handle)) << saved;
        ASSERT_EQ(again.saved(), saved);
    }
}

TEST(Texts, AFileGoesThroughTheFileDriver) {
    const auto directory =
        std::filesystem::temp_directory_path() / ("keshtexts-" + std::to_string(::getpid()));
    std::filesystem::create_directories(directory);
    const std::string path = (directory / "t.pck").string();
    const std::int32_t made = Kesh_CreateObject(0, KESH_TEXT_FILE, 44);
    EXPECT_EQ(Kesh_TREGetLangID(made), 44);
    addString(addPage(made, 17), 5, "Ferry");
    const std::int32_t out = LornFD_OpenFile(path, LORNFD_WRITE, LORNFD_CREATE, LORNFD_ZSTD);
    EXPECT_EQ(Kesh_SaveToFile(out, made), 1) << lastErrorText();
    EXPECT_EQ(LornFD_CloseFile(out), 1);
    EXPECT_EQ(Kesh_SaveToFile(out, made), 0);
    EXPECT_EQ(Kesh_GetLastError(), KESH_E_WRITE);
    const std::int32_t in = LornFD_OpenFile(path, LORNFD_READ, LORNFD_OPEN_EXISTING, LORNFD_AS_IS);
    const std::int32_t loaded = Kesh_LoadFromFile(in, 3);
    EXPECT_EQ(contentOf(loaded), "44\n17|<T>|\"D\"\n|0\n  5|Ferry\n");
    LornFD_CloseFile(in);
    EXPECT_EQ(Kesh_LoadFromFile(in, 3), 0);
    EXPECT_EQ(Kesh_GetLastError(), KESH_E_READ);
    std::string bytes;
    EXPECT_EQ(Kesh_TRESaveToMemory(loaded, bytes), 1);
    EXPECT_TRUE(bytes.starts_with("<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<texts")) << bytes;
    Kesh_DeleteHandle(0, made);
    Kesh_DeleteHandle(0, loaded);
    std::filesystem::remove_all(directory);
}

// --- Rules

TEST(Texts, ManyMayHaveNoNumberAndItIsNotWritten) {
    const std::int32_t file = Kesh_CreateObject(0, KESH_TEXT_FILE, 44);
    for (int i = 0; i < 2; ++i) {
        const std::int32_t page = Kesh_CreateObject(file, KESH_TEXT_PAGE, -1);
        for (int k = 0; k < 2; ++k)
            EXPECT_EQ(
                Kesh_TRESetStringInfo(page, Kesh_CreateObject(page, KESH_TEXT_STRING, 0), -1, "x"),
                1);
    }
    std::string bytes;
    EXPECT_EQ(Kesh_TRESaveToMemory(file, bytes), 1);
    EXPECT_EQ(bytes.find("id="), bytes.npos) << bytes;
    Kesh_DeleteHandle(0, file);
}

TEST(Texts, TakenIdsAndUnwritableCharactersChangeNothing) {
    const LanguageFile file(sampleFile);
    const std::string before = contentOf(file.handle);
    EXPECT_EQ(Kesh_TRESetStringInfo(file.page(0), file.string(0, 0), 6, "x"), 0);
    EXPECT_EQ(lastErrorText(), "There is a string with the number 6 already.");
    EXPECT_EQ(Kesh_TRESetPageInfo(file.page(0), 20, "", "", 0), 0);
    EXPECT_EQ(lastErrorText(), "There is a page with the number 20 already.");
    EXPECT_EQ(Kesh_CreateObject(file.handle, KESH_TEXT_PAGE, 17), 0);
    EXPECT_EQ(Kesh_CreateObject(file.page(0), KESH_TEXT_STRING, 5), 0);
    EXPECT_EQ(Kesh_GetLastError(), KESH_E_ID_TAKEN);
    for (const std::string& bad :
         {std::string("ab\0", 3), std::string("ab\x1F"), std::string("ab\xFF"),
          std::string("ab\xC3"), std::string("ab\xEF\xBF\xBE"), std::string("ab\xED\xA0\x80")}) {
        EXPECT_EQ(Kesh_TRESetStringInfo(file.page(0), file.string(0, 0), 5, bad), 0);
        EXPECT_NE(lastErrorText().find("offset 2 of the text"), std::string::npos);
        EXPECT_EQ(Kesh_TRESetPageInfo(file.page(0), 17, bad, "", 0), 0);
        EXPECT_EQ(Kesh_TRESetPageInfo(file.page(0), 17, "", bad, 0), 0);
        EXPECT_EQ(Kesh_GetLastError(), KESH_E_CHARACTER);
    }
    EXPECT_EQ(contentOf(file.handle), before);
    EXPECT_EQ(file.saved(), sampleFile);
    const LanguageFile doubles("<texts><page><string id='1'/><string id='1'/></page></texts>");
    setText(doubles, 0, 1, 1, "its own id is not taken");
}

TEST(Texts, HandlesOfOtherKindsAndOfWhatIsGoneAreRefused) {
    const std::int32_t tText = Kesh_LoadFromMemory("1;", "a.txt");
    EXPECT_NE(tText, KESH_STORE);
    Kesh_TREDescServerLoadMemory(sampleFile, "store");
    const std::int32_t storedPage = childrenOf(KESH_STORE).at(0);
    const std::int32_t storedString = childrenOf(storedPage).at(0);
    const LanguageFile file(sampleFile);
    const std::int32_t page = file.page(0);
    const std::int32_t string = file.string(0, 0);
    const std::int32_t gonePage = addPage(file.handle, 40);
    const std::int32_t goneString = addString(gonePage, 1, "");
    Kesh_DeleteHandle(file.handle, gonePage);
    addPage(file.handle, 41);
    enum Kind : unsigned { File = 1, Page = 2, String = 4, Changes = 8, None = 0 };
    const struct {
        std::int32_t handle;
        unsigned kind;
    } rows[] = {{0, None},
                {-1, None},
                {tText, None},
                {gonePage, None},
                {goneString, None},
                {storedPage + 1000, None},
                {storedString + 1000, None},
                {KESH_STORE, File},
                {storedPage, Page},
                {storedString, String},
                {file.handle, File | Changes},
                {page, Page | Changes},
                {string, String | Changes}};
    for (const auto& row : rows) {
        SCOPED_TRACE(row.handle);
        std::int32_t number = 0;
        std::string text;
        std::vector<KeshBadReference> bad;
        const auto allowed = [&](std::int32_t result, unsigned kinds, bool changing = false) {
            const bool right = (row.kind & kinds) != 0 && (!changing || (row.kind & Changes) != 0);
            EXPECT_EQ(result != 0, right);
            EXPECT_TRUE(right || Kesh_GetLastError() == KESH_E_HANDLE);
        };
        allowed(Kesh_TREGetLangID(row.handle), File);
        allowed(Kesh_TREGetPageInfo(row.handle, number, text, text, number), Page);
        allowed(Kesh_TREGetStringInfo(row.handle, number, number, text), String);
        allowed(Kesh_TREGetRawString(row.handle, text), String);
        allowed(Kesh_TREFindString(row.handle, 17, 5), File);
        allowed(Kesh_EnumObjects(row.handle, nullptr, 0, number), File | Page | String);
        allowed(Kesh_TRETranslateString(row.handle, "", text), File | Page | String);
        allowed(Kesh_TREFindBadReferences(row.handle, string, bad), File);
        allowed(Kesh_TRESetPageInfo(row.handle, 17, "", "", 0), Page, true);
        allowed(Kesh_TRESetStringInfo(row.handle, string, 5, ""), Page, true);
        allowed(Kesh_TRESetStringInfo(page, row.handle, 5, ""), String, true);
        allowed(Kesh_TRESaveToMemory(row.handle, text), File, true);
        const std::int32_t kind = row.handle == tText      ? KESH_TYPE_T_TEXT
                                  : (row.kind & File) != 0 ? KESH_TEXT_FILE
                                  : (row.kind & Page) != 0 ? KESH_TEXT_PAGE
                                  : row.kind != None       ? KESH_TEXT_STRING
                                                           : 0;
        EXPECT_EQ(Kesh_GetObjectType(row.handle), kind);
    }
    for (const auto& [parent, child] : {std::pair{0, page},
                                        {0, string},
                                        {file.handle, string},
                                        {file.page(1), string},
                                        {KESH_STORE, storedPage},
                                        {storedPage, storedString},
                                        {0, KESH_STORE},
                                        {0, gonePage}}) {
        EXPECT_EQ(Kesh_DeleteHandle(parent, child), 0);
        EXPECT_EQ(Kesh_GetLastError(), KESH_E_HANDLE);
    }
    EXPECT_EQ(Kesh_CreateObject(KESH_STORE, KESH_TEXT_PAGE, 0), 0);
    EXPECT_EQ(Kesh_CreateObject(file.handle, KESH_TEXT_STRING, 0), 0);
    EXPECT_EQ(Kesh_CreateObject(0, 6, 0), 0);
    EXPECT_EQ(Kesh_GetLastError(), KESH_E_ARGUMENT);
    Kesh_DeleteHandle(0, tText);
    Kesh_TREDescServerUnload();
}

} // namespace
