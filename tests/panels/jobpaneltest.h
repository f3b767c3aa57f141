// A window with the job panel and a Jobs file.
#pragma once

#include "panels/paneltest.h"
#include "support/gametexts.h"
#include "tdata/mdlKeshJobs.h"
#include "txteditor/panels/ucJob.h"

inline constexpr int sizes[] = {120, 119, 117};

struct BoxRow {
    const char* Name;
    int First;
    int Count;
    int Tab;
    const char* Captions;
};
inline constexpr BoxRow boxRows[] = {
    {"chkShipNameFlags", 9, 4, jobtabs::Info, "Race,Corporation,Ship Type,Variant Name"},
    {"chkShipClass", 19, 9, jobtabs::Ship, "M1,M2,M3,M4,M5,M6,TP,TS,TL"},
    {"chkShipRace", 28, 10, jobtabs::Ship,
     "Argon,Boron,Split,Paranid,Teladi,Xenon,Pirates,Khaak,Goner,Yaki"},
    {"chkShipVariant", 38, 17, jobtabs::Ship,
     "Basic,1,2,Hauler,Tug && tow,5,6,7,8,9,10,11,12,13,14,15,16"},
    {"chkSectorFlags", 58, 6, jobtabs::Sector,
     "Is owner's sector,Is core sector,Has shipyard,Has owner's stations,Not enemy sector,Is "
     "border sector"},
    {"chkSectorFlagsInverted", 64, 1, jobtabs::Sector, "Invert sector flags"},
    {"chkSectorCreationFlags", 67, 5, jobtabs::Sector,
     "Create in shipyard,Create in gate,Create inside sector,Create outside sector,Create NULL"},
    {"chkOwnerRace", 78, 10, jobtabs::Race,
     "Argon,Boron,Split,Paranid,Teladi,Xenon,Khaak,Goner,Yaki,Pirate"},
    {"chkWeaponAllowDrones", 90, 1, jobtabs::Weapons, "Fighter Drones"},
    {"chkWeaponForbid", 91, 5, jobtabs::Weapons,
     "Impulse Ray Emmiter,Particle Accelerator Cannon,High Energy Plasma Thrower,Photon Pulse "
     "Cannon,Kyon Emmiter"},
    {"chkWeaponAllow", 96, 8, jobtabs::Weapons,
     "Mass Driver,PSG,Ion Disruptor,Flak,IH,Mining las.,Tug,Repair las."},
    {"chkPlacementVarious", 110, 5, jobtabs::Sector,
     "Is invincible,Is hidden pirate,Destroy OOS,Rebuild in new sector,Fly average speed"},
};

class JobPanel : public PanelTest<ucJob> {
protected:
    using Values = QMap<int, QByteArray>; ///< by logical field

    /// A job whose zeros have a spelling of their own, and whose name may hold anything.
    static QByteArray job(int size, const Values& own) {
        QByteArray text;
        for (int place = 0; place < size - 1; ++place)
            text += own.value(JobLogicalIndex(size, place), "00") + ";";
        return text + own.value(119, "Night; ferry // by \xE4");
    }
    static QByteArray version(int size) { return size == 120 ? "10" : size == 119 ? "9" : "8"; }
    /// In a new window.
    void startWith(int size, const QList<Values>& jobs) {
        if (window) {
            delete window.data();
            panel = new ucJob;
        }
        QByteArray text = version(size) + ";\r\n";
        for (const Values& values : jobs)
            text += job(size, values) + "\r\n";
        startWithFile("Jobs.txt", text);
        if (size < 120)
            script.Box(QStringLiteral("Warning - this is old Job file (ver. %1)\n\nIt's possible "
                                      "that not all user controls will behave correctly.")
                           .arg(QString::fromLatin1(version(size))));
        pick("ObjectView", 0);
    }
    [[nodiscard]] QCheckBox* box(const BoxRow& row, int place) const {
        const QByteArray number = row.Count > 1 ? QByteArray::number(place) : QByteArray();
        return child<QCheckBox>((row.Name + number).constData());
    }
    /// The logical field's value in the record.
    [[nodiscard]] std::string field(int logical, int index = 0) const {
        const RecordPtr found = window->Parser().FindIndex(index);
        return std::string(found->ValueText(JobPhysicalIndex(found->size(), logical)));
    }
    [[nodiscard]] QComboBox* ships() const { return child<QComboBox>("cmbShipTypeID"); }
    [[nodiscard]] QString summary() const { return label("lblSummary"); }
    void useShips() {
        QByteArray text = "49;4;\r\n";
        for (const char* own : {"SHIP_A;7;1;0;SG_SH_M3", "SHIP_B;7;19;3;SG_SH_TL_P",
                                "F\xE4HRE;99;2;0;0", "SHIP_C;7;1;0;SG_SH_M7"}) {
            const QList<QByteArray> parts = QByteArray(own).split(';');
            for (int i = 0; i < 64; ++i)
                text += (i == 5    ? parts[4]
                         : i == 6  ? parts[1]
                         : i == 45 ? parts[2]
                         : i == 50 ? parts[3]
                                   : "0") +
                        ";";
            text += parts[0] + ";\r\n";
        }
        write("data/types/TShips.txt", text);
        write("data/types/JobWings.txt",
              "5;100,7,6;\r\n6;" + QByteArray("100,").repeated(2999) + "100;\r\n");
        write("data/types/WareLists.txt", "1;\r\n1;SS_SALT;\r\n");
        openGame();
    }
};
