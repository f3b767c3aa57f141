#include "core/SettingsFile.h"
#include "core/clsSettings.h"
#include "core/mdlCommon.h"
#include "core/surroundings.h"
#include "lornfd/faults.h"

#include <QCoreApplication>

#include <cerrno>
#include <csignal>
#include <limits>
#include <sys/resource.h>
#include <sys/stat.h>

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
    settings.SetDataRoot("\\a");
    settings.SetKeshEXEPath("\\b");
    settings.SetCustomProgram("\\c");
    settings.SetLastOpenedXMLFile("\\d");
    settings.SetExt3DViewerPath("\\e");
    settings.SetExt3DViewerCmdLine("f");
    settings.SetLoadDescriptions(false);
    settings.SetUseDoubleBuffer(true);
    settings.SetUseDirectDraw(false);
    settings.SetExt3DViewerSupportsLornFD(false);
    settings.SetAutoArrangeIcons(false);
    EXPECT_EQ(read("config/user.ini"),
              "[General]\nDataPath=\\a\nEditorEXEPath=\\c\nKeshEXEPath=\\b\nLoadDesc=0\n"
              "UseDirectDraw=0\nUseDoubleBuffer=1\n\n"
              "[3DViewer]\nCmdLine=f\nPath=\\e\nSupportsLornFD=0\n\n"
              "[TRE]\nLastOpenXMLFile=\\d\n\n[main]\nAutoArrangeIcons=0\n");
    EXPECT_EQ(settings.CustomProgram() + settings.Ext3DViewerPath(), "\\c\\e");
    EXPECT_TRUE(settings.UseDoubleBuffer());
    EXPECT_FALSE(settings.LoadDescriptions() || settings.UseDirectDraw() ||
                 settings.Ext3DViewerSupportsLornFD() || settings.AutoArrangeIcons());
    settings.SetCustomProgram("");
    EXPECT_EQ(settings.ReadRegValue("", "EditorEXEPath", "gone"), "gone");
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
    EXPECT_EQ(other.ReadRegValue("TE", "width", -1), 1024);

    QFile::remove(native("config/user.ini"));
    EXPECT_EQ(settings.DescLangID(), 44);
    EXPECT_EQ(settings.ReadRegValue("TE", "width", -1), -1);
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
    QDir().rename(native("config"), native("config2"));
    qputenv("KESH_CONFIG_DIR", native("config2").toUtf8());
    const clsSettings fresh;
    for (const std::string& key : keys)
        for (std::size_t i = 0; i < texts.size(); ++i)
            EXPECT_EQ(fresh.ReadRegValue(key, "name/" + texts[i] + std::to_string(i), "none"),
                      texts[i])
                << key << " " << i;
}

TEST(SettingsFiles, EveryNameAndKeyIsItsOwn) {
    const Texts names = {"",        "General",  "%47eneral", " General", "General ",     "general",
                         "DEFAULT", " x",       "x ",        "x",        "x%20",         "[x]",
                         ";x",      "#x",       "a=b",       "@x",       "\"x\"",        "x\n",
                         "\xF6",    "\xC3\xB6", "a/b",       "a / b",    "\xEF\xBB\xBFx"};
    Texts keys = names;
    for (const std::string& name : names)
        keys.push_back("main\\" + name);
    SettingsMap map;
    for (const std::string& key : keys)
        for (const std::string& name : names)
            map[key][name] = key + "|" + name;
    EXPECT_EQ(ReadSettings(WriteSettings(map)), map);
}

TEST_F(SettingsStores, LongNamesAreRefused) {
    const std::string longest(255, '%');
    EXPECT_TRUE(settings.SaveRegValue(longest, longest, "x", false));
    EXPECT_EQ(settings.ReadRegValue(longest, longest), "x");
    EXPECT_FALSE(settings.SaveRegValue(longest + '%', "a", "x", false));
    EXPECT_FALSE(settings.SaveRegValue("a", longest + '%', "x", false));
}

TEST_F(SettingsStores, SeveralValuesAreWrittenAtOnce) {
    settings.SaveRegValue("a", "gone", 1);
    int replacements = 0;
    lornfd::setFaultHook([&](lornfd::DiskOperation operation, std::size_t*) {
        replacements += operation == lornfd::DiskOperation::Rename;
        return 0;
    });
    EXPECT_TRUE(settings.SaveRegValues({{"", "x", "1"}, {"a", "gone", {}}, {"a\\b", "y", "2"}}));
    EXPECT_TRUE(settings.SaveRegValues({{"", "x", "1"}, {"a", "gone", {}}}));
    lornfd::setFaultHook({});
    EXPECT_EQ(replacements, 1) << "once, and not at all where nothing changes";
    EXPECT_EQ(read("config/user.ini"), "[General]\nx=1\n\n[a\\b]\ny=2\n");
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
    EXPECT_EQ(settings.ReadRegValue("GE", "left", -1), -5);

    settings.SetDataRoot("\\plain \xE4 path");
    EXPECT_NE(read("config/user.ini").find("DataPath=\\plain \xE4 path\n"), std::string::npos)
        << "a path does not stand there as it is";
}

TEST_F(SettingsStores, ByteOrderMarkHidesNoSection) {
    write("config/user.ini", "\xEF\xBB\xBF[TE]\nleft=3\n");
    EXPECT_EQ(settings.ReadRegValue("TE", "left", -1), 3);
}

TEST_F(SettingsStores, SubKeysAreListed) {
    for (const char* icon : {"te", "vfs://", "a\"b"})
        settings.SaveRegValue(std::string("main\\icons\\") + icon, "caption", icon, true);
    settings.SaveRegValue("main", "left", 5);
    EXPECT_EQ(settings.SubKeys("main\\icons"), (Texts{"a\"b", "te", "vfs://"}));
    EXPECT_EQ(settings.SubKeys(""), (Texts{"main"}));
    EXPECT_EQ(settings.SubKeys("main"), (Texts{"icons"}));
    EXPECT_TRUE(settings.SubKeys("main\\icons\\te").empty());
}

TEST_F(SettingsStores, NumbersThatAreNoneGiveTheDefault) {
    for (const char* text : {"", "abc", "44.5", "99999999999", "0x10", "4 4"}) {
        settings.SaveRegValue("", "DescLanguage", text, false);
        EXPECT_EQ(settings.DescLangID(), 44) << text;
        EXPECT_EQ(settings.ReadRegValue("", "DescLanguage", -1), -1) << text;
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
        EXPECT_EQ(settings.ReadRegValue("TE", "width", -1), -1);

        write("config/user.ini", valid + text);
        EXPECT_EQ(settings.DescLangID(), 49);
        EXPECT_TRUE(settings.SaveRegValue("GE", "left", 3));
        const clsSettings other;
        EXPECT_EQ(other.DescLangID(), 49);
        EXPECT_EQ(other.ReadRegValue("TE", "width", -1), 800);
        EXPECT_EQ(other.ReadRegValue("GE", "left", -1), 3);
    }
}

TEST_F(SettingsStores, FileThatCannotBeReadGivesDefaults) {
    const QString log = QString::fromStdString(settings.TraceFilePath()).replace(u'\\', u'/');
    QFile::remove(log);
    QDir().mkdir(native("config/user.ini"));
    EXPECT_EQ(settings.DescLangID(), 44);
    EXPECT_FALSE(settings.SaveRegValue("TE", "left", 3));
    EXPECT_EQ(settings.ReadRegValue("TE", "left", -1), -1);
    QDir().rmdir(native("config/user.ini"));

    ASSERT_EQ(mkfifo(native("config/user.ini").toUtf8(), 0600), 0);
    EXPECT_EQ(settings.DescLangID(), 44) << "it waited for somebody to write";
    EXPECT_FALSE(settings.SaveRegValue("TE", "left", 3));
    QFile::remove(native("config/user.ini"));

    QFile huge(native("config/user.ini"));
    ASSERT_TRUE(huge.open(QIODevice::WriteOnly) && huge.resize(qint64{1} << 32));
    EXPECT_EQ(settings.DescLangID(), 44);
    EXPECT_FALSE(settings.SaveRegValue("TE", "left", 3));
    EXPECT_EQ(huge.size(), qint64{1} << 32);
    EXPECT_EQ(QString::fromStdString(content(log)).count(u'\n'), 1) << "told once";
    QFile::remove(log);
}

TEST(SettingsFiles, HalfReadOnesAreToldFromEmptyOnes) {
    EXPECT_TRUE(LoadSettings("/nowhere/user.ini"));
    EXPECT_FALSE(LoadSettings("/"));
#ifdef __linux__
    EXPECT_FALSE(LoadSettings("/proc/self/mem")) << "its first bytes cannot be read";
    EXPECT_FALSE(LoadSettings("/proc/self/status")) << "longer than it says";
#endif
}

TEST(SettingsFiles, LongNamesDoNotMultiply) {
    const std::string longName(500'000, 'n');
    std::string text = "[" + longName + "]\n";
    for (int i = 0; i < 50'000; ++i)
        text += "n" + std::to_string(i) + "=\n";
    EXPECT_TRUE(ReadSettings(text).empty());
    EXPECT_EQ(ReadSettings(text + "[TE]\n" + longName + "=1\nleft=3\n"),
              (SettingsMap{{"TE", {{"left", "3"}}}}));
}

/// No file takes a byte while it lives.
class FullDisk {
public:
    FullDisk() {
        getrlimit(RLIMIT_FSIZE, &m_limit);
        const rlimit none{0, m_limit.rlim_max};
        setrlimit(RLIMIT_FSIZE, &none);
    }
    ~FullDisk() {
        setrlimit(RLIMIT_FSIZE, &m_limit);
        std::signal(SIGXFSZ, m_handler);
    }

private:
    rlimit m_limit{};
    void (*m_handler)(int) = std::signal(SIGXFSZ, SIG_IGN);
};

TEST_F(SettingsStores, FailedSaveLeavesTheFormerValue) {
    settings.SetDescLangID(49);
    const std::string before = read("config/user.ini");
    {
        const FullDisk full;
        EXPECT_FALSE(settings.SaveRegValue("", "DescLanguage", 7));
        EXPECT_FALSE(settings.SaveRegValue("TE", "left", 3));
        EXPECT_EQ(settings.DescLangID(), 49);
        EXPECT_EQ(settings.ReadRegValue("TE", "left", -1), -1);
    }
    EXPECT_EQ(read("config/user.ini"), before);
    EXPECT_EQ(QDir(native("config")).entryList(QDir::Files | QDir::Hidden).size(), 1)
        << "something was left behind";

    // Nothing of the failed saves is left that could go over another program's edit.
    write("config/user.ini", "[General]\nDescLanguage=12\n[TE]\nleft=5\n");
    EXPECT_TRUE(settings.SaveRegValue("TE", "top", 3));
    EXPECT_EQ(settings.DescLangID(), 12);
    EXPECT_EQ(settings.ReadRegValue("TE", "left", -1), 5);
}

TEST_F(SettingsStores, SaveFailsWholeAtEveryStep) {
    const std::string before = "[General]\nDescLanguage=49\n";
    int failures = 0;
    for (int step = 0; step == failures; ++step) {
        write("config/user.ini", before.c_str());
        int left = step;
        bool replaced = false;
        lornfd::setFaultHook([&](lornfd::DiskOperation operation, std::size_t*) {
            if (left-- == 0)
                return ENOSPC;
            replaced = replaced || operation == lornfd::DiskOperation::Rename;
            return 0;
        });
        failures += !settings.SaveRegValue("", "DescLanguage", 7);
        lornfd::setFaultHook({});
        EXPECT_EQ(settings.DescLangID(), replaced ? 7 : 49) << step;
        EXPECT_EQ(QDir(native("config")).entryList(QDir::Files | QDir::Hidden).size(), 1) << step;
    }
    EXPECT_GE(failures, 4) << "open, write, flush, rename";
}

TEST_F(SettingsStores, DirectoryIsMadeWhenSomethingIsSaved) {
    qputenv("KESH_CONFIG_DIR", native("none/yet").toUtf8());
    clsSettings fresh;
    EXPECT_EQ(fresh.DescLangID(), 44);
    EXPECT_FALSE(QFile::exists(native("none")));
    fresh.SetDescLangID(49);
    EXPECT_EQ(fresh.DescLangID(), 49);
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

    // A list of any length is read in one pass.
    std::vector<SettingsStore::Entry> entries;
    for (int i = 0; i < 10'000; ++i)
        entries.push_back({"mru\\TXTEditor", std::to_string(i), "\\file"});
    ASSERT_TRUE(settings.SaveRegValues(entries));
    EXPECT_EQ(settings.LoadRecentTFiles(), Texts(10'000, "\\file"));

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
