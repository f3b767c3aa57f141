// The dialog for one turret of a ship.
#pragma once

#include "tdata/clsCockpitParser.h"
#include "tdata/clsTurret.h"
#include "txteditor/panels/EntryDialog.h"

class frmTurretEdit final : public EntryDialog {
    Q_OBJECT

public:
    explicit frmTurretEdit(QWidget* Owner = nullptr);

    /// Edits a turret of the ship, modally.
    void ShowTurret(clsTurret& Turret, clsShip& Ship, const clsCockpitParser& Cockpits);
    /// The same for a turret that OK makes behind the last one.
    void NewTurret(clsShip& Ship, const clsCockpitParser& Cockpits);

private:
    void FillTypes(const clsCockpitParser& Cockpits);
    void ShowType();
    void ShowOthers() override;
    [[nodiscard]] bool CheckOthers() override;
    void Store() override;
    [[nodiscard]] bool TypeChanged() const;
    [[nodiscard]] bool PositionChanged() const;
    /// As the descriptor counts them; nothing for a number that is not whole.
    [[nodiscard]] std::optional<std::int32_t> EnteredType() const;
    [[nodiscard]] std::optional<std::int32_t> EnteredPosition() const;

    clsShip* m_ship = nullptr;
    clsTurret* m_turret = nullptr; ///< none until it is made
    QString m_shownType;
    int m_shownTypeData = -1;
    QString m_shownPosition;

    QLineEdit* m_index = nullptr;
    QLineEdit* m_turretIndex = nullptr;
    QLineEdit* m_body = nullptr;
    QComboBox* m_type = nullptr;
    QComboBox* m_position = nullptr;
};
