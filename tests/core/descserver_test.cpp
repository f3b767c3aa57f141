#include "core/mdlComFunctions.h"
#include "core/mdlCommon.h"
#include "core/surroundings.h"
#include "keshobjects/keshobjects.h"
#include "keshobjects/keshtexts.h"
#include "keshvfs/keshvfs.h"
#include "lornfd/lornfd.h"
#include "textres/clsDescServer.h"

class Languages : public Surroundings {
protected:
    Languages() { KeshVFS_ClearFilters(); }
    ~Languages() override {
        server.Unload();
        KeshVFS_CreateVFS("");
    }

    void view(const std::vector<const char*>& files) {
        for (const char* file : files)
            write((std::string("data/t/") + file).c_str(), "<texts/>");
        ASSERT_NE(KeshVFS_CreateVFS(program("data")), 0);
    }
    [[nodiscard]] std::vector<std::string> found(std::int32_t lang, bool newerNames) {
        std::vector<std::string> names;
        for (const std::string& place : server.FindFiles(lang, newerNames))
            names.push_back(BaseName(place, false));
        return names;
    }

    [[nodiscard]] std::string shown(const char* path) const {
        return QDir::toNativeSeparators(native(path)).toStdString();
    }

    clsDescServer server;
};

using Names = std::vector<std::string>;

TEST_F(Languages, NewerNamesAreFoundAndSorted) {
    view({"0002-L044.pck", "0001-L044.xml", "0001-L049.xml", "a-L044.xml", "B-L044.xml",
          "0001-L007.xml", "x-L044.d/inner.xml", "440001.pck"});
    EXPECT_EQ(found(44, true),
              (Names{"0001-L044.xml", "0002-L044.pck", "B-L044.xml", "a-L044.xml"}));
    EXPECT_EQ(found(7, true), (Names{"0001-L007.xml"}));
    EXPECT_EQ(server.GetLastError(), "");
}

TEST_F(Languages, OlderNamesAreNumbers) {
    view({"440002.xml", "440001.pck", "44readme.txt", "44.xml", "490001.pck", "70001.xml"});
    EXPECT_EQ(found(44, false), (Names{"44.xml", "440001.pck", "440002.xml"}));
    EXPECT_EQ(found(7, false), (Names{"70001.xml"}));
}

TEST_F(Languages, SortIsByNameNotByPlaceOrExtension) {
    const std::string catalog = program("data/01.cat");
    LornFD_CloseCatalog(LornFD_OpenCatalog(catalog, LORNFD_CREATE));
    const std::int32_t entry =
        LornFD_OpenFile(catalog + "::t\\b-L044.xml", LORNFD_WRITE, LORNFD_CREATE, LORNFD_PLAIN);
    LornFD_WriteFile(entry, "<texts/>", 8);
    ASSERT_NE(LornFD_CloseFile(entry), 0) << LornFDErrorText();
    view({"a-L044.x-L044.xml", "a-L044.xml", "c-L044.xml"});
    EXPECT_EQ(found(44, true),
              (Names{"a-L044.xml", "a-L044.x-L044.xml", "b-L044.xml", "c-L044.xml"}));
    EXPECT_TRUE(server.LoadResources(44)) << server.GetLastError();
}

TEST_F(Languages, MissingLanguageIsNamed) {
    view({"0001-L049.xml"});
    EXPECT_FALSE(server.LoadResources(44));
    EXPECT_EQ(server.GetLastError(), "No XML/PCK resource files with LangID=44 found.");
    EXPECT_TRUE(server.LoadResources(49));
    EXPECT_EQ(server.GetLastError(), "");
}

TEST_F(Languages, EveryFileThatDoesNotOpenIsNamed) {
    view({"0001-L044.xml", "0002-L044.xml", "0003-L044.xml"});
    QFile::remove(native("data/t/0001-L044.xml"));
    QFile::remove(native("data/t/0003-L044.xml"));
    EXPECT_FALSE(server.LoadResources(44));
    const std::string error = server.GetLastError();
    const std::string first = "Error opening file \"" + shown("data/t/0001-L044.xml") + "\":\r\n";
    EXPECT_TRUE(error.starts_with(first)) << error;
    EXPECT_NE(error.find("\r\nError opening file \"" + shown("data/t/0003-L044.xml")),
              std::string::npos)
        << error;
    EXPECT_EQ(error.find("0002"), std::string::npos) << error;
}

constexpr const char* firstFile =
    "<texts language='44'><page id='17'><string id='1'>Ferry</string><string id='2'>{:1} [b]x[/b]"
    "</string><string id='3'/></page><page id='18'><string id='1'>old</string></page></texts>";
constexpr const char* secondFile =
    "<texts language='44'><page id='18'><string id='1'>new {17:1}</string></page></texts>";

TEST_F(Languages, TextsByPageAndId) {
    view({"0001-L044.xml", "0002-L044.xml"});
    write("data/t/0001-L044.xml", firstFile);
    write("data/t/0002-L044.xml", secondFile);
    for (int round = 0; round < 2; ++round) { // the second load replaces the first
        ASSERT_TRUE(server.LoadResources(44)) << server.GetLastError();
        EXPECT_EQ(EnumChildren(KESH_STORE).size(), 2U);
        EXPECT_EQ(EnumChildren(EnumChildren(KESH_STORE).at(0)).size(), 3U);
        EXPECT_EQ(Kesh_TREGetLangID(KESH_STORE), 44);
        EXPECT_EQ(TextOfString(server.GetObjectString(2)), "Ferry [b]x[/b]");
        EXPECT_EQ(server.GetStringDirect(18, 1), "new Ferry");
        EXPECT_EQ(server.GetStringDirect(17, 3, "none"), "") << "an empty text is one";
        EXPECT_EQ(server.GetStringDirect(17, 4), "[string 17:4]");
        EXPECT_EQ(server.GetStringDirect(17, -5), "[string 17:-5]");
        EXPECT_EQ(server.GetStringDirect(17, 4, "none"), "none");
        EXPECT_EQ(server.GetStringDirect(17, 4, ""), "");
    }
    EXPECT_EQ(TextOfString(0), "");
    EXPECT_FALSE(server.LoadResources(7));
    EXPECT_EQ(server.GetString(17, 1), 0) << "the store is empty";
    EXPECT_EQ(server.CurrentLanguage(), 44) << "no file of the other was found";
    EXPECT_EQ(Kesh_TREGetLangID(KESH_STORE), 7);
}

TEST_F(Languages, ABadFileKeepsNoOtherOut) {
    view({"0001-L044.xml", "0002-L044.xml", "0003-L044.xml", "0004-L044.xml"});
    write("data/t/0001-L044.xml", "<texts>\n<page id='17'><string id='8'>half</string>");
    QFile::remove(native("data/t/0002-L044.xml"));
    QDir().mkpath(native("data/t/0002-L044.xml"));
    write("data/t/0003-L044.xml", firstFile);
    write("data/t/0004-L044.xml", "<universe/>");
    EXPECT_FALSE(server.LoadResources(44));
    EXPECT_EQ(server.GetStringDirect(17, 1), "Ferry");
    EXPECT_EQ(server.GetString(17, 8), 0);
    const std::string error = server.GetLastError();
    const std::string first = shown("data/t/0001-L044.xml");
    EXPECT_TRUE(error.starts_with(first + ":\r\n\"" + first + "\" is no language file: ")) << error;
    EXPECT_NE(
        error.find("line 2.\r\nError opening file \"" + shown("data/t/0002-L044.xml") + "\":\r\n"),
        std::string::npos)
        << error;
    EXPECT_NE(error.find("\r\n" + shown("data/t/0004-L044.xml") + ":\r\n"), std::string::npos)
        << error;
    EXPECT_EQ(error.find("0003"), std::string::npos) << error;
}

TEST_F(Languages, OneFileOpensApartFromTheStore) {
    view({"0001-L044.xml"});
    write("data/t/0001-L044.xml", firstFile);
    write("data/t/bad.xml", "<texts>");
    ASSERT_TRUE(server.LoadResources(44));
    const std::int32_t file = server.OpenFile(program("data/t/0001-L044.xml"));
    ASSERT_NE(file, 0) << server.GetLastError();
    const std::int32_t page = EnumChildren(file).at(0);
    EXPECT_EQ(Kesh_TRESetStringInfo(page, EnumChildren(page).at(0), 1, "changed"), 1);
    EXPECT_EQ(server.GetStringDirect(17, 1), "Ferry");
    EXPECT_FALSE(clsDescServer::SaveFile(file));
    EXPECT_EQ(Kesh_DeleteHandle(0, file), 1);
    EXPECT_EQ(server.OpenFile(program("data/t/bad.xml")), 0);
    EXPECT_TRUE(server.GetLastError().starts_with("Error loading file \"" +
                                                  shown("data/t/bad.xml") + "\":\r\n\""))
        << server.GetLastError();
    EXPECT_EQ(server.OpenFile(program("data/t/none.xml")), 0);
    EXPECT_TRUE(server.GetLastError().starts_with("Error opening file \"" +
                                                  shown("data/t/none.xml") + "\":\r\n"))
        << server.GetLastError();
}
