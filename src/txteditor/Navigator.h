// Leads from a record to the one that it names, in the window that has its file, and back.
#pragma once

#include "tdata/RecordReference.h"

#include <QtCore>

#include <functional>
#include <memory>
#include <string>
#include <vector>

class frmTXTEditor;

class Navigator : public QObject {
    Q_OBJECT

public:
    /// `NewWindow` shows an empty editor window, and adds it.
    explicit Navigator(std::function<frmTXTEditor*()> NewWindow, QObject* Parent = nullptr);

    /// What is asked for in this window is carried out from now on.
    void Add(frmTXTEditor* Window);
    [[nodiscard]] bool CanGoBack() const noexcept { return !m_back.empty(); }
    /// Shows the record of an address: in `From` if its file can have it, in an open window on the
    /// game's file, else in a new one. Failures are said, and Back knows nothing of them.
    void GoTo(frmTXTEditor& From, const RecordAddress& Address);
    /// Returns to the record from which the last way led, in a new window if its own is closed.
    void Back();

Q_SIGNALS:
    void Changed(); ///< CanGoBack may give something else

private:
    struct Place {
        QPointer<frmTXTEditor> Window;
        std::string File;
        std::weak_ptr<clsTXTObject> Record;
        std::int32_t Index;
    };

    struct Goal {
        frmTXTEditor* Window = nullptr;
        RecordPtr Record;
    };

    /// Without a record where it leads nowhere, which is said then.
    [[nodiscard]] Goal GoalOf(frmTXTEditor& From, const RecordAddress& Address);
    [[nodiscard]] frmTXTEditor* WindowOn(const std::string& File);
    [[nodiscard]] frmTXTEditor* WindowOf(const Place& To);
    [[nodiscard]] frmTXTEditor* OpenNew(const std::string& File);
    [[nodiscard]] static bool Show(const Goal& To);
    void Remember(Place From);

    std::function<frmTXTEditor*()> m_newWindow;
    QList<QPointer<frmTXTEditor>> m_windows;
    std::vector<Place> m_back;
};
