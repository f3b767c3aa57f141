// A window with the ship panel and a TShips file.
#pragma once

#include "panels/paneltest.h"
#include "support/gametexts.h"
#include "txteditor/panels/frmGunEdit.h"
#include "txteditor/panels/frmTurretEdit.h"
#include "txteditor/panels/ucShip.h"

class ShipPanel : public PanelTest<ucShip> {
protected:
    using Values = QMap<int, QByteArray>;

    /// A ship without turrets; `own` replaces values, of which each has its own spelling.
    static QByteArray ship(const QByteArray& name, const Values& own) {
        QByteArray text;
        for (int i = 0; i < 64; ++i) {
            const bool counts = i == 19 || i == 53 || i == 54;
            text += own.value(i, counts ? QByteArray("0") : "0" + QByteArray::number(i)) + ";";
        }
        return text + name + ";";
    }
    void useFiles() {
        const QByteArray tail = ";9;1.5;11;12;13;14;15;16;17;18;19;";
        write("data/types/TShields.txt", "50;2;\r\n0;1;2;3;4;5;999;100;1000" + tail +
                                             "SH_A;\r\n0;1;2;3;4;5;999;0;1000" + tail +
                                             "SH_ZERO;\r\n");
        write("data/types/TCockpits.txt",
              "50;2;\r\n0;1;2;3;4;5;6;scene;1;9;10;11;12;13;14;15;16;17;CP_B;\r\n"
              "0;1;2;3;4;5;6;scene;1;9;10;11;12;13;14;15;16;17;CP_A;\r\n");
        openGame();
    }
    void startWith(const QByteArray& version, const QList<QByteArray>& ships) {
        startWithFile("TShips.txt", file(version, ships));
    }
    /// Fills the edits of the dialog that opens next and presses OK.
    template <class Dialog>
    static void answer(const QStringList& edits, const QString& position = {}) {
        QTimer::singleShot(0, qApp, [edits, position] {
            auto* dialog = qobject_cast<Dialog*>(QApplication::activeModalWidget());
            ASSERT_TRUE(dialog);
            qsizetype next = 0;
            for (QLineEdit* edit : dialog->template findChildren<QLineEdit*>())
                if (!edit->isReadOnly() && !qobject_cast<QComboBox*>(edit->parentWidget()))
                    edit->setText(edits.value(next++));
            if (auto* combo = dialog->template findChild<QComboBox*>(QStringLiteral("cmbPosition"));
                combo && !position.isEmpty())
                combo->setEditText(position);
            dialog->template findChild<QPushButton*>(QStringLiteral("btnOK"))->click();
        });
    }
};
