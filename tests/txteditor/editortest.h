// A TXT Editor window over a directory of its own, driven as a user does.
#pragma once

#include "core/clsSettings.h"
#include "core/mdlCommon.h"
#include "core/surroundings.h"
#include "files/mdlPaths.h"
#include "keshvfs/keshvfs.h"
#include "lornfd/faults.h"
#include "lornfd/lornfd.h"
#include "support/scriptedinterface.h"
#include "txteditor/frmEdit.h"
#include "txteditor/frmTXTEditor.h"

#include <QTest>

class EditorTest : public Surroundings {
protected:
    EditorTest() {
        Settings = std::make_unique<clsSettings>();
        Settings->SetDataRoot(program("data"));
    }
    ~EditorTest() override {
        lornfd::setFaultHook({});
        delete window.data();
        RecordClipboard::Instance().Clear();
        QGuiApplication::clipboard()->clear();
        KeshVFS_CreateVFS({});
        Settings.reset();
    }

    static QByteArray record(const QByteArray& name) {
        return "0;100;0;0.50;007;5;1e3;7;8;9;10;11;12;13;14;15;" + name + ";";
    }
    static QByteArray wares(const QList<QByteArray>& names) {
        QByteArray text = "48;" + QByteArray::number(names.size()) + ";\r\n";
        for (const QByteArray& name : names)
            text += record(name) + "\r\n";
        return text;
    }
    /// The file as the editor writes it.
    static std::string written(const QByteArray& wares) {
        return "// Created with " + ProgramID() + "\r\n" + wares.toStdString();
    }

    /// Shows a window; with a name it opens that file of the test's directory.
    void start(const char* name = nullptr, const frmTXTEditor::Panels& panels = {}) {
        window = new frmTXTEditor(panels);
        window->MyShow();
        QApplication::setActiveWindow(window); // no window manager does it here
        if (name)
            window->OpenFile(program(name));
    }
    /// The same with a file of two wares.
    void startWithWares(const frmTXTEditor::Panels& panels = {}) {
        write("TWareT.txt", wares({"WARE_A", "WARE_B"}));
        start("TWareT.txt", panels);
    }

    template <class W>
    W* child(const char* name) const {
        auto* found = window->findChild<W*>(QString::fromLatin1(name));
        EXPECT_TRUE(found) << name;
        return found;
    }
    void trigger(const char* action) { child<QAction>(action)->trigger(); }
    [[nodiscard]] QAbstractItemView* view(const char* name) const {
        return child<QAbstractItemView>(name);
    }
    [[nodiscard]] QStringList column(const char* name, int column = 0) const {
        QStringList texts;
        const QAbstractItemModel* model = view(name)->model();
        for (int row = 0; row < model->rowCount(); ++row)
            texts.append(model->index(row, column).data().toString());
        return texts;
    }
    void pick(const char* name, int row) {
        QAbstractItemView* list = view(name);
        const QModelIndex index = list->model()->index(row, 0);
        list->scrollTo(index);
        QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, list->visualRect(index).center());
    }
    [[nodiscard]] QString caption() const { return window->windowTitle(); }
    [[nodiscard]] QString label(const char* name) const { return child<QLabel>(name)->text(); }
    [[nodiscard]] QString caption(const char* name,
                                  const QString& type = QStringLiteral("unknown")) const {
        return QStringLiteral("TXT Editor - [%1 (%2)]").arg(native(name), type);
    }

    /// Types into the value dialog that opens next, and presses OK; Cancel if it stays.
    static void typeValue(const QString& text) {
        QTimer::singleShot(0, qApp, [text] {
            auto* dialog = qobject_cast<frmEdit*>(QApplication::activeModalWidget());
            ASSERT_TRUE(dialog);
            dialog->findChild<QComboBox*>(QStringLiteral("cmbValue"))->setEditText(text);
            dialog->findChild<QPushButton*>(QStringLiteral("btnOK"))->click();
            if (dialog->isVisible())
                dialog->findChild<QPushButton*>(QStringLiteral("btnCancel"))->click();
        });
    }
    /// The records' names in file order.
    [[nodiscard]] static QString names(const frmTXTEditor& editor) {
        QStringList found;
        for (const RecordPtr& record : editor.Parser().ByIndex())
            found.append(QString::fromStdString(std::string(record->ObjectName())));
        return found.join(u' ');
    }
    [[nodiscard]] QString names() const { return names(*window); }
    /// Selects rows from one to another.
    void pickRows(int first, int last) {
        pick("ObjectView", first);
        QAbstractItemView* list = view("ObjectView");
        QTest::mouseClick(list->viewport(), Qt::LeftButton, Qt::ShiftModifier,
                          list->visualRect(list->model()->index(last, 0)).center());
    }
    /// Changes a field of a record in the raw view.
    void editField(int record, int field, const QString& text) {
        pick("ObjectView", record);
        pick("ObjectDataView", field);
        typeValue(text);
        QTest::keyClick(view("ObjectDataView"), Qt::Key_Return);
    }

    support::Script script;
    QPointer<frmTXTEditor> window;
};
