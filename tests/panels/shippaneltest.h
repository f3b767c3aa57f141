// A window with the ship panel and a TShips file.
#pragma once

#include "support/gametexts.h"
#include "tdata/clsArchive.h"
#include "txteditor/editortest.h"
#include "txteditor/panels/frmGunEdit.h"
#include "txteditor/panels/frmTurretEdit.h"
#include "txteditor/panels/ucShip.h"

class ShipPanel : public EditorTest {
protected:
    using Values = QMap<int, QByteArray>;

    ~ShipPanel() override { Archive.reset(); }

    /// A ship without turrets; `own` replaces values, of which each has its own spelling.
    static QByteArray ship(const QByteArray& name, const Values& own) {
        QByteArray text;
        for (int i = 0; i < 64; ++i) {
            const bool counts = i == 19 || i == 53 || i == 54;
            text += own.value(i, counts ? QByteArray("0") : "0" + QByteArray::number(i)) + ";";
        }
        return text + name + ";";
    }
    static QByteArray file(const QByteArray& version, const QList<QByteArray>& ships) {
        return version + ";" + QByteArray::number(ships.size()) + ";\r\n" + ships.join("\r\n") +
               "\r\n";
    }
    void useFiles() {
        const QByteArray tail = ";9;1.5;11;12;13;14;15;16;17;18;19;";
        write("data/types/TShields.txt", "50;2;\r\n0;1;2;3;4;5;999;100;1000" + tail +
                                             "SH_A;\r\n0;1;2;3;4;5;999;0;1000" + tail +
                                             "SH_ZERO;\r\n");
        write("data/types/TCockpits.txt",
              "50;2;\r\n0;1;2;3;4;5;6;scene;1;9;10;11;12;13;14;15;16;17;CP_B;\r\n"
              "0;1;2;3;4;5;6;scene;1;9;10;11;12;13;14;15;16;17;CP_A;\r\n");
        ASSERT_NE(KeshVFS_CreateVFS(program("data")), 0);
        Archive = std::make_unique<clsArchive>();
    }
    void startWith(const QByteArray& version, const QList<QByteArray>& ships) {
        write("TShips.txt", file(version, ships));
        start("TShips.txt", {panel});
    }
    void showTab(int tab) const { tabs()->setCurrentIndex(tab); }
    [[nodiscard]] QTabWidget* tabs() const {
        return panel->findChild<QTabWidget*>(QStringLiteral("MainTab"));
    }
    /// "name=value" of each row.
    [[nodiscard]] QString rows(const char* name) const {
        QStringList texts;
        const QStringList values = column(name, 1);
        for (const QString& label : column(name))
            texts.append(label + u'=' + values[texts.size()]);
        return texts.join(u'|');
    }
    [[nodiscard]] QString value(const char* name, const QString& row) const {
        return column(name, 1).value(column(name).indexOf(row));
    }
    [[nodiscard]] std::string stored(int field, int record = 0) const {
        return std::string(window->Parser().FindIndex(record)->ValueText(field));
    }
    [[nodiscard]] std::string record(int index = 0) const {
        return window->Parser().FindIndex(index)->GetObjectTData();
    }
    void selectField(const char* name, const QString& row) {
        const auto at = static_cast<int>(column(name).indexOf(row));
        ASSERT_GE(at, 0);
        view(name)->setFocus();
        view(name)->setCurrentIndex(view(name)->model()->index(at, 0));
    }
    /// The control for a value in its row; none if none is open.
    [[nodiscard]] QWidget* editorIn(const char* name) const {
        return view(name)->findChild<QWidget*>(QStringLiteral("ValueEditor"));
    }
    /// Begins to type into a row.
    void beginEntry(const char* name, const QString& row, const QString& text) {
        selectField(name, row);
        QTest::keyClick(view(name), Qt::Key_F2);
        ASSERT_TRUE(editorIn(name));
        QTest::keyClicks(editorIn(name), text);
    }
    void typeInPlace(const char* name, const QString& row, const QString& text) {
        beginEntry(name, row, text);
        press(editorIn(name), Qt::Key_Return);
    }
    void key(const char* name, Qt::Key code) {
        view(name)->setFocus();
        QTest::keyClick(view(name), code);
    }
    /// A key whose work the view does a little later.
    static void press(QWidget* editor, Qt::Key key) {
        QTest::keyClick(editor, key);
        QCoreApplication::sendPostedEvents();
        QCoreApplication::sendPostedEvents({}, QEvent::DeferredDelete);
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

    ucShip* panel = new ucShip; // the window takes it over
};
