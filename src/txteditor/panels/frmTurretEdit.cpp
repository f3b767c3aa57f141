#include "txteditor/panels/frmTurretEdit.h"

#include "tdata/ShipChange.h"
#include "tdata/mdlKeshShips.h"
#include "ui/CommonBoxes.h"
#include "ui/ListHelpers.h"

#include <unordered_map>

namespace {

using keshobjects::spellValue;

constexpr std::int32_t noType = -1;

} // namespace

frmTurretEdit::frmTurretEdit(QWidget* Owner)
    : EntryDialog(QStringLiteral("frmTurretEdit"), tr("Turret Edit"), Owner) {
    QFormLayout* section = AddFrame(tr("Turret data"));
    m_index = AddShown(*section, QStringLiteral("IndexEdit"), tr("Index"));
    m_turretIndex = AddShown(*section, QStringLiteral("TurIdxEdit"), tr("Turret Index"));
    m_body = AddEdit(*section, QStringLiteral("BodyIdEdit"), tr("Body ID"));
    QLineEdit* path = AddEdit(*section, QStringLiteral("PathEdit"), tr("Path index"));
    QFormLayout* descriptor = AddFrame(tr("Turret Descriptor"));
    m_type = AddCombo(*descriptor, QStringLiteral("cmbTType"), tr("Turret type"));
    m_position = AddCombo(*descriptor, QStringLiteral("cmbPosition"), tr("Position"));
    for (const std::string_view name : TurretPositionNames.Rows)
        m_position->addItem(ToScreen(name));
    Finish({{path, 3, Holds::Number, tr("Path index not specified"),
             tr("Path index must be whole number")},
            {m_body, 2, Holds::Text, tr("Body ID not specified")}});
}

void frmTurretEdit::ShowTurret(clsTurret& Turret, clsShip& Ship, const clsCockpitParser& Cockpits) {
    m_ship = &Ship;
    m_turret = &Turret;
    FillTypes(Cockpits);
    Run(Ship.Object.get(), Turret.Offset(), *m_body);
}

void frmTurretEdit::NewTurret(clsShip& Ship, const clsCockpitParser& Cockpits) {
    m_ship = &Ship;
    m_turret = nullptr;
    FillTypes(Cockpits);
    Run(nullptr, 0, *m_body);
}

void frmTurretEdit::FillTypes(const clsCockpitParser& Cockpits) {
    std::unordered_map<const clsCockpit*, int> positions;
    for (const auto& cockpit : Cockpits.SortedCockpits())
        positions.emplace(cockpit.get(), static_cast<int>(positions.size()));
    m_type->clear();
    for (const auto& [id, cockpit] : Cockpits.Cockpits())
        m_type->addItem(ToScreen(cockpit->Object->ObjectName()), positions[cockpit.get()]);
}

void frmTurretEdit::ShowOthers() {
    m_index->setText(m_turret ? ToScreen(spellValue(m_turret->Value(0))) : QString());
    m_turretIndex->setText(m_turret ? ToScreen(spellValue(m_turret->Value(1))) : QString());
    const QString position = m_turret ? ToScreen(m_turret->PositionName()) : QString();
    m_position->setCurrentIndex(
        m_position->findText(position, Qt::MatchExactly | Qt::MatchCaseSensitive));
    m_position->setEditText(position);
    m_shownPosition = position;
    ShowType();
    for (QComboBox* combo : {m_type, m_position})
        combo->setEnabled(!m_turret || m_turret->IsTurret());
}

void frmTurretEdit::ShowType() {
    m_type->setCurrentIndex(-1);
    m_type->clearEditText();
    if (m_turret && m_turret->IsTurret()) {
        if (!ComboSelectData(*m_type, m_turret->Type().value_or(noType)))
            m_type->setEditText(ToScreen(spellValue(m_turret->DescriptorValue(0))));
    }
    m_shownType = m_type->currentText();
    m_shownTypeData = ComboItemData(*m_type);
}

bool frmTurretEdit::TypeChanged() const {
    return !m_turret || m_type->currentText() != m_shownType ||
           ComboItemData(*m_type) != m_shownTypeData;
}

bool frmTurretEdit::PositionChanged() const {
    return !m_turret || m_position->currentText() != m_shownPosition;
}

std::optional<std::int32_t> frmTurretEdit::EnteredType() const {
    if (const int chosen = ComboItemData(*m_type); chosen >= 0)
        return chosen;
    const QString text = m_type->currentText();
    if (IsNumber(text))
        return WholeNumber(text);
    for (int row = m_type->count() - 1; row >= 0; --row)
        if (m_type->itemText(row) == text)
            return m_type->itemData(row).toInt();
    return noType;
}

std::optional<std::int32_t> frmTurretEdit::EnteredPosition() const {
    const QString text = m_position->currentText();
    std::int32_t position = 0;
    if (FindInList(text.toStdString(), TurretPositionNames, position))
        return position;
    return WholeNumber(text);
}

bool frmTurretEdit::CheckOthers() {
    if (m_turret && !m_turret->IsTurret())
        return true;
    if (PositionChanged() && !EnteredPosition())
        return Refuse(*m_position, tr("Position is neither in the list nor a whole number."), true);
    return !TypeChanged() || EnteredType() ||
           Refuse(*m_type, tr("Turret type must be whole number"));
}

void frmTurretEdit::Store() {
    ShipChange change(*m_ship);
    const std::shared_ptr<clsTurret> made = m_turret ? nullptr : m_ship->MakeNewTurret();
    clsTurret& turret = m_turret ? *m_turret : *made;
    WriteEntries(*m_ship, turret.Offset());
    if (turret.IsTurret() && TypeChanged())
        turret.SetDescriptorValue(0, EnteredType().value_or(noType));
    if (turret.IsTurret() && PositionChanged())
        turret.SetDescriptorValue(1, EnteredPosition().value_or(0));
    change.Keep();
}
