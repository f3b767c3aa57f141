#include "core/clsSettings.h"
#include "core/mdlCommon.h"
#include "core/surroundings.h"

#include <QCoreApplication>

#include <algorithm>
#include <csignal>
#include <limits>
#include <sys/resource.h>

class SettingsStores : public Surroundings {
protected:
    clsSettings settings;
};

using Texts = std::vector<std::string>;

TEST_F(SettingsStores, EmptyOneGivesDefaults) {
    EXPECT_EQ(settings.DataRoot(), "");
    EXPECT_EQ(settings.KeshEXEPath(), "");
    EXPECT_TRUE(settings.LoadDescriptions());
    EXPECT_EQ(settings.DescLangID(), 44);
    EXPECT_EQ(settings.Ext3DViewerCmdLine(), "\"%1\" \"%2\"");
    EXPECT_TRUE(settings.Ext3DViewerSupportsLornFD());
    EXPECT_TRUE(settings.AutoArrangeIcons());
    EXPECT_EQ(settings.ActiveModFullName(), "");
    EXPECT_EQ(settings.KeshMMFullPath(), "");
    EXPECT_TRUE(settings.LoadRecentTFiles().empty());
    EXPECT_TRUE(settings.SubKeys("main\\icons").empty());
    EXPECT_FALSE(QFile::exists(native("config/user.ini"))) << "reading wrote";
}

TEST_F(SettingsStores, EachPropertyHasItsOwnPlace) {
    struct Text {
        std::string (clsSettings::*get)() const;
        void (clsSettings::*set)(const std::string&);
        const char* key;
        const char* name;
    };
    const Text texts[] = {
        {&clsSettings::DataRoot, &clsSettings::SetDataRoot, "", "DataPath"},
        {&clsSettings::KeshEXEPath, &clsSettings::SetKeshEXEPath, "", "KeshEXEPath"},
        {&clsSettings::CustomProgram, &clsSettings::SetCustomProgram, "", "EditorEXEPath"},
        {&clsSettings::LastOpenedXMLFile, &clsSettings::SetLastOpenedXMLFile, "TRE",
         "LastOpenXMLFile"},
        {&clsSettings::Ext3DViewerPath, &clsSettings::SetExt3DViewerPath, "3DViewer", "Path"},
        {&clsSettings::Ext3DViewerCmdLine, &clsSettings::SetExt3DViewerCmdLine, "3DViewer",
         "CmdLine"},
    };
    for (const Text& row : texts)
        (settings.*row.set)(std::string("\\of\\") + row.name);
    for (const Text& row : texts) {
        EXPECT_EQ((settings.*row.get)(), std::string("\\of\\") + row.name);
        EXPECT_EQ(settings.ReadRegString(row.key, row.name), std::string("\\of\\") + row.name);
        (settings.*row.set)("");
        EXPECT_FALSE(settings.ReadRegString(row.key, row.name)) << row.name << " was not deleted";
    }

    struct Flag {
        bool (clsSettings::*get)() const;
        void (clsSettings::*set)(bool);
        const char* key;
        const char* name;
    };
    const Flag flags[] = {
        {&clsSettings::LoadDescriptions, &clsSettings::SetLoadDescriptions, "", "LoadDesc"},
        {&clsSettings::UseDoubleBuffer, &clsSettings::SetUseDoubleBuffer, "", "UseDoubleBuffer"},
        {&clsSettings::UseDirectDraw, &clsSettings::SetUseDirectDraw, "", "UseDirectDraw"},
        {&clsSettings::Ext3DViewerSupportsLornFD, &clsSettings::SetExt3DViewerSupportsLornFD,
         "3DViewer", "SupportsLornFD"},
        {&clsSettings::AutoArrangeIcons, &clsSettings::SetAutoArrangeIcons, "main",
         "AutoArrangeIcons"},
    };
    for (const Flag& row : flags) {
        (settings.*row.set)(false);
        EXPECT_FALSE((settings.*row.get)());
        EXPECT_EQ(settings.ReadRegString(row.key, row.name), "0");
        (settings.*row.set)(true);
        EXPECT_EQ(settings.ReadRegLong(row.key, row.name), 1);
    }
}

TEST_F(SettingsStores, PathsComeInTheProgramsForm) {
    write("config/user.ini",
          "[General]\nDataPath=/games/kesh/\n[TRE]\nLastOpenXMLFile=vfs://t/1.xml\n");
    write("config/game.ini", "[General]\nModName=my mod\n");
    write("config/outfitter.ini", "[General]\npath=/opt/outfitter\n");
    EXPECT_EQ(settings.DataRoot(), "\\games\\kesh\\");
    EXPECT_EQ(settings.KeshEXEPath(), "\\games\\kesh\\kesh.exe");
    EXPECT_EQ(settings.LastOpenedXMLFile(), "vfs://t\\1.xml");
    EXPECT_EQ(settings.ActiveModName(), "my mod.cat");
    EXPECT_EQ(settings.ActiveModFullName(), "\\games\\kesh\\mods\\my mod.cat");
    EXPECT_EQ(settings.KeshMMFullPath(), "\\opt\\outfitter\\KeshOutfitter.exe");
    write("config/outfitter.ini", "[General]\npath=/opt/outfitter\nexename=tool\n");
    EXPECT_EQ(settings.KeshMMFullPath(), "\\opt\\outfitter\\tool");

    settings.SetKeshEXEPath("\\elsewhere\\k");
    EXPECT_EQ(settings.KeshEXEPath(), "\\elsewhere\\k");
    settings.SetKeshEXEPath("");
    EXPECT_EQ(settings.KeshEXEPath(), "\\games\\kesh\\kesh.exe");
}

TEST_F(SettingsStores, WritesOfOthersAreSeenAndKept) {
    clsSettings other;
    EXPECT_EQ(settings.DescLangID(), 44);
    other.SetDescLangID(49);
    EXPECT_EQ(settings.DescLangID(), 49);
    settings.SetDataRoot("\\a");
    EXPECT_EQ(other.DataRoot(), "\\a");

    // Another process replaces the file.
    write("config/user.ini", "[General]\nDescLanguage=7\n[TE]\nwidth=1024\n");
    EXPECT_EQ(settings.DescLangID(), 7);
    EXPECT_EQ(settings.DataRoot(), "");
    settings.SetDataRoot("\\b");
    EXPECT_NE(read("config/user.ini").find("width=1024"), std::string::npos);
    EXPECT_NE(read("config/user.ini").find("DescLanguage=7"), std::string::npos);
    EXPECT_EQ(other.ReadRegLong("TE", "width"), 1024);

    QFile::remove(native("config/user.ini"));
    EXPECT_EQ(settings.DescLangID(), 44);
    EXPECT_FALSE(settings.ReadRegLong("TE", "width"));
}

TEST_F(SettingsStores, EveryTextReadsBackTheSame) {
    const Texts texts = {"",
                         " blanks ",
                         "C:\\a\\b",
                         "a,b, c",
                         "\"%1\" \"%2\"",
                         "x;y=z#",
                         "@Invalid()",
                         "@ByteArray(x)",
                         "[x]",
                         "line\r\nline\ttab",
                         "J\xC3\xB6rg",
                         "J\xF6rg \xFF\\",
                         "%41%",
                         "\xEF\xBB\xBFmark",
                         std::string("nul\0nul", 7)};
    const Texts keys = {"", "TE", "main\\icons", "3D/Viewer", "\xC3\xB6 %41"};
    for (const std::string& key : keys) {
        for (std::size_t i = 0; i < texts.size(); ++i)
            ASSERT_TRUE(settings.SaveRegValue(key, "name/" + texts[i] + std::to_string(i), texts[i],
                                              false));
    }
    // Bytes of the file, not what is still in memory: the store sees a file that it has not read
    // yet.
    QDir().rename(native("config"), native("config2"));
    qputenv("KESH_CONFIG_DIR", native("config2").toUtf8());
    const clsSettings fresh;
    for (const std::string& key : keys)
        for (std::size_t i = 0; i < texts.size(); ++i)
            EXPECT_EQ(fresh.ReadRegString(key, "name/" + texts[i] + std::to_string(i)), texts[i])
                << key << " " << i;
}

TEST_F(SettingsStores, FilesMayBeWrittenByHand) {
    write("config/user.ini",
          "\xEF\xBB\xBF[General]\r\n; DataPath=/remark\r\n  DataPath = \"/my games\" \r\n"
          "KeshEXEPath=C:\\new\\x,y;z.exe\r\n[3DViewer]\r\n"
          "CmdLine=\"%1\" -a=b \"%2\"\r\nPath=@%2Fview%0A\r\n[GE]\r\nleft= -5");
    EXPECT_EQ(settings.DataRoot(), "\\my games");
    EXPECT_EQ(settings.KeshEXEPath(), "C:\\new\\x,y;z.exe");
    EXPECT_EQ(settings.Ext3DViewerCmdLine(), "\"%1\" -a=b \"%2\"");
    EXPECT_EQ(settings.Ext3DViewerPath(), "\\view\n");
    EXPECT_EQ(settings.ReadRegLong("GE", "left"), -5);

    settings.SetDataRoot("\\plain \xE4 path");
    EXPECT_NE(read("config/user.ini").find("DataPath=\\plain \xE4 path\n"), std::string::npos)
        << "a path does not stand there as it is";
}

TEST_F(SettingsStores, SubKeysAreListed) {
    for (const char* icon : {"te", "vfs://", "a\"b"})
        settings.SaveRegValue(std::string("main\\icons\\") + icon, "caption", icon, true);
    settings.SaveRegValue("main", "left", 5);
    Texts icons = settings.SubKeys("main\\icons");
    std::sort(icons.begin(), icons.end());
    EXPECT_EQ(icons, (Texts{"a\"b", "te", "vfs://"}));
    EXPECT_EQ(settings.SubKeys("main"), (Texts{"icons"}));
    EXPECT_TRUE(settings.SubKeys("main\\icons\\te").empty());
}

TEST_F(SettingsStores, NumbersThatAreNoneGiveTheDefault) {
    for (const char* text : {"", "abc", "44.5", "99999999999", "0x10", "4 4"}) {
        settings.SaveRegValue("", "DescLanguage", text, false);
        EXPECT_EQ(settings.DescLangID(), 44) << text;
        EXPECT_FALSE(settings.ReadRegLong("", "DescLanguage")) << text;
    }
    settings.SetDescLangID(std::numeric_limits<std::int32_t>::min());
    EXPECT_EQ(settings.DescLangID(), std::numeric_limits<std::int32_t>::min());
}

TEST_F(SettingsStores, RubbishGivesDefaultsAndSavingKeepsWhatIsValid) {
    const QByteArray valid = "[General]\nDescLanguage=49\n[TE]\nwidth=800\n";
    QByteArray bytes;
    for (int i = 0; i < 256; ++i)
        bytes += static_cast<char>(i);
    const QByteArray rubbish[] = {
        "no section\n=\n==\n[\n]\n[unclosed\n",
        bytes,
        QByteArray(100000, '['),
        QByteArray(100000, '\0'),
        "x=@Variant(\\0\\0\\0\\t\\x7f\\xff\\xff\\xff)\n",
        "y=@Point(1)\nz=\\x\n%zz=%\n",
        "\"never closed\n",
    };
    for (const QByteArray& text : rubbish) {
        SCOPED_TRACE(text.left(30).toStdString());
        write("config/user.ini", text);
        EXPECT_EQ(settings.DescLangID(), 44);
        EXPECT_EQ(settings.DataRoot(), "");
        EXPECT_FALSE(settings.ReadRegLong("TE", "width"));

        write("config/user.ini", valid + text);
        EXPECT_EQ(settings.DescLangID(), 49);
        EXPECT_TRUE(settings.SaveRegValue("GE", "left", 3));
        const clsSettings other;
        EXPECT_EQ(other.DescLangID(), 49);
        EXPECT_EQ(other.ReadRegLong("TE", "width"), 800);
        EXPECT_EQ(other.ReadRegLong("GE", "left"), 3);
    }
}

TEST_F(SettingsStores, FileThatCannotBeReadGivesDefaults) {
    QDir().mkdir(native("config/user.ini"));
    EXPECT_EQ(settings.DescLangID(), 44);
    EXPECT_FALSE(settings.SaveRegValue("TE", "left", 3));
    EXPECT_FALSE(settings.ReadRegLong("TE", "left"));
    QDir().rmdir(native("config/user.ini"));

    QFile huge(native("config/user.ini"));
    ASSERT_TRUE(huge.open(QIODevice::WriteOnly) && huge.resize(qint64{1} << 32));
    EXPECT_EQ(settings.DescLangID(), 44);
    EXPECT_FALSE(settings.SaveRegValue("TE", "left", 3));
    EXPECT_EQ(huge.size(), qint64{1} << 32);
}

TEST_F(SettingsStores, FailedSaveLeavesTheFormerValue) {
    settings.SetDescLangID(49);
    const std::string before = read("config/user.ini");
    rlimit limit{};
    getrlimit(RLIMIT_FSIZE, &limit);
    const rlimit none{0, limit.rlim_max};
    const auto handler = std::signal(SIGXFSZ, SIG_IGN);
    setrlimit(RLIMIT_FSIZE, &none);
    const bool changed = settings.SaveRegValue("", "DescLanguage", 7);
    const bool added = settings.SaveRegValue("TE", "left", 3);
    const auto language = settings.DescLangID();
    const auto left = settings.ReadRegLong("TE", "left");
    setrlimit(RLIMIT_FSIZE, &limit);
    std::signal(SIGXFSZ, handler);

    EXPECT_FALSE(changed);
    EXPECT_FALSE(added);
    EXPECT_EQ(language, 49);
    EXPECT_FALSE(left);
    EXPECT_EQ(read("config/user.ini"), before);
    EXPECT_TRUE(settings.SaveRegValue("TE", "left", 3));
    EXPECT_EQ(QDir(native("config")).entryList(QDir::Files | QDir::Hidden).size(), 1)
        << "something was left behind";
}

TEST_F(SettingsStores, RecentListsKeepTheirOldTail) {
    Texts list;
    for (int i = 0; i < 12; ++i)
        list.push_back("\\file " + std::to_string(i));
    settings.SaveRecentTFiles(list);
    EXPECT_EQ(settings.LoadRecentTFiles(), list) << "not in numeric order";
    EXPECT_TRUE(settings.LoadRecentGalaxyMaps().empty());

    settings.SaveRecentTFiles({"vfs://new", "\\b"});
    list[0] = "vfs://new";
    list[1] = "\\b";
    EXPECT_EQ(settings.LoadRecentTFiles(), list);

    settings.SaveRecentGalaxyMaps({"\\map"});
    for (const char* name : {"12345", "name", "-1", ""})
        settings.SaveRegValue("mru\\GEditor", name, "\\none", false);
    EXPECT_EQ(settings.LoadRecentGalaxyMaps(), (Texts{"\\map"}));
}

TEST_F(SettingsStores, ProgramRegistersItself) {
    EXPECT_TRUE(settings.InitEnviroment());
    const std::string entry = read("config/machine.ini");
    for (const std::string& part :
         {std::string("EXEName=test_core.exe"), "version=" + ProgramVersion(),
          "path=" + QCoreApplication::applicationDirPath().toStdString()})
        EXPECT_NE(entry.find(part), std::string::npos) << entry;
    EXPECT_EQ(ProgramID(), ProgramVersion() + " Kesh Editor");
    EXPECT_FALSE(QFile::exists(native("config/user.ini"))) << "user data was touched";
}
