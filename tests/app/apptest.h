// The launcher with its services over a game directory of its own.
#pragma once

#include "app/LoadKeshData.h"
#include "app/frmMain.h"
#include "core/clsSettings.h"
#include "core/mdlCommon.h"
#include "core/surroundings.h"
#include "keshvfs/keshvfs.h"
#include "support/scriptedinterface.h"
#include "tdata/clsArchive.h"
#include "textres/clsDescServer.h"
#include "txteditor/frmTXTEditor.h"

#include <QTest>

#include <functional>

/// Runs in the modal window that the next action opens.
template <class Window>
void meanwhile(std::function<void(Window&)> use) {
    QTimer::singleShot(0, qApp, [use] {
        auto* window = qobject_cast<Window*>(QApplication::activeModalWidget());
        ASSERT_TRUE(window);
        use(*window);
        window->reject(); // harmless after OK
    });
}

class AppTest : public Surroundings {
protected:
    AppTest() {
        Settings = std::make_unique<clsSettings>();
        DescServer = std::make_unique<clsDescServer>();
        Archive = std::make_unique<clsArchive>();
        Settings->SetDataRoot(program("data"));
        Settings->SetLoadDescriptions(false);
        write("TWareT.txt", wares);
    }
    ~AppTest() override {
        for (frmTXTEditor* editor : editors())
            delete editor;
        KeshVFS_CreateVFS({});
        Archive.reset();
        DescServer.reset();
        Settings.reset();
    }

    [[nodiscard]] static QList<frmTXTEditor*> editors() {
        QList<frmTXTEditor*> found;
        for (QWidget* top : QApplication::topLevelWidgets())
            if (auto* editor = qobject_cast<frmTXTEditor*>(top); editor && editor->isVisible())
                found.append(editor);
        return found;
    }

    static constexpr const char* wares = "48;1;0;1;2;3;4;5;6;7;8;9;10;11;12;13;14;15;WARE;";
    support::Script script;
};
