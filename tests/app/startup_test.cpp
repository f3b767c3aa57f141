// Start-up and loading: the phases, and what is said where one fails.
#include "app/Main.h"
#include "app/SecondInstance.h"
#include "app/apptest.h"
#include "core/KeshError.h"
#include "ui/frmWait.h"

namespace {

class StartUpTest : public AppTest {
protected:
    ~StartUpTest() override { CloseWait(); }
};

[[noreturn]] void fail() {
    throw std::runtime_error("disk gone");
}

struct PhaseCase {
    std::vector<Phase> Phases;
    const char* Said; ///< empty if all goes well
};

TEST_F(StartUpTest, AFailureNamesItsPhase) {
    const auto nothing = [] {};
    const auto inner = [] {
        const Phase phases[] = {{"Archive.Clear", fail}};
        RunPhases(phases, "LoadKeshData");
    };
    const PhaseCase cases[] = {
        {{{"a", nothing}, {"b", nothing}}, ""},
        {{{"", fail}, {"b", nothing}}, "Error starting program: (): disk gone"},
        {{{"a", nothing}, {"KeshVFS_AddVFSFilter", fail}},
         "Error starting program: (KeshVFS_AddVFSFilter): disk gone"},
        {{{"LoadKeshData", inner}},
         "Error starting program: (LoadKeshData): (Archive.Clear): disk gone"},
    };
    for (const PhaseCase& c : cases) {
        SCOPED_TRACE(c.Said);
        if (*c.Said)
            script.Box(QString::fromLatin1(c.Said));
        EXPECT_EQ(StartUp(c.Phases), *c.Said == '\0');
        if (*c.Said) {
            EXPECT_EQ(script.Boxes.back().Text, QString::fromLatin1(c.Said));
            EXPECT_EQ(script.Boxes.back().Icon, BoxIcon::Critical);
            EXPECT_EQ(script.Boxes.back().Title, QStringLiteral("Kesh Editor"));
        }
    }
}

TEST_F(StartUpTest, RunsInItsOrderUntilTheLauncherShows) {
    const char* const names[] = {"",
                                 "mdlKeshConst.InitArrays",
                                 "Settings.InitEnviroment",
                                 "KeshVFS_AddVFSFilter",
                                 "LoadKeshData",
                                 "frmMain.MyShow"};
    Program started;
    const auto phases = StartUpPhases(started, program("TWareT.txt"));
    ASSERT_EQ(phases.size(), std::size(names));
    for (std::size_t i = 0; i < phases.size(); ++i)
        EXPECT_EQ(phases[i].Name, names[i]);
    EXPECT_TRUE(StartUp(phases));
    ASSERT_TRUE(started.Launcher);
    EXPECT_TRUE(started.Launcher->isVisible());
    EXPECT_TRUE(started.Server->IsListening());
    EXPECT_EQ(editors().size(), 1);
    for (const QWidget* top : QApplication::topLevelWidgets())
        EXPECT_FALSE(top->isVisible() && top->objectName() == QStringLiteral("frmWait"));
    KeshVFS_ClearFilters();
}

TEST_F(StartUpTest, AMissingModIsAWarning) {
    write("config/game.ini", "[General]\nModName=longhaul\n");
    script.Box(
        QStringLiteral("Warning:\nError loading active mod \"%1\".\nThis is not fatal. Maybe your "
                       "\"Directory with data\" is different from real Kesh path?")
            .arg(native("data/mods/longhaul.cat")));
    LoadKeshData();
    EXPECT_EQ(script.Boxes.back().Icon, BoxIcon::Exclamation);
}

TEST_F(StartUpTest, MissingTextResourcesAreSaidOnlyWithADataRoot) {
    Settings->SetLoadDescriptions(true);
    script.Box(QStringLiteral("Error loading resources: \n\n"));
    LoadKeshData();
    EXPECT_TRUE(script.LastText().endsWith(
        QStringLiteral("\n\nObject descriptions and names may be unavailable.")));
    Settings->SetDataRoot({});
    LoadKeshData();
}

} // namespace
