// The dialog for one gun entry of a ship.
#pragma once

#include "tdata/clsGun.h"
#include "tdata/clsGunGroup.h"
#include "txteditor/panels/EntryDialog.h"

class frmGunEdit final : public EntryDialog {
    Q_OBJECT

public:
    explicit frmGunEdit(QWidget* Owner = nullptr);

    /// Edits a gun of the group, modally. OK also counts and numbers the ship's guns anew.
    void ShowGun(clsGun& Gun, clsGunGroup& Group);
    /// The same for a gun that OK makes at the group's end.
    void NewGun(clsGunGroup& Group);

private:
    void ShowOthers() override;
    [[nodiscard]] bool CheckOthers() override { return true; }
    void Store() override;

    clsGunGroup* m_group = nullptr;
    clsGun* m_gun = nullptr; ///< none until it is made
    QLineEdit* m_index = nullptr;
    QLineEdit* m_count = nullptr;
};
