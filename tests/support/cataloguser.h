// Uses the catalog windows in the user's place: each one that opens must be foreseen, and each one
// foreseen must open.
#pragma once

#include "files/frmCATDialog.h"
#include "lornfd/lornfd.h"

#include <QTest>
#include <gtest/gtest.h>

#include <deque>
#include <functional>

namespace support {

class CatalogUser : public QObject {
public:
    using Use = std::function<void(frmCATDialog&)>;

    CatalogUser() { qApp->installEventFilter(this); }
    ~CatalogUser() override {
        EXPECT_TRUE(m_uses.empty()) << m_uses.size() << " catalog windows never opened";
    }

    /// What is done in the next window; it is closed if it is open after that.
    void Then(Use use) { m_uses.push_back(std::move(use)); }
    /// Types each text into the name box, with Enter behind it.
    void ThenType(const QStringList& texts) {
        Then([texts](frmCATDialog& window) {
            for (const QString& text : texts)
                Type(window, text);
        });
    }

    static void Type(frmCATDialog& window, const QString& text) {
        auto* name = window.findChild<QComboBox*>(QStringLiteral("cmbFileName"))->lineEdit();
        name->selectAll();
        QTest::keyClicks(name, text);
        QTest::keyClick(name, Qt::Key_Return);
    }

protected:
    bool eventFilter(QObject* object, QEvent* event) override {
        auto* window = qobject_cast<frmCATDialog*>(object);
        if (window && event->type() == QEvent::Show && !event->spontaneous())
            QTimer::singleShot(0, window, [this, window] { Run(*window); });
        return false;
    }

private:
    void Run(frmCATDialog& window) {
        if (m_uses.empty()) {
            ADD_FAILURE() << "unforeseen: " << window.windowTitle().toStdString();
        } else {
            const Use use = std::move(m_uses.front());
            m_uses.pop_front();
            EXPECT_TRUE(QTest::qWaitForWindowActive(&window)) << "for its shortcuts";
            use(window);
        }
        window.close();
    }

    std::deque<Use> m_uses;
};

/// Puts a file into a catalog, which is made where there is none.
inline void putEntry(const std::string& catalog, const std::string& entry,
                     const std::string& content) {
    LornFD_CloseCatalog(LornFD_OpenCatalog(catalog, LORNFD_CREATE));
    const std::int32_t file =
        LornFD_OpenFile(catalog + "::" + entry, LORNFD_WRITE, LORNFD_CREATE, LORNFD_PLAIN);
    ASSERT_NE(file, 0) << entry;
    ASSERT_EQ(LornFD_WriteFile(file, content.data(), std::ssize(content)), 1);
    ASSERT_EQ(LornFD_CloseFile(file), 1);
}

} // namespace support
