// The guns of a ship: its gun groups, the guns of the selected one, and the operations on them.
// Only the last gun of a group can go.
#pragma once

#include "tdata/clsShip.h"

#include <QtWidgets>

#include <array>
#include <memory>

class RecordPanel;
class TextRowsView;
class clsGun;
class clsGunGroup;

class ShipGunTab : public QWidget {
    Q_OBJECT

public:
    explicit ShipGunTab(RecordPanel& Panel);

    /// None clears the tab. Failures are said in a box.
    void Show(std::shared_ptr<clsShip> Ship);
    /// In the context menus of both lists.
    void OfferActions(const QList<QAction*>& Actions);

    void AddGun();    ///< to the selected group
    void RemoveGun(); ///< the selected one
    void EditGun();   ///< the selected one

Q_SIGNALS:
    void Changed(); ///< the ship's record

private:
    void BuildControls();
    QWidget* BuildGroups();
    QWidget* BuildGuns();
    void FillGroups();
    void FillGuns();
    void SetGunColumns();
    [[nodiscard]] bool Debugging() const { return m_views[1]->isChecked(); }
    [[nodiscard]] std::shared_ptr<clsGunGroup> SelectedGunGroup() const;
    [[nodiscard]] std::shared_ptr<clsGun> SelectedGun() const;
    void GunsChanged();

    RecordPanel& m_panel;
    std::shared_ptr<clsShip> m_ship;

    TextRowsView* m_groups = nullptr;
    TextRowsView* m_guns = nullptr;
    std::array<QRadioButton*, 2> m_views{};
};
