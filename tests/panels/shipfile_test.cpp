// A TShips file on its way through the window: opened, changed, saved, exported.
#include "panels/shippaneltest.h"

#include <cerrno>

namespace {

TEST_F(ShipPanel, KeepsEveryOtherSpellingOfAFileOfEachVersion) {
    struct Case {
        const char* Version;
        const char* Former;
        const char* Stored; ///< for the class M3
        const char* Shown;  ///< a key without texts as it is
    };
    const Case cases[] = {{"48", "007", "5", "M3"},
                          {"49", "SG_SH_M1", "SG_SH_M3", "SG_SH_M3"},
                          {"50", "SG_SH_M1", "SG_SH_M3", "SG_SH_M3"}};
    for (const Case& c : cases) {
        SCOPED_TRACE(c.Version);
        const auto text = [&](const char* classValue) {
            return file(c.Version, {ship("SHIP_A", {{5, classValue}, {7, "1e3"}, {8, "0.50"}}),
                                    ship("SHIP_B", {{9, "-0"}})});
        };
        write("TShips.txt", text(c.Former));
        start("TShips.txt", {panel});
        pick("ObjectView", 0);
        for (int tab = tabs()->count() - 1; tab >= 0; --tab)
            showTab(tab);
        typeInPlace("InfoView", QStringLiteral("Class"), QStringLiteral("M3"));
        script.Save(FileChoice{native("TShips.txt"), 1});
        script.Box(QStringLiteral("already exists"), Answer::Yes);
        trigger("save");
        EXPECT_EQ(content(native("TShips.txt")), written(text(c.Stored)));
        delete window.data();
        panel = new ucShip;
        start("TShips.txt", {panel});
        pick("ObjectView", 0);
        EXPECT_EQ(value("InfoView", QStringLiteral("Class")), QString::fromLatin1(c.Shown));
        delete window.data();
        panel = new ucShip;
    }
    delete panel;
}

TEST_F(ShipPanel, WorksWithoutTheGamesFiles) {
    Archive = std::make_unique<clsArchive>(); // over a view without files
    startWith("49", {ship("A", {{22, "1"}})});
    pick("ObjectView", 0);
    for (int tab = 0; tab < tabs()->count(); ++tab)
        showTab(tab);
    EXPECT_EQ(value("WeaponView", QStringLiteral("Shield type")), QStringLiteral("5 MW"));
    EXPECT_EQ(value("PerformanceView", QStringLiteral("Max recharge time")), QString());
    typeInPlace("WeaponView", QStringLiteral("Shield type"), QStringLiteral("2"));
    EXPECT_EQ(stored(22), "2");
}

TEST_F(ShipPanel, ComparesAnEnteredIdWithTheRecordsOfThatMoment) {
    startWith("49", {ship("A", {})});
    pick("ObjectView", 0);
    beginEntry("InfoView", QStringLiteral("ID"), QStringLiteral("late"));
    auto& parser = const_cast<clsTxtParser&>(window->Parser());
    for (int i = 0; i < 100; ++i) // so that the list of records moves
        parser.CreateObject({})->Construct(65);
    parser.FindIndex(1)->SetObjectName("LATE");
    script.Box(QStringLiteral("already used"));
    press(editorIn("InfoView"), Qt::Key_Return);
    press(editorIn("InfoView"), Qt::Key_Escape);
    EXPECT_EQ(parser.FindIndex(0)->ObjectName(), "A");
}

TEST_F(ShipPanel, ExportsThroughTheDialog) {
    startWith("49", {ship("A", {{0, "ships\\a"}}), ship("B", {})});
    const QString out = native("out.txt");
    script.Save(FileChoice{out, 2});
    trigger("export");
    const std::string records = content(out);
    EXPECT_TRUE(records.starts_with("Body file: ships\\a\r\nPicture ID: 01\r\n")) << records;
    EXPECT_TRUE(script.Files.back().Filter.startsWith(
        QStringLiteral("Semicolon delimeted file (*.txt)|*.txt|Record structure")));

    script.Save(FileChoice{out, 1});
    script.Box(QStringLiteral("already exists"), Answer::No);
    trigger("export");
    EXPECT_EQ(content(out), records);

    script.Save(FileChoice{out, 1});
    script.Box(QStringLiteral("already exists"), Answer::Yes);
    script.Box(QStringLiteral("Error in Export file: "));
    lornfd::setFaultHook([](lornfd::DiskOperation operation, std::size_t*) {
        return operation == lornfd::DiskOperation::Write ? ENOSPC : 0;
    });
    trigger("export");
    lornfd::setFaultHook({});
    EXPECT_EQ(content(out), records) << "nothing is replaced by half a file";

    script.Save(FileChoice{native("TShips.txt"), 1});
    script.Box(QStringLiteral("The ships would be lost"));
    trigger("export");
}

} // namespace
