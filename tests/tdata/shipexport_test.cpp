#include "core/mdlCommon.h"
#include "lornfd/faults.h"
#include "support/gametexts.h"
#include "tdata/ShipExport.h"
#include "tdata/clsArchive.h"
#include "tdata/shiprecord.h"

#include <gtest/gtest.h>

#include <cerrno>

namespace {

class ShipExportTest : public testing::Test {
protected:
    ShipExportTest() {
        fields.LoadFiles();
        fields.SetVersion(48);
        ships.FileName = "C:\\game\\01.cat::types\\TShips.txt";
    }
    ~ShipExportTest() override { lornfd::setFaultHook({}); }

    /// The ships that are exported: zeros with some other values.
    void load(const std::vector<std::vector<std::pair<std::int32_t, const char*>>>& changed) {
        std::string text = "48;" + std::to_string(changed.size()) + ";\r\n";
        for (const auto& changes : changed) {
            const auto ship = support::recordOf(support::shipText("0;0;"));
            for (const auto& [index, value] : changes)
                ship->SetValue(index, std::string(value));
            text += support::joined(*ship) + "\r\n";
        }
        static_cast<void>(support::load(ships, text, otype::Ships));
        ships.FileName = "C:\\game\\01.cat::types\\TShips.txt";
    }

    bool exportTo(const std::string& path, ExportForm form) {
        const std::int32_t file = LornFD_OpenFile(path, LORNFD_WRITE, LORNFD_CREATE, LORNFD_PLAIN);
        const bool written = file != 0 && ExportShips(file, ships, fields, form, error);
        return written ? LornFD_CloseFile(file) != 0 : LornFD_AbandonFile(file) < 0;
    }
    std::string exported(ExportForm form) {
        support::writeFile(m_dir / "out.txt", support::repeat("surplus", 2000));
        EXPECT_TRUE(exportTo(m_dir / "out.txt", form)) << error;
        return support::readFile(m_dir / "out.txt");
    }

    support::ScratchDir m_dir;
    clsTxtParser ships;
    ShipFields fields;
    std::string error;
};

std::string header() {
    return "TShips file TShips.txt - generated with " + ProgramTitle() + ' ' + ProgramVersion() +
           "\r\n"
           "Index;Name;Race;Class;Speed - Min [m/s];Speed - Max [m/s];Tunning - Engine;"
           "Tunning - Rudder;Acceleration [m/s];Reactor;Weapons - Energy;"
           "Weapons - Recharge rate;Shield - Energy [KJ];Shield - Count;Cargo;Hull strength;\r\n";
}

} // namespace

TEST_F(ShipExportTest, TableHasALineForEachShip) {
    const support::GameTexts texts(
        "<page id=\"17\"><string id=\"7\">Ferry; large\n\tone</string></page>");
    load({{{5, "3"},
           {6, "7"},
           {7, "30000"},
           {8, "1250"},
           {13, "0900"},
           {20, "1000"},
           {21, "0.150"},
           {22, "4"},
           {23, "2"},
           {26, "2"},
           {27, "3"},
           {29, "150"},
           {45, "1"},
           {46, "5e3"}},
          {{7, "fast"}, {8, "slow"}, {45, "red"}},
          {{7, "500"}, {26, "ten"}, {45, "19"}}});
    EXPECT_EQ(exported(ExportForm::Table),
              header() +
                  "0;Ferry, large  one;Argon;M1;60.00;72.00;2;3;2.500;0900;1000;0.150;N/A;2;150;"
                  "5e3;\r\n"
                  "1;SS_X;red;TL;fast;fast;0;0;slow;0;0;0;N/A;0;0;0;\r\n"
                  "2;SS_X;Yaki;TL;1.00;ten;ten;0;0.000;0;0;0;N/A;0;0;0;\r\n");
    static_cast<void>(support::load(ships, "48;0;", otype::Ships));
    ships.FileName = "vfs://TShips.txt";
    EXPECT_EQ(exported(ExportForm::Table), header()) << "no ships";
    EXPECT_EQ(exported(ExportForm::Records), "");
}

TEST_F(ShipExportTest, RecordsHaveALineForEachValue) {
    load({{{0, "ships\\x"}, {7, "007"}}, {}});
    const std::string text = exported(ExportForm::Records);
    const std::size_t blank = text.find("\r\n\r\n") + 4;
    const std::string first = text.substr(0, blank);
    EXPECT_TRUE(first.starts_with("Body file: ships\\x\r\nPicture ID: 0\r\n")) << first;
    EXPECT_TRUE(first.ends_with("Skin index: 18\r\nN/A: SS_X\r\n\r\n")) << first;
    EXPECT_NE(first.find("\r\nSpeed: 007\r\n"), std::string::npos);
    EXPECT_NE(first.find("\r\nTurret count: 0\r\nGun groups count: 0\r\nVolume: 10\r\n"),
              std::string::npos);
    EXPECT_EQ(std::count(first.begin(), first.end(), '\n'), 66);
    EXPECT_EQ(text.substr(blank).size(), first.size() - std::string("ships\\x007").size() + 2);
}

TEST_F(ShipExportTest, AShortRecordLeavesCellsEmpty) {
    load({{}, {}});
    ships.FindIndex(1)->LoadValues(clsValueArray(3));
    EXPECT_NE(exported(ExportForm::Table).find("\r\n1;0;;;;;;;;;;;N/A;;;;\r\n"), std::string::npos);
}

TEST_F(ShipExportTest, AFailedWriteIsToldAndReplacesNothing) {
    load({{}, {}});
    for (const ExportForm form : {ExportForm::Table, ExportForm::Records}) {
        EXPECT_FALSE(ExportShips(-1, ships, fields, form, error));
        EXPECT_EQ(error, LornFDErrorText());
        EXPECT_NE(error, "");
        for (int step = 0; step < 4; ++step) { // open, write, flush, rename
            support::writeFile(m_dir / "out.txt", "old");
            lornfd::setFaultHook([left = step](lornfd::DiskOperation, std::size_t*) mutable {
                return left-- == 0 ? ENOSPC : 0;
            });
            EXPECT_FALSE(exportTo(m_dir / "out.txt", form)) << step;
            lornfd::setFaultHook({});
            EXPECT_EQ(support::readFile(m_dir / "out.txt"), "old") << step;
        }
    }
}
