// The turrets of a ship: a list and a plan of them, the cockpit of the selected one, and the
// operations on them. Only the last turret of a ship can go.
#pragma once

#include "tdata/RecordReference.h"
#include "tdata/clsShip.h"

#include <QtWidgets>

#include <memory>

class RecordPanel;
class TextRowsView;
class TurretPlan;
class clsCockpitParser;
class clsTurret;

class ShipTurretTab : public QWidget {
    Q_OBJECT

public:
    /// The cockpits live at least as long; their parser may be filled later.
    ShipTurretTab(RecordPanel& Panel, const clsCockpitParser& Cockpits);

    /// None clears the tab. Failures are said in a box.
    void Show(std::shared_ptr<clsShip> Ship);
    /// In the list's context menu.
    void OfferActions(const QList<QAction*>& Actions);

    void AddTurret();
    void RemoveTurret(); ///< the selected one
    void EditTurret();   ///< the selected one

Q_SIGNALS:
    /// The ship's record was changed, by more than the values of one turret if Structure.
    void Changed(bool Structure);

private:
    void BuildControls();
    QWidget* BuildLists();
    QWidget* BuildCockpits();
    void FillTurrets();
    void FillPlan();
    void ShowDescriptors();
    void ShowCockpit();
    [[nodiscard]] std::optional<RecordAddress> CockpitAddress() const; ///< of the selected turret
    [[nodiscard]] std::shared_ptr<clsTurret> SelectedTurret() const;

    RecordPanel& m_panel;
    const clsCockpitParser& m_cockpits;
    std::shared_ptr<clsShip> m_ship;

    TextRowsView* m_turrets = nullptr;
    TextRowsView* m_cockpit = nullptr;
    TurretPlan* m_plan = nullptr;
    QLabel* m_descriptors = nullptr;
};
