#include "bench/panelgame.h"

#include "bench/tfile.h"
#include "keshobjects/keshtexts.h"
#include "keshvfs/keshvfs.h"
#include "sample/samplegame.h"
#include "txteditor/panels/AllPanels.h"

#include <QtWidgets>

#include <algorithm>

namespace bench {

namespace {

constexpr int selected = 1000;
constexpr double mostForSelection = 0.005; ///< seconds
constexpr int mostTurns = 100;             ///< of the event loop until something is painted

double middleOfSelecting(PanelWindow& window) {
    const QTreeView& view = window.Records();
    const PaintCount paints(*view.viewport());
    std::vector<double> times;
    for (int row = 0; row < selected; ++row) {
        const auto start = Clock::now();
        window.Select(row);
        QCoreApplication::processEvents();
        times.push_back(secondsSince(start));
    }
    if (paints.count < selected)
        fail("A selected record was not painted.");
    std::ranges::nth_element(times, times.begin() + selected / 2);
    return times[selected / 2];
}

Row selectionRow(PanelWindow& window, const std::string& what) {
    return limitRow("selecting " + what, "middle of 1,000, painted", middleOfSelecting(window),
                    mostForSelection);
}

} // namespace

PanelGame::PanelGame(const Options& options) : m_program(options) {
    const std::filesystem::path root = options.directory / "panelgame";
    std::string error;
    if (!std::filesystem::exists(root) && !sample::writeSampleGame(root.string(), 1, error))
        fail(error);
    KeshVFS_AddVFSFilter("*");
    KeshVFS_CreateVFS(root.string());
    std::string texts = "<texts language=\"44\"><page id=\"17\">";
    for (int id = 0; id < names; ++id)
        texts +=
            "<string id=\"" + std::to_string(id) + "\">Hull " + std::to_string(id) + "</string>";
    Kesh_TREDescServerLoadMemory(texts + "</page></texts>", "names.xml");
    Kesh_TREDescServerTranslateStrings();
}

PanelGame::~PanelGame() {
    Kesh_TREDescServerUnload();
    KeshVFS_CreateVFS("");
    KeshVFS_ClearFilters();
}

PaintCount::PaintCount(QWidget& widget) {
    widget.installEventFilter(this);
    for (QWidget* inside : widget.findChildren<QWidget*>())
        inside->installEventFilter(this);
}

bool PaintCount::eventFilter(QObject*, QEvent* event) {
    count += event->type() == QEvent::Paint ? 1 : 0;
    return false;
}

void waitFor(const PaintCount& paints) {
    for (int turn = 0; paints.count == 0; ++turn) {
        if (turn == mostTurns)
            fail("Nothing was painted.");
        QCoreApplication::processEvents();
    }
}

PanelWindow::PanelWindow()
    : m_editor(AllPanels()),
      m_records(*m_editor.findChild<QTreeView*>(QStringLiteral("ObjectView"))) {
    m_editor.resize(1100, 760);
    m_editor.MyShow();
    waitFor(PaintCount(*Records().viewport()));
}

void PanelWindow::Open(const std::string& path) {
    m_editor.OpenFile(QString::fromStdString(path).replace(u'/', u'\\').toStdString());
    if (Records().model()->rowCount() < selected)
        fail("The editor does not show the records.");
}

ObjectEditor& PanelWindow::Panel() const {
    for (ObjectEditor* panel : m_editor.findChildren<ObjectEditor*>())
        if (panel->isVisible())
            return *panel;
    fail("The editor shows no panel.");
}

void addSelectionRows(PanelWindow& window, const std::string& what, std::vector<Row>& rows) {
    auto* tabs = window.Panel().findChild<QTabWidget*>(QStringLiteral("MainTab"));
    if (!tabs)
        rows.push_back(selectionRow(window, what));
    for (int tab = 0; tabs && tab < tabs->count(); ++tab) {
        tabs->setCurrentIndex(tab);
        rows.push_back(selectionRow(window, what + ", tab " + tabs->tabText(tab).toStdString()));
    }
}

} // namespace bench
