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

bool holds(const frmTXTEditor& window, const RecordPtr& record) {
    return record && window.Parser().Find(record->ID) == record;
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

Navigator::Goal Navigator::GoalOf(frmTXTEditor& From, const RecordAddress& Address) {
    const bool alike = ObjectTypeFromFile(Address.File) == From.Parser().otype();
    if (const RecordPtr record = alike ? FindRecord(From.Parser(), Address) : nullptr)
        return {&From, record};
    const std::string file = gameFile(Address.File);
    if (file.empty()) {
        From.Tell(tr("The game has no file \"%1\".").arg(QString::fromStdString(Address.File)));
        return {};
    }
    frmTXTEditor* const open = WindowOn(file);
    frmTXTEditor* const window = open ? open : OpenNew(file);
    if (!window)
        return {};
    const bool sought = alike && window == &From;
    const RecordPtr record = sought ? nullptr : FindRecord(window->Parser(), Address);
    if (!record) // who asked stays where he is, unless a window has opened over it
        (open ? From : *window)
            .Tell(tr("The file \"%1\" has no such object.")
                      .arg(QString::fromStdString(Address.File)));
    return {window, record};
}

bool Navigator::Show(const Goal& To) {
    raise(*To.Window);
    if (!To.Window->FinishEntry())
        return false;
    if (To.Record)
        To.Window->SelectRecords({To.Record});
    return true;
}

void Navigator::GoTo(frmTXTEditor& From, const RecordAddress& Address) {
    const auto address = Address.File.empty() ? WareAddress(Address.Name) : Address;
    if (!address)
        return From.Tell(tr("There is no ware \"%1\".").arg(ToScreen(Address.Name)));
    const RecordPtr left = From.SelectedObject();
    const Place origin = {&From, From.Parser().FileName, left, left ? left->Index : -1};
    const Goal goal = GoalOf(From, *address);
    if (goal.Record && Show(goal) && goal.Record != left)
        Remember(origin);
}

void Navigator::Remember(Place From) {
    m_back.push_back(std::move(From));
    if (m_back.size() > mostPlaces)
        m_back.erase(m_back.begin());
    Q_EMIT Changed();
}

/// The one that was left if it still has the record, under another name too, or the file; else any
/// on that file.
frmTXTEditor* Navigator::WindowOf(const Place& To) {
    const RecordPtr record = To.Record.lock();
    if (To.Window && To.Window->isVisible() &&
        (holds(*To.Window, record) || To.Window->Parser().FileName == To.File))
        return To.Window;
    return WindowOn(To.File);
}

void Navigator::Back() {
    if (m_back.empty())
        return;
    const Place place = m_back.back();
    m_back.pop_back();
    Q_EMIT Changed();
    frmTXTEditor* const open = WindowOf(place);
    frmTXTEditor* const window = open ? open : OpenNew(place.File);
    if (!window)
        return;
    RecordPtr record = place.Record.lock();
    if (!holds(*window, record))
        record = window->Parser().FindIndex(place.Index);
    if (!Show({window, record}))
        Remember(place); // it waits there until the entry is right
}
