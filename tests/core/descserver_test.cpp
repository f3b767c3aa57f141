#include "core/mdlComFunctions.h"
#include "core/mdlCommon.h"
#include "core/surroundings.h"
#include "keshvfs/keshvfs.h"
#include "lornfd/lornfd.h"
#include "textres/clsDescServer.h"

class Languages : public Surroundings {
protected:
    Languages() { KeshVFS_ClearFilters(); }
    ~Languages() override { KeshVFS_CreateVFS(""); }

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

TEST_F(Languages, AnUnknownTextFallsBack) {
    EXPECT_EQ(server.GetString(17, 1), 0);
    EXPECT_EQ(server.GetStringDirect(17, 1), "[string 17:1]");
    EXPECT_EQ(server.GetStringDirect(17, -5), "[string 17:-5]");
    EXPECT_EQ(server.GetStringDirect(17, 1, "none"), "none");
    EXPECT_EQ(server.GetStringDirect(17, 1, ""), "");
}
