#include "txteditor/panels/ucTurret.h"

#include "tdata/clsArchive.h"
#include "tdata/mdlKeshConst.h"
#include "tdata/mdlKeshShips.h"
#include "txteditor/panels/PropertyView.h"

namespace {

constexpr std::int32_t sceneField = 7;
constexpr std::int32_t laserField = 8;
constexpr std::int32_t shownFields[] = {sceneField, laserField};

WeaponLists* newWeaponLists(QWidget* parent) {
    return new WeaponLists({"LaserView", "AvailView", "btnAddLaser", "btnRemoveLaser",
                            ucTurret::tr("Compatible lasers"), ucTurret::tr("Available lasers"),
                            "Label1", "lblAvailLasers"},
                           parent);
}

} // namespace

ucTurret::ucTurret(QWidget* Parent)
    : RecordPanel(Parent),
      m_tab(new QTabWidget(this)),
      m_fields(new PropertyView("PropView", *this, m_tab)),
      m_weapons(newWeaponLists(m_tab)) {
    m_tab->setObjectName(QStringLiteral("MainTab"));
    m_tab->addTab(m_fields, tr("Info"));
    m_tab->addTab(m_weapons, tr("Lasers"));
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins({});
    layout->addWidget(m_tab);
    connect(m_tab, &QTabWidget::currentChanged, this, &ucTurret::ShowLasers);
    connect(m_weapons, &WeaponLists::MaskChanged, this,
            [this](std::uint32_t mask) { HandleKey([=, this] { TakeMask(mask); }); });
}

void ucTurret::SetReadOnly(bool Value) {
    RecordPanel::SetReadOnly(Value);
    m_weapons->SetReadOnly(Value);
}

// The file

bool ucTurret::LornQueryInterface(std::int32_t OType) const {
    return OType == otype::Cockpits;
}

bool ucTurret::Init(clsTxtParser& Parser) {
    if (!std::exchange(m_lasersSought, true))
        m_lasers = GameFileOf(ObjectTypeKeyOf(otype::Laser));
    m_rows.clear();
    if (m_lasers)
        m_rows = WeaponLists::RowsOf(
            WeaponSlots(*m_lasers, LaserSubtypes, Parser.Version() >= FirstSymbolicShips));
    const bool taken = RecordPanel::Init(Parser);
    RefreshViews();
    return taken;
}

std::string ucTurret::ObjectTypeName(std::int32_t OType) const {
    return LornQueryInterface(OType) ? tr("Turrets").toStdString() : std::string();
}

std::string ucTurret::PageName(std::int32_t) const {
    return tr("Turret info").toStdString();
}

std::int32_t ucTurret::LornQueryInfo(std::int32_t) const {
    return panelinfo::HasNames;
}

RecordPtr ucTurret::CreateObject(std::int32_t OType, clsTxtParser& Parser,
                                 const RecordPtr& Before) {
    if (!LornQueryInterface(OType)) {
        SetLastError(tr("These are no turrets.").toStdString());
        return {};
    }
    RecordPtr made = Parser.CreateObjectBefore(Before);
    made->Construct(ObjectSize(OType));
    return made;
}

bool ucTurret::LornTranslateValueBack(const RecordPtr&, std::string& Text, std::int32_t,
                                      KeshValue& Value) {
    const auto number = keshobjects::readNumber(Text);
    if (number)
        Value = *number;
    return number.has_value();
}

// The record on view

void ucTurret::ShowObject(const RecordPtr& Object, std::int32_t) {
    SetCurrentObject(Object);
    RefreshViews();
}

void ucTurret::RefreshViews() {
    QList<PropertyRow> rows;
    if (CurrentObject()) {
        rows = RowsOf(shownFields);
        rows.prepend(IdRow());
    }
    m_fields->SetRows(std::move(rows));
    ShowLasers();
}

void ucTurret::ShowLasers() {
    if (m_tab->currentWidget() != m_weapons)
        return;
    m_weapons->Show(m_rows,
                    CurrentObject() ? ReadMask(*CurrentObject(), laserField) : std::nullopt);
}

void ucTurret::TakeMask(std::uint32_t Mask) {
    const RecordPtr changed = CurrentObject();
    changed->SetValue(laserField, MaskValue(Mask));
    RefreshViews();
    Q_EMIT OnObjectChanged(changed);
}
