#include "txteditor/panels/ShipTurretTab.h"

#include "tdata/clsCockpitParser.h"
#include "tdata/clsGunGroup.h"
#include "tdata/clsTurret.h"
#include "txteditor/panels/LabelPlace.h"
#include "txteditor/panels/RecordPanel.h"
#include "txteditor/panels/TextRows.h"
#include "txteditor/panels/TurretPlan.h"
#include "txteditor/panels/frmTurretEdit.h"
#include "ui/FoldingSplitter.h"
#include "ui/ListHelpers.h"
#include "ui/ModalResult.h"

#include <algorithm>

namespace {

constexpr int narrowTurrets = 120; ///< characters, too few for list and plan side by side
constexpr std::size_t mostTurrets = clsShip::MaxTurrets + 1; ///< with the front gun
constexpr std::int32_t typeValue = 0;
constexpr std::int32_t positionValue = 1;

QString key(const clsTurret& turret) {
    return QString::fromStdString(turret.key());
}

QString valueText(const KeshValue& value) {
    return ToScreen(keshobjects::spellValue(value));
}

/// A value of the descriptor pair, with its meaning where it has one.
QString descriptorText(const clsTurret& turret, std::int32_t i) {
    const QString number = valueText(turret.DescriptorValue(i));
    std::string text;
    return turret.TranslateDescValue(i, text)
               ? QStringLiteral("%1 (%2)").arg(ToScreen(text), number)
               : number;
}

QStringList turretCells(const clsTurret& turret) {
    QStringList cells{QString::number(turret.Offset())};
    for (std::int32_t i = 0; i < clsTurret::size(); ++i)
        cells.append(valueText(turret.Value(i)));
    if (turret.HasDescriptor())
        cells << descriptorText(turret, typeValue) << descriptorText(turret, positionValue);
    return cells;
}

/// In the plan.
int placeOf(const clsTurret& turret) {
    constexpr int nowhere = -1;
    if (!turret.IsTurret())
        return 0;
    const int position = turret.HasDescriptor() ? turret.Position() : 0;
    return position == 0 ? nowhere : position;
}

constexpr int mostGuns = 1'000'000; ///< that are counted

/// A group whose count is no number has none.
int gunsOf(const clsGunGroup& group) try {
    return std::clamp(group.PseudoGunCount(), 0, mostGuns);
} catch (const KeshError&) {
    return 0;
}

/// Of all groups of each turret.
QHash<const clsTurret*, int> gunsByTurret(const clsShip& ship) {
    QHash<const clsTurret*, int> guns;
    for (const auto& group : ship.GunGroups()) {
        int& sum = guns[group->turret().get()];
        sum = std::min(sum + gunsOf(*group), mostGuns);
    }
    return guns;
}

QLabel* label(const char* name, const QString& text, QWidget* buddy, QWidget* parent) {
    auto* made = new QLabel(text, parent);
    made->setObjectName(QString::fromLatin1(name));
    made->setBuddy(buddy);
    return made;
}

} // namespace

ShipTurretTab::ShipTurretTab(RecordPanel& Panel, const clsCockpitParser& Cockpits)
    : QWidget(&Panel), m_panel(Panel), m_cockpits(Cockpits) {
    BuildControls();
    for (TextRowsView* view : {m_turrets, m_cockpit})
        m_panel.OfferGoTo(*view, [this] { return CockpitAddress(); });
    const auto on = [this](auto signal, void (ShipTurretTab::*work)()) {
        connect(m_turrets, signal, this,
                [this, work] { m_panel.HandleKey([&] { (this->*work)(); }); });
    };
    on(&TextRowsView::Selected, &ShipTurretTab::ShowCockpit);
    on(&TextRowsView::Entered, &ShipTurretTab::EditTurret);
    on(&TextRowsView::AddAsked, &ShipTurretTab::AddTurret);
    on(&TextRowsView::RemoveAsked, &ShipTurretTab::RemoveTurret);
    connect(m_plan, &TurretPlan::Picked, m_turrets, &TextRowsView::SelectKey);
}

void ShipTurretTab::BuildControls() {
    m_plan = new TurretPlan(this);
    m_descriptors = label("lblTData", {}, nullptr, this);
    m_descriptors->setTextFormat(Qt::PlainText);
    m_descriptors->setTextInteractionFlags(Qt::TextSelectableByMouse);
    m_descriptors->setFocusPolicy(Qt::NoFocus);
    auto* upper = new FoldingSplitter("TurretSplitter", narrowTurrets, this);
    upper->addWidget(BuildLists());
    upper->addWidget(m_plan);
    upper->setStretchFactor(0, 1);
    auto* rows = new QVBoxLayout(this);
    rows->addWidget(upper, 3);
    rows->addWidget(BuildCockpits(), 1);
    rows->addWidget(new LabelPlace(*m_descriptors, this));
}

QWidget* ShipTurretTab::BuildLists() {
    auto* side = new QWidget(this);
    m_turrets = new TextRowsView("TurView", tr("Turrets"), side);
    m_turrets->SetColumns({tr("[offset]"), tr("Index"), tr("Turr. Idx"), tr("Body ID"),
                           tr("Path Idx"), tr("Type"), tr("Position")},
                          {9, 7, 9, 20, 9, 7, 14});
    auto* rows = new QVBoxLayout(side);
    rows->setContentsMargins({});
    rows->addWidget(label("lblTurrets", tr("Turrets"), m_turrets, side));
    rows->addWidget(m_turrets);
    return side;
}

QWidget* ShipTurretTab::BuildCockpits() {
    auto* part = new QWidget(this);
    m_cockpit = new TextRowsView("CockpView", tr("Cockpits (turrets)"), part);
    m_cockpit->SetColumns({tr("Cockpit idx"), tr("Cockpit name")}, {14, 30});
    auto* captions = new QHBoxLayout;
    captions->addWidget(label("lblCockp", tr("Cockpits (turrets)"), m_cockpit, part));
    captions->addStretch();
    captions->addWidget(
        label("lblCockpNote", tr("To modify turrets, open TCockpits file"), nullptr, part));
    auto* rows = new QVBoxLayout(part);
    rows->setContentsMargins({});
    rows->addLayout(captions);
    rows->addWidget(m_cockpit);
    return part;
}

void ShipTurretTab::OfferActions(const QList<QAction*>& Actions) {
    OfferInPopup(*m_turrets, Actions);
}

void ShipTurretTab::Show(std::shared_ptr<clsShip> Ship) {
    if (Ship != m_ship)
        m_turrets->SelectKey({});
    m_ship = std::move(Ship);
    try {
        FillTurrets();
        FillPlan();
    } catch (const std::exception& failure) {
        m_turrets->SetRows({}); // not those of another ship
        m_plan->SetTurrets({});
        m_panel.Say(tr("ucShip->ShowTurrets: Error while displaying turret data: ") + u'\n' +
                        ToScreen(failure.what()),
                    BoxIcon::Critical);
    }
    ShowDescriptors();
    ShowCockpit();
}

void ShipTurretTab::FillTurrets() {
    QList<TextRow> rows;
    if (m_ship)
        for (const auto& turret : m_ship->Turrets())
            rows.append({key(*turret), turretCells(*turret)});
    m_turrets->SetRows(std::move(rows));
}

void ShipTurretTab::FillPlan() {
    if (!m_ship)
        return m_plan->SetTurrets({});
    const auto guns = gunsByTurret(*m_ship);
    QList<PlanTurret> turrets;
    for (const auto& turret : m_ship->Turrets())
        turrets.append({key(*turret), placeOf(*turret), guns.value(turret.get()),
                        tr("%1: %2, %3")
                            .arg(turret->index())
                            .arg(ToScreen(turret->PositionName()), ToScreen(turret->BodyID()))});
    m_plan->SetTurrets(turrets);
}

void ShipTurretTab::ShowDescriptors() {
    QString text = tr("Turrets descriptor: ");
    const std::int32_t size = m_ship ? m_ship->size() : 0;
    const std::int32_t end = clsShip::SectionDescriptors + 2 * clsShip::MaxTurrets;
    for (std::int32_t i = clsShip::SectionDescriptors; i < std::min(end, size); ++i)
        text += ToScreen(m_ship->Object->ValueText(i)) + u';';
    m_descriptors->setText(text);
    m_descriptors->setToolTip(Qt::convertFromPlainText(text)); // it may be cut at the window's edge
}

void ShipTurretTab::ShowCockpit() {
    const auto turret = SelectedTurret();
    m_plan->SetSelected(m_turrets->SelectedKey());
    QList<TextRow> rows;
    if (turret && turret->HasDescriptor()) {
        const std::string type = keshobjects::spellValue(turret->DescriptorValue(typeValue));
        const auto index = turret->Type();
        const auto cockpit = index ? m_cockpits.FindIndex(*index) : nullptr;
        rows.append({QString::fromStdString(cockpit ? cockpit->key() : "?"),
                     {ToScreen(type), cockpit ? ToScreen(cockpit->Object->ObjectName())
                                              : tr("[cockpit not found]")}});
    }
    m_cockpit->SetRows(std::move(rows));
}

std::optional<RecordAddress> ShipTurretTab::CockpitAddress() const try {
    const auto turret = SelectedTurret();
    const auto index = turret && turret->HasDescriptor() ? turret->Type() : std::nullopt;
    const auto cockpit = index ? m_cockpits.FindIndex(*index) : nullptr;
    return cockpit ? std::optional(RecordAddress{"TCockpits", cockpit->Object->Index})
                   : std::nullopt;
} catch (const KeshError&) { // a descriptor that is no number
    return {};
}

std::shared_ptr<clsTurret> ShipTurretTab::SelectedTurret() const {
    return m_ship ? ItemOfKey(m_ship->Turrets(), m_turrets->SelectedKey()) : nullptr;
}

void ShipTurretTab::AddTurret() {
    if (!m_ship || m_panel.ReadOnly())
        return;
    if (m_ship->Turrets().size() >= mostTurrets) {
        m_panel.Say(tr("Maximum number of turrets is %1 (+ front gun)").arg(clsShip::MaxTurrets),
                    BoxIcon::Information);
        return;
    }
    frmTurretEdit dialog(this);
    dialog.FileEncoding = m_panel.FileEncoding();
    dialog.NewTurret(*m_ship, m_cockpits);
    if (dialog.ModalResult() != modal::Ok)
        return;
    Q_EMIT Changed(true);
    m_turrets->SelectKey(key(**std::ranges::max_element(
        m_ship->Turrets(), {}, [](const auto& turret) { return turret->Id(); })));
}

void ShipTurretTab::RemoveTurret() {
    const auto turret = SelectedTurret();
    if (!turret || m_panel.ReadOnly())
        return;
    if (m_ship->GetTurretIndex(*turret) < std::ssize(m_ship->Turrets())) {
        m_panel.Say(tr("You can only delete the last turret in the list."), BoxIcon::Exclamation);
        return;
    }
    const QString question = tr("Do you really want to delete the turret idx=%1 (position=%2) ?")
                                 .arg(turret->index())
                                 .arg(ToScreen(turret->PositionName()));
    if (!m_panel.Confirm(question))
        return;
    if (!m_ship->RemoveTurret(*turret))
        m_panel.Say(ToScreen(m_ship->GetLastError()), BoxIcon::Critical);
    Q_EMIT Changed(true);
}

void ShipTurretTab::EditTurret() {
    const auto turret = SelectedTurret();
    if (!turret || m_panel.ReadOnly())
        return;
    frmTurretEdit dialog(this);
    dialog.FileEncoding = m_panel.FileEncoding();
    dialog.ShowTurret(*turret, *m_ship, m_cockpits);
    if (dialog.ModalResult() != modal::Ok)
        return;
    Show(m_ship);
    Q_EMIT Changed(false);
}
