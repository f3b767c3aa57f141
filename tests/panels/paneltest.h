// A window with one panel and a file of its type.
#pragma once

#include "tdata/clsArchive.h"
#include "tdata/mdlKeshConst.h"
#include "txteditor/editortest.h"

template <class Panel>
class PanelTest : public EditorTest {
protected:
    ~PanelTest() override { Archive.reset(); }

    static QByteArray file(const QByteArray& version, const QList<QByteArray>& records) {
        return version + ";" + QByteArray::number(records.size()) + ";\r\n" + records.join("\r\n") +
               "\r\n";
    }
    /// Makes the files that were written below "data" the game's.
    void openGame() {
        ASSERT_NE(KeshVFS_CreateVFS(program("data")), 0);
        Archive = std::make_unique<clsArchive>();
    }
    void startWithFile(const char* name, const QByteArray& content) {
        write(name, content);
        start(name, {panel});
    }
    void showTab(int tab) const { tabs()->setCurrentIndex(tab); }
    [[nodiscard]] QTabWidget* tabs() const {
        return panel->template findChild<QTabWidget*>(QStringLiteral("MainTab"));
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

    Panel* panel = new Panel; // the window takes it over
};
