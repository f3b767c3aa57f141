#include "txteditor/panels/ShipGunTab.h"

#include "tdata/clsGun.h"
#include "tdata/clsGunGroup.h"
#include "tdata/clsTurret.h"
#include "txteditor/panels/RecordPanel.h"
#include "txteditor/panels/TextRows.h"
#include "txteditor/panels/frmGunEdit.h"
#include "ui/ListHelpers.h"
#include "ui/ModalResult.h"

namespace {

QStringList groupCells(const clsGunGroup& group) {
    QStringList cells{QString::number(group.Offset())};
    for (std::int32_t i = 0; i < clsGunGroup::size(); ++i)
        cells.append(QString::number(group.Value(i)));
    const auto turret = group.turret();
    cells.append(turret ? ToScreen(turret->PositionName()) : QString());
    return cells;
}

QStringList gunCells(const clsGun& gun, bool debugging) {
    QStringList cells;
    if (debugging)
        cells.append(QString::number(gun.Offset()));
    for (std::int32_t i = 0; i < clsGun::size(); ++i)
        cells.append(ToScreen(keshobjects::spellValue(gun.Value(i))));
    return cells;
}

} // namespace

ShipGunTab::ShipGunTab(RecordPanel& Panel) : QWidget(&Panel), m_panel(Panel) {
    BuildControls();
    SetGunColumns();
    connect(m_groups, &TextRowsView::Selected, this, &ShipGunTab::FillGuns);
    const auto on = [this](TextRowsView* view, auto signal, void (ShipGunTab::*work)()) {
        connect(view, signal, this, [this, work] { m_panel.HandleKey([&] { (this->*work)(); }); });
    };
    on(m_groups, &TextRowsView::AddAsked, &ShipGunTab::AddGun);
    on(m_guns, &TextRowsView::Entered, &ShipGunTab::EditGun);
    on(m_guns, &TextRowsView::AddAsked, &ShipGunTab::AddGun);
    on(m_guns, &TextRowsView::RemoveAsked, &ShipGunTab::RemoveGun);
    connect(m_views[1], &QRadioButton::toggled, this, [this] {
        const QString selected = m_guns->SelectedKey();
        SetGunColumns();
        FillGuns();
        m_guns->SelectKey(selected);
    });
}

void ShipGunTab::BuildControls() {
    auto* parts = new QSplitter(Qt::Vertical, this);
    parts->setObjectName(QStringLiteral("GunSplitter"));
    parts->setChildrenCollapsible(false);
    parts->addWidget(BuildGroups());
    parts->addWidget(BuildGuns());
    auto* rows = new QVBoxLayout(this);
    rows->addWidget(parts);
}

QWidget* ShipGunTab::BuildGroups() {
    auto* part = new QWidget(this);
    m_groups = new TextRowsView("GunGroupView", tr("Gun groups"), part);
    m_groups->SetColumns({tr("[offset]"), tr("Init gun idx"), tr("# of guns"), tr("Index"),
                          tr("Gun entries"), tr("Position")},
                         {9, 13, 11, 8, 12, 14});
    auto* caption = new QLabel(tr("Gun groups"), part);
    caption->setBuddy(m_groups);
    auto* rows = new QVBoxLayout(part);
    rows->setContentsMargins({});
    rows->addWidget(caption);
    rows->addWidget(m_groups);
    return part;
}

QWidget* ShipGunTab::BuildGuns() {
    auto* part = new QWidget(this);
    m_guns = new TextRowsView("GunView", tr("Guns in turret"), part);
    auto* caption = new QLabel(tr("Guns in turret"), part);
    caption->setObjectName(QStringLiteral("lblGuns"));
    caption->setBuddy(m_guns);
    const QStringList texts{tr("User View"), tr("Debug View")};
    auto* top = new QHBoxLayout;
    top->addWidget(caption);
    top->addStretch();
    for (std::size_t i = 0; i < m_views.size(); ++i) {
        m_views[i] = new QRadioButton(texts[static_cast<qsizetype>(i)], part);
        m_views[i]->setObjectName(QStringLiteral("rbGunView%1").arg(i));
        top->addWidget(m_views[i]);
    }
    m_views[0]->setToolTip(tr("Show the guns without their offsets"));
    m_views[1]->setToolTip(tr("Show the guns with their offsets in the record"));
    m_views[0]->setChecked(true);
    auto* rows = new QVBoxLayout(part);
    rows->setContentsMargins({});
    rows->addLayout(top);
    rows->addWidget(m_guns);
    return part;
}

void ShipGunTab::SetGunColumns() {
    if (Debugging())
        m_guns->SetColumns({tr("[offset]"), tr("Gun Index"), tr("Gun Count"), tr("Body ID"),
                            tr("Path Idx"), tr("Body ID (2)"), tr("Path Idx (2)")},
                           {9, 11, 11, 18, 9, 18, 12});
    else
        m_guns->SetColumns(
            {tr("#"), tr("Count"), tr("Body ID (1)"), tr("P Idx"), tr("Body ID (2)"), tr("P Idx")},
            {6, 8, 20, 8, 20, 8});
}

void ShipGunTab::OfferActions(const QList<QAction*>& Actions) {
    for (TextRowsView* view : {m_groups, m_guns})
        OfferInPopup(*view, Actions);
}

void ShipGunTab::Show(std::shared_ptr<clsShip> Ship) {
    if (Ship != m_ship)
        m_groups->SelectKey({});
    m_ship = std::move(Ship);
    try {
        FillGroups();
    } catch (const std::exception&) {
        m_groups->SetRows({}); // not those of another ship
        m_panel.Say(tr("Error loading ship data."), BoxIcon::Critical);
    }
    FillGuns();
}

void ShipGunTab::FillGroups() {
    QList<TextRow> rows;
    if (m_ship)
        for (const auto& group : m_ship->GunGroups())
            rows.append({QString::fromStdString(group->key()), groupCells(*group)});
    m_groups->SetRows(std::move(rows));
}

void ShipGunTab::FillGuns() {
    QList<TextRow> rows;
    try {
        if (const auto group = SelectedGunGroup())
            for (const auto& gun : group->Guns())
                rows.append({QString::fromStdString(gun->key()), gunCells(*gun, Debugging())});
    } catch (const std::exception& failure) {
        m_panel.Say(tr("ucShip->ShowGuns: Error while displaying gun data:") + u'\n' +
                        ToScreen(failure.what()),
                    BoxIcon::Critical);
    }
    m_guns->SetRows(std::move(rows));
}

std::shared_ptr<clsGunGroup> ShipGunTab::SelectedGunGroup() const {
    return m_ship ? ItemOfKey(m_ship->GunGroups(), m_groups->SelectedKey()) : nullptr;
}

std::shared_ptr<clsGun> ShipGunTab::SelectedGun() const {
    const auto group = SelectedGunGroup();
    return group ? ItemOfKey(group->Guns(), m_guns->SelectedKey()) : nullptr;
}

void ShipGunTab::GunsChanged() {
    Q_EMIT Changed();
    Show(m_ship);
}

void ShipGunTab::AddGun() {
    if (!m_ship || m_panel.ReadOnly())
        return;
    const auto group = SelectedGunGroup();
    if (!group) {
        if (m_ship->Turrets().empty())
            m_panel.Say(tr("There are no turrets on this ship. You must first create a turret with "
                           "Add Turret button."),
                        BoxIcon::Information);
        return;
    }
    frmGunEdit dialog(this);
    dialog.FileEncoding = m_panel.FileEncoding();
    dialog.NewGun(*group);
    if (dialog.ModalResult() != modal::Ok)
        return;
    GunsChanged();
    m_guns->SelectKey(QString::fromStdString(group->Guns().back()->key()));
}

void ShipGunTab::RemoveGun() {
    const auto group = SelectedGunGroup();
    const auto gun = SelectedGun();
    if (!gun || m_panel.ReadOnly())
        return;
    if (group->GetGunIndex(*gun) < std::ssize(group->Guns())) {
        m_panel.Say(tr("You can only delete the last gun in the list."), BoxIcon::Exclamation);
        return;
    }
    const QString question = tr("Do you really want to delete the gun idx=%1?").arg(gun->index());
    if (!m_panel.Confirm(question))
        return;
    group->RemoveGun(*gun);
    GunsChanged();
}

void ShipGunTab::EditGun() {
    const auto group = SelectedGunGroup();
    const auto gun = SelectedGun();
    if (!gun || m_panel.ReadOnly())
        return;
    frmGunEdit dialog(this);
    dialog.FileEncoding = m_panel.FileEncoding();
    dialog.ShowGun(*gun, *group);
    if (dialog.ModalResult() == modal::Ok)
        GunsChanged();
}
