// Leads from what a widget shows to the record that it names: an entry in the widget's popup, F12,
// or a click with Ctrl.
#pragma once

#include "tdata/RecordReference.h"

#include <QtWidgets>

#include <functional>
#include <optional>

class GoToAction : public QAction {
    Q_OBJECT

public:
    /// What the current row of a list, or the widget, leads to; nothing if to no record. A record
    /// without a file is a ware.
    using Target = std::function<std::optional<RecordAddress>()>;

    /// `Finish` takes what is being entered, and gives false if that is refused; then nothing is
    /// asked for.
    GoToAction(QWidget& Widget, Target Find, std::function<bool()> Finish);

    void Update(); ///< what the widget shows has changed

Q_SIGNALS:
    void Asked(const RecordAddress& Address);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void FollowRows(QAbstractItemView& View);
    void OfferIn(QLineEdit& Edit);
    void Go();
    [[nodiscard]] bool TakeClick(const QMouseEvent& Click);

    QWidget& m_widget;
    Target m_find;
    std::function<bool()> m_finish;
};
