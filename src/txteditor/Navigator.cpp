#include "txteditor/Navigator.h"

#include "core/mdlComFunctions.h"
#include "files/mdlPaths.h"
#include "tdata/mdlKeshConst.h"
#include "txteditor/frmTXTEditor.h"

#include <algorithm>

namespace {

constexpr std::size_t mostPlaces = 100;

/// The "vfs://" path of a file of the game; empty if it has none.
std::string gameFile(const std::string& key) {
    VfsSearch search(JoinPath({"types", key}));
    while (search.Found() && search.IsDirectory())
        search.Next();
    return search.Found() ? BuildCatalogPath(JoinPath({"types", search.Name()}), "vfs://")
                          : std::string();
}

bool sameFile(const std::string& a, const std::string& b) {
    const auto first = RealPath(a);
    const auto second = RealPath(b);
    return first && second && SamePlace(*first, *second);
}

void raise(frmTXTEditor& window) {
    window.setWindowState(window.windowState() & ~Qt::WindowMinimized);
    window.raise();
    window.activateWindow();
}

} // namespace

Navigator::Navigator(std::function<frmTXTEditor*()> NewWindow, QObject* Parent)
    : QObject(Parent), m_newWindow(std::move(NewWindow)) {}

void Navigator::Add(frmTXTEditor* Window) {
    m_windows.removeAll(nullptr);
    m_windows.append(Window);
    connect(Window, &frmTXTEditor::GoToAsked, this,
            [this, Window](const RecordAddress& address) { GoTo(*Window, address); });
    connect(Window, &frmTXTEditor::BackAsked, this, &Navigator::Back);
    const auto tell = [this, Window] { Window->SetCanGoBack(CanGoBack()); };
    connect(this, &Navigator::Changed, Window, tell);
    tell();
}

frmTXTEditor* Navigator::WindowOn(const std::string& File) {
    const auto found =
        std::find_if(m_windows.begin(), m_windows.end(), [&](const QPointer<frmTXTEditor>& window) {
            return window && window->isVisible() && sameFile(window->Parser().FileName, File);
        });
    return found == m_windows.end() ? nullptr : *found;
}

frmTXTEditor* Navigator::OpenNew(const std::string& File) {
    frmTXTEditor* window = m_newWindow();
    window->OpenFile(File);
    if (!window->Parser().FileName.empty())
        return window;
    window->close(); // why, was said
    return nullptr;
}

frmTXTEditor* Navigator::WindowFor(frmTXTEditor& From, const RecordAddress& Address) {
    if (ObjectTypeFromFile(Address.File) == From.Parser().otype() &&
        FindRecord(From.Parser(), Address))
        return &From;
    const std::string file = gameFile(Address.File);
    if (file.empty()) {
        From.Tell(tr("The game has no file \"%1\".").arg(QString::fromStdString(Address.File)));
        return nullptr;
    }
    frmTXTEditor* const open = WindowOn(file);
    return open ? open : OpenNew(file);
}

void Navigator::GoTo(frmTXTEditor& From, const RecordAddress& Address) {
    const auto address = Address.File.empty() ? WareAddress(Address.Name) : Address;
    if (!address)
        return From.Tell(tr("There is no ware \"%1\".").arg(ToScreen(Address.Name)));
    const Place origin = {&From, From.Parser().FileName, From.SelectedObject(),
                          From.SelectedObject() ? From.SelectedObject()->Index : -1};
    frmTXTEditor* const window = WindowFor(From, *address);
    if (!window)
        return;
    raise(*window);
    if (!window->FinishEntry())
        return;
    if (const RecordPtr record = FindRecord(window->Parser(), *address))
        window->SelectRecords({record});
    else
        window->Tell(tr("There is no such object in this file."));
    m_back.push_back(origin);
    if (m_back.size() > mostPlaces)
        m_back.erase(m_back.begin());
    Q_EMIT Changed();
}

void Navigator::Back() {
    if (m_back.empty())
        return;
    const Place place = m_back.back();
    m_back.pop_back();
    Q_EMIT Changed();
    RecordPtr record = place.Record.lock();
    const auto holds = [&](const frmTXTEditor& window) {
        return record && window.Parser().Find(record->ID) == record;
    };
    frmTXTEditor* window = place.Window && place.Window->isVisible() &&
                                   (holds(*place.Window) || // also under another name by now
                                    place.Window->Parser().FileName == place.File)
                               ? place.Window.data()
                               : WindowOn(place.File);
    if (!window)
        window = OpenNew(place.File);
    if (!window)
        return;
    raise(*window);
    if (!window->FinishEntry())
        return;
    if (!holds(*window))
        record = window->Parser().FindIndex(place.Index);
    if (record)
        window->SelectRecords({record});
}
