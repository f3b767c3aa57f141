// What the measurements of panels share: a game with a text for every name, an editor window with
// all panels, and selecting one record after the other in it.
#pragma once

#include "bench/program.h"
#include "txteditor/frmTXTEditor.h"

#include <string>
#include <vector>

namespace bench {

/// While it lives the view shows the sample game, and page 17 has a text for every number below
/// `names`.
class PanelGame {
public:
    static constexpr int names = 3000;

    explicit PanelGame(const Options& options);
    PanelGame(const PanelGame&) = delete;
    PanelGame& operator=(const PanelGame&) = delete;
    ~PanelGame();

private:
    Program m_program;
};

/// Counts how often a widget, or one in it, is painted.
class PaintCount : public QObject {
public:
    explicit PaintCount(QWidget& widget);
    int count = 0;

protected:
    bool eventFilter(QObject*, QEvent* event) override;
};

/// Lets events happen until it counts a painting; ends the program if none comes.
void waitFor(const PaintCount& paints);

/// An editor window with all panels, on the screen, without a file at first.
class PanelWindow {
public:
    PanelWindow();

    void Open(const std::string& path);
    void Select(int row) { Records().setCurrentIndex(Records().model()->index(row, 0)); }
    [[nodiscard]] QTreeView& Records() const { return m_records; }
    /// The one that shows the records; ends the program if there is none.
    [[nodiscard]] ObjectEditor& Panel() const;

private:
    frmTXTEditor m_editor;
    QTreeView& m_records;
};

/// Seconds in the middle of selecting 1,000 records one after the other, each painted: a row for
/// each tab of the panel, or one. `what` names a record.
void addSelectionRows(PanelWindow& window, const std::string& what, std::vector<Row>& rows);

} // namespace bench
