#include "txteditor/panels/frmGunEdit.h"

#include "tdata/ShipChange.h"

frmGunEdit::frmGunEdit(QWidget* Owner)
    : EntryDialog(QStringLiteral("frmGunEdit"), tr("Gun Edit"), Owner) {
    QFormLayout* gun = AddRows();
    m_index = AddShown(*gun, QStringLiteral("IndexEdit"), tr("Gun Index"));
    m_count = AddEdit(*gun, QStringLiteral("CountEdit"), tr("Count"));
    QFormLayout* primary = AddFrame(tr("Primary"));
    QLineEdit* body =
        AddEdit(*primary, QStringLiteral("BodyIdEdit0"), tr("Body ID"), tr("Primary Body ID"));
    QLineEdit* path = AddEdit(*primary, QStringLiteral("PathIdxEdit0"), tr("Path index"),
                              tr("Primary Path index"));
    QFormLayout* secondary = AddFrame(tr("Secondary"));
    QLineEdit* body2 =
        AddEdit(*secondary, QStringLiteral("BodyIdEdit1"), tr("Body ID"), tr("Secondary Body ID"));
    QLineEdit* path2 = AddEdit(*secondary, QStringLiteral("PathIdxEdit1"), tr("Path index"),
                               tr("Secondary Path index"));
    Finish({{m_count, 1, Holds::Number, tr("Count not specified"), tr("Count must be whole number"),
             tr("Count cannot be negative")},
            {body, 2, Holds::Text, tr("Primary Body ID not specified")},
            {path, 3, Holds::Number, tr("Primary Path index not specified"),
             tr("Primary Path index must be whole number")},
            {body2, 4, Holds::Text},
            {path2, 5, Holds::Number, {}, tr("Secondary Path index must be whole number")}});
}

void frmGunEdit::ShowGun(clsGun& Gun, clsGunGroup& Group) {
    m_group = &Group;
    m_gun = &Gun;
    Run(Group.Ship().Object.get(), Gun.Offset(), *m_count);
}

void frmGunEdit::NewGun(clsGunGroup& Group) {
    m_group = &Group;
    m_gun = nullptr;
    Run(nullptr, 0, *m_count);
}

void frmGunEdit::ShowOthers() {
    m_index->setText(m_gun ? ToScreen(keshobjects::spellValue(m_gun->Value(0))) : QString());
}

void frmGunEdit::Store() {
    clsShip& ship = m_group->Ship();
    ShipChange change(ship);
    const std::shared_ptr<clsGun> made = m_gun ? nullptr : m_group->MakeNewGun();
    WriteEntries(ship, (m_gun ? *m_gun : *made).Offset());
    m_group->RefreshGunCount();
    change.Keep();
}
