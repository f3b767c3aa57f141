// The controls of the job panel.
#include "txteditor/panels/ColumnLayout.h"
#include "txteditor/panels/EntryFilter.h"
#include "txteditor/panels/JobBoxes.h"
#include "txteditor/panels/JobShipBox.h"
#include "txteditor/panels/LabelPlace.h"
#include "txteditor/panels/PropertyView.h"
#include "txteditor/panels/TextRows.h"
#include "txteditor/panels/WareListViewer.h"
#include "txteditor/panels/ucJob.h"
#include "ui/Icons.h"

namespace {

using namespace jobtabs;

constexpr int summaryLines = 3;
constexpr int mostSummaryLines = 7;
constexpr int numberWidth = 12;   ///< characters
constexpr int equipmentLines = 6; ///< at least

/// A page that is scrolled where it does not fit.
QScrollArea* scrolled(QWidget* page) {
    auto* area = new QScrollArea;
    area->setWidgetResizable(true);
    area->setFrameShape(QFrame::NoFrame);
    area->setFocusPolicy(Qt::NoFocus); // it follows the focus of its controls
    area->setWidget(page);
    for (QWidget* shown : {page, area->viewport()})
        shown->setAutoFillBackground(false); // the tab's own shows
    return area;
}

QWidget* pageOf(std::initializer_list<QWidget*> groups, QWidget* page) {
    auto* rows = new QVBoxLayout(page);
    for (QWidget* group : groups)
        rows->addWidget(group);
    rows->addStretch();
    return scrolled(page);
}

QLabel* changingLabel(const char* name, QWidget* page) {
    auto* label = new QLabel(page);
    label->setObjectName(QString::fromLatin1(name));
    label->setTextFormat(Qt::PlainText);
    label->setTextInteractionFlags(Qt::TextSelectableByMouse);
    label->setFocusPolicy(Qt::NoFocus);
    return label;
}

} // namespace

ucJob::ucJob(QWidget* Parent) : RecordPanel(Parent) {
    BuildTabs();
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins({});
    layout->addWidget(m_tabs);
    UpdateEnabled();
    connect(m_tabs, &QTabWidget::currentChanged, this, &ucJob::ShowTab);
}

void ucJob::BuildTabs() {
    m_tabs = new QTabWidget(this);
    m_tabs->setObjectName(QStringLiteral("MainTab"));
    const std::pair<QWidget*, QString> tabs[] = {
        {BuildInfo(), tr("Info")},
        {BuildShip(), tr("Ship")},
        {BuildSector(), tr("Sector and placement")},
        {BuildWeapons(), tr("Weapons")},
        {BuildRace(), tr("Race")},
        {BuildWings(), tr("Wings")},
        {BuildWares(), tr("Ware list")},
    };
    for (const auto& [page, caption] : tabs) {
        m_tabs->addTab(page, caption);
        if (qobject_cast<QScrollArea*>(page))
            page->setAccessibleName(caption);
    }
    m_filled.fill(false, m_tabs->count());
}

JobBoxes* ucJob::AddBoxes(JobBoxes* Boxes) {
    connect(Boxes, &JobBoxes::Clicked, this, [this](qint32 field, bool on) {
        Change([=](clsTXTObject& job) { SetJobValue(job, field, on ? 1 : 0); });
    });
    m_boxes.append(Boxes);
    return Boxes;
}

QLineEdit* ucJob::AddEdit(const char* Name, std::int32_t Field, const QString& Tip,
                          const QString& Spoken, QWidget* Page) {
    auto* edit = new QLineEdit(Page);
    edit->setObjectName(QString::fromLatin1(Name));
    edit->setReadOnly(true);
    edit->setMaxLength(std::numeric_limits<int>::max());
    edit->setToolTip(Tip);
    edit->setAccessibleName(Spoken);
    edit->setFixedWidth(numberWidth * fontMetrics().averageCharWidth());
    new EntryFilter(edit, [this, Field] { EditField(Field); });
    m_edits.append({Field, edit});
    return edit;
}

QWidget* ucJob::BuildInfo() {
    auto* page = new QWidget(this);
    m_summary = changingLabel("lblSummary", page);
    m_summary->setWordWrap(true);
    m_summary->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    m_summary->setAccessibleName(tr("What the job does"));
    auto* rows = new QVBoxLayout(page);
    m_summaryPlace = new LabelPlace(*m_summary, page, summaryLines, mostSummaryLines);
    rows->addWidget(m_summaryPlace);
    m_fields = new PropertyView("PropView", *this, page);
    rows->addWidget(m_fields, 1);
    rows->addWidget(BuildShipName(page));
    return page;
}

QWidget* ucJob::BuildShipName(QWidget* Page) {
    auto* group = new QWidget(Page);
    QLineEdit* id = AddEdit("ShipNameIDEdit", jobfield::ShipName, tr("Double click to change"),
                            tr("ID of the ship's name"), group);
    m_shipName = changingLabel("lblShipName", group);
    auto* caption = new QLabel(tr("Ship name ID"), group);
    caption->setBuddy(id);
    auto* top = new QHBoxLayout;
    top->addWidget(caption);
    top->addWidget(id);
    top->addWidget(new LabelPlace(*m_shipName, group), 1);
    auto* rows = new QVBoxLayout(group);
    rows->setContentsMargins({});
    rows->addLayout(top);
    rows->addWidget(AddBoxes(new JobBoxes({&JobNameBoxes}, group)));
    return group;
}

QWidget* ucJob::BuildShip() {
    auto* page = new QWidget(this);
    m_ship = new JobShipBox(page);
    m_ship->setObjectName(QStringLiteral("cmbShipTypeID"));
    m_ship->setAccessibleName(tr("Ship"));
    m_ship->setToolTip(tr("Type a part of the name to find a ship"));
    connect(m_ship, &JobShipBox::Chosen, this, [this](const std::string& id) {
        Change([&](clsTXTObject& job) { SetJobValue(job, jobfield::Ship, id); });
    });
    auto* caption = new QLabel(tr("Ship"), page);
    caption->setBuddy(m_ship);
    auto* ship = new QWidget(page);
    auto* top = new QHBoxLayout(ship);
    top->setContentsMargins({});
    top->addWidget(caption);
    top->addWidget(m_ship, 1);
    auto* show = new QToolButton(ship);
    m_goToShip = OfferGoTo(*m_ship, [this] { return TargetOf(jobfield::Ship); });
    show->setDefaultAction(m_goToShip);
    show->setToolButtonStyle(Qt::ToolButtonIconOnly);
    top->addWidget(show);
    return pageOf({ship, AddBoxes(new JobBoxes({&JobClassBoxes}, page)),
                   AddBoxes(new JobBoxes({&JobShipRaceBoxes}, page)),
                   AddBoxes(new JobBoxes({&JobVariantBoxes}, page)), BuildRoles(page)},
                  page);
}

QWidget* ucJob::BuildRoles(QWidget* Page) {
    m_roleGroup = new QGroupBox(JobRoleBoxes.GroupTitle(), Page);
    m_roles = new QButtonGroup(m_roleGroup);
    auto* row = new ColumnLayout(m_roleGroup);
    for (std::int32_t place = 0; place < jobflags::Roles.Count; ++place) {
        auto* button = new QRadioButton(JobRoleBoxes.Caption(place), m_roleGroup);
        button->setObjectName(QString::fromLatin1(JobRoleBoxes.Name) + QString::number(place));
        button->setToolTip(JobFieldTip(nullptr, jobflags::Roles.First + place, true));
        m_roles->addButton(button, place);
        row->addWidget(button);
    }
    connect(m_roles, &QButtonGroup::idClicked, this, &ucJob::PickRole);
    return m_roleGroup;
}

QWidget* ucJob::BuildSector() {
    struct Row {
        const char* Name;
        std::int32_t Field;
        QString Caption;
    };
    const Row shown[] = {{"SectorXEdit", jobfield::SectorX, tr("Sector X")},
                         {"SectorYEdit", jobfield::SectorY, tr("Sector Y")},
                         {"ChanceDockedEdit", jobfield::Docked, tr("Chance ship docked")}};
    auto* page = new QWidget(this);
    auto* sector = AddBoxes(new JobBoxes({&JobSectorBoxes, &JobInvertedBox}, page));
    auto* place = new QWidget(page);
    auto* row = new ColumnLayout(place);
    row->setContentsMargins({});
    for (const auto& [name, field, caption] : shown) {
        auto* cell = new QWidget(place);
        auto* label = new QLabel(caption, cell);
        auto* edit = AddEdit(name, field, tr("Doubleclick to change"), caption, cell);
        label->setBuddy(edit);
        auto* pair = new QHBoxLayout(cell);
        pair->setContentsMargins({});
        pair->addWidget(label);
        pair->addWidget(edit);
        pair->addStretch();
        row->addWidget(cell);
    }
    return pageOf({sector, place, AddBoxes(new JobBoxes({&JobCreationBoxes}, page)),
                   AddBoxes(new JobBoxes({&JobVariousBoxes}, page))},
                  page);
}

QWidget* ucJob::BuildWeapons() {
    auto* page = new QWidget(this);
    m_equipment = new PropertyView("EquipView", *this, page);
    m_equipment->setMinimumHeight(equipmentLines * fontMetrics().lineSpacing());
    auto* rows = new QVBoxLayout(page);
    rows->addWidget(m_equipment, 1);
    rows->addWidget(AddBoxes(new JobBoxes({&JobAllowedBoxes, &JobDronesBox}, page)));
    rows->addWidget(AddBoxes(new JobBoxes({&JobForbiddenBoxes}, page)));
    return scrolled(page);
}

QWidget* ucJob::BuildRace() {
    auto* page = new QWidget(this);
    return pageOf({AddBoxes(new JobBoxes({&JobOwnerBoxes}, page))}, page);
}

QWidget* ucJob::BuildWings() {
    m_wingJobs = new TextRowsView("WingsView", tr("Jobs of the wing"), this);
    GoToAction* job = OfferGoTo(*m_wingJobs, [this]() -> std::optional<RecordAddress> {
        const QString number = m_wingJobs->SelectedKey();
        return number.isEmpty()
                   ? std::nullopt
                   : std::optional(RecordAddress{.File = "Jobs", .Name = number.toStdString()});
    });
    connect(m_wingJobs, &TextRowsView::Entered, job, &QAction::trigger);
    return m_wingJobs;
}

QWidget* ucJob::BuildWares() {
    m_wares = new WareListViewer(this);
    OfferGoTo(m_wares->View(), [this] { return WareOfRow(m_wares->View()); });
    connect(m_wares, &WareListViewer::Entered, this, [this] { EditField(jobfield::WareList); });
    return m_wares;
}

void ucJob::SetReadOnly(bool Value) {
    RecordPanel::SetReadOnly(Value);
    UpdateEnabled();
    ShowFields(); // what was being typed is given up
}

void ucJob::UpdateEnabled() {
    const bool changes = Job() && !ReadOnly();
    for (JobBoxes* boxes : m_boxes)
        boxes->setEnabled(changes);
    m_roleGroup->setEnabled(changes);
    m_ship->setEnabled(changes);
    for (const auto& [field, edit] : m_edits)
        edit->setEnabled(Job() != nullptr);
}
