// The controls of the ship panel.
#include "tdata/mdlKeshShips.h"
#include "txteditor/panels/EntryFilter.h"
#include "txteditor/panels/PropertyView.h"
#include "txteditor/panels/ShipGunTab.h"
#include "txteditor/panels/ShipTurretTab.h"
#include "txteditor/panels/WareListViewer.h"
#include "txteditor/panels/WeaponLists.h"
#include "txteditor/panels/ucShip.h"
#include "ui/Icons.h"
#include "ui/ListHelpers.h"

namespace {

using namespace shiptabs;

constexpr int descriptionLines = 4;

/// A button of the toolbar, on the tabs From to To.
struct Button {
    const char* Key;
    const char* Text;
    const char* Tip;
    int From;
    int To;
    bool Changes;
};
constexpr Button buttons[] = {
    {"showbody", QT_TRANSLATE_NOOP("ucShip", "Body"), QT_TRANSLATE_NOOP("ucShip", "Show Body"),
     Info, WeaponFields, false},
    {"showmodel", QT_TRANSLATE_NOOP("ucShip", "Model"), QT_TRANSLATE_NOOP("ucShip", "Show Model"),
     Info, WeaponFields, false},
    {"showcockpit", QT_TRANSLATE_NOOP("ucShip", "Cockpit"),
     QT_TRANSLATE_NOOP("ucShip", "Show Cockpit"), Info, WeaponFields, false},
    {"newturret", QT_TRANSLATE_NOOP("ucShip", "Add Turret"),
     QT_TRANSLATE_NOOP("ucShip", "Add a turret behind the last one (Ins in the list)"), Turrets,
     Turrets, true},
    {"delturret", QT_TRANSLATE_NOOP("ucShip", "Remove Turret"),
     QT_TRANSLATE_NOOP("ucShip", "Remove the last turret (Del in the list)"), Turrets, Turrets,
     true},
    {"newgun", QT_TRANSLATE_NOOP("ucShip", "Add Gun"),
     QT_TRANSLATE_NOOP("ucShip", "Add a gun to the selected group (Ins in the lists)"), Guns, Guns,
     true},
    {"delgun", QT_TRANSLATE_NOOP("ucShip", "Remove Gun"),
     QT_TRANSLATE_NOOP("ucShip", "Remove the last gun of the group (Del in the list)"), Guns, Guns,
     true},
};

} // namespace

ucShip::ucShip(QWidget* Parent) : RecordPanel(Parent) {
    BuildToolbar();
    BuildTabs();
    auto* rows = new QVBoxLayout(this);
    rows->setContentsMargins({});
    rows->addWidget(m_toolbar);
    rows->addWidget(m_tabs);
    UpdateToolbar();
    connect(m_tabs, &QTabWidget::currentChanged, this, [this] {
        UpdateToolbar();
        ShowTab();
    });
}

void ucShip::BuildToolbar() {
    m_toolbar = new QToolBar(tr("Ship"), this);
    m_toolbar->setObjectName(QStringLiteral("MainToolbar"));
    m_toolbar->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    for (const Button& button : buttons) {
        QAction* action = m_toolbar->addAction(ToolIcon(button.Key), tr(button.Text));
        action->setObjectName(QString::fromLatin1(button.Key));
        action->setToolTip(tr(button.Tip));
        m_actions.append(action);
    }
    m_toolbar->setMinimumHeight(m_toolbar->sizeHint().height()); // on tabs without a button too
}

void ucShip::BuildTabs() {
    m_tabs = new QTabWidget(this);
    m_tabs->setObjectName(QStringLiteral("MainTab"));
    m_turrets = new ShipTurretTab(*this, m_fields.Cockpits());
    m_guns = new ShipGunTab(*this);
    m_performance = new PropertyView("PerformanceView", *this, this);
    m_model = new PropertyView("ModelView", *this, this);
    m_weaponFields = new PropertyView("WeaponView", *this, this);
    BuildWeapons();
    const std::pair<QWidget*, QString> tabs[] = {
        {BuildInfo(), tr("Info")},
        {m_performance, tr("Performance")},
        {m_model, tr("Model")},
        {m_weaponFields, tr("Weapons")},
        {m_turrets, tr("Cockpits (turrets)")},
        {m_guns, tr("Guns")},
        {m_weapons[0].Lists, tr("Front lasers")},
        {m_weapons[1].Lists, tr("Missiles")},
        {BuildWares(), tr("Wares")},
    };
    for (const auto& [page, caption] : tabs)
        m_tabs->addTab(page, caption);
    m_filled.fill(false, m_tabs->count());
    ConnectActions();
}

QWidget* ucShip::BuildInfo() {
    auto* page = new QWidget(this);
    m_description = new QPlainTextEdit(page);
    m_description->setObjectName(QStringLiteral("DescEdit"));
    m_description->setAccessibleName(tr("Type and description"));
    m_description->setReadOnly(true);
    m_description->setTabChangesFocus(true);
    m_description->setFixedHeight((descriptionLines + 1) * fontMetrics().lineSpacing());
    m_info = new PropertyView("InfoView", *this, page);
    auto* rows = new QVBoxLayout(page);
    rows->addWidget(m_description);
    rows->addWidget(m_info);
    return page;
}

void ucShip::BuildWeapons() {
    const WeaponLists::Names names[] = {
        {"LaserView", "AvailLasView", "btnAddLaser", "btnRemoveLaser", tr("Compatible lasers"),
         tr("Available lasers")},
        {"MslView", "AvailMslView", "btnAddMsl", "btnRemoveMsl", tr("Compatible missiles"),
         tr("Available missiles")},
    };
    for (std::size_t i = 0; i < m_weapons.size(); ++i) {
        Weapons& kind = m_weapons[i];
        kind.Lists = new WeaponLists(names[i], this);
        connect(kind.Lists, &WeaponLists::MaskChanged, this,
                [this, &kind](quint32 mask) { MoveWeapons(kind, mask); });
    }
}

QWidget* ucShip::BuildWares() {
    auto* page = new QWidget(this);
    m_wareListId = new QLineEdit(page);
    m_wareListId->setObjectName(QStringLiteral("WareListIDEdit"));
    m_wareListId->setReadOnly(true);
    new EntryFilter(m_wareListId, [this] { EditWareList(); });
    auto* caption = new QLabel(tr("Ware List ID"), page);
    caption->setBuddy(m_wareListId);
    m_wares = new WareListViewer(page);
    connect(m_wares, &WareListViewer::Entered, this, &ucShip::EditWareList);
    OfferGoTo(m_wares->View(), [this] { return WareOfRow(m_wares->View()); });
    OfferGoTo(*m_wareListId, [this] { return TargetOf(shipfield::WareList); });
    auto* top = new QHBoxLayout;
    top->addWidget(caption);
    top->addWidget(m_wareListId);
    top->addWidget(new QLabel(tr("(doubleclick to change)"), page));
    top->addStretch();
    auto* rows = new QVBoxLayout(page);
    rows->addLayout(top);
    rows->addWidget(m_wares);
    return page;
}

void ucShip::ConnectActions() {
    const auto body = [this](std::int32_t field) { return [this, field] { ShowBody(field); }; };
    const std::function<void()> works[] = {body(shipfield::Body),
                                           body(shipfield::Scene),
                                           body(shipfield::Cockpit),
                                           [this] { m_turrets->AddTurret(); },
                                           [this] { m_turrets->RemoveTurret(); },
                                           [this] { m_guns->AddGun(); },
                                           [this] { m_guns->RemoveGun(); }};
    static_assert(std::size(works) == std::size(buttons));
    for (qsizetype i = 0; i < m_actions.size(); ++i)
        connect(m_actions[i], &QAction::triggered, this,
                [this, work = works[i]] { RunAction(work); });
    for (PropertyView* view : {m_info, m_performance, m_model, m_weaponFields})
        OfferInPopup(*view, m_actions.mid(0, 3));
    m_turrets->OfferActions(m_actions.mid(3, 2));
    m_guns->OfferActions(m_actions.mid(5, 2));
    connect(m_turrets, &ShipTurretTab::Changed, this, &ucShip::OnShipChanged);
    connect(m_guns, &ShipGunTab::Changed, this, [this] { OnShipChanged(false); });
}

void ucShip::UpdateToolbar() {
    const int tab = m_tabs->currentIndex();
    for (qsizetype i = 0; i < m_actions.size(); ++i) {
        const Button& button = buttons[i];
        const bool here = tab >= button.From && tab <= button.To;
        m_actions[i]->setVisible(here && (!button.Changes || (m_ship && !ReadOnly())));
        m_actions[i]->setEnabled(m_ship != nullptr);
    }
}

void ucShip::SetReadOnly(bool Value) {
    RecordPanel::SetReadOnly(Value);
    for (const Weapons& kind : m_weapons)
        kind.Lists->SetReadOnly(Value);
    UpdateToolbar();
}
