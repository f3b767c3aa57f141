#include "txteditor/panels/ucShip.h"

#include "core/mdlComFunctions.h"
#include "core/mdlCommon.h"
#include "tdata/RecordNames.h"
#include "tdata/ShipExport.h"
#include "tdata/mdlKeshConst.h"
#include "tdata/mdlKeshShips.h"
#include "textres/ResourceText.h"
#include "txteditor/ExportObjectToViewer.h"
#include "txteditor/panels/ExportFile.h"
#include "txteditor/panels/PropertyView.h"
#include "txteditor/panels/ShipGunTab.h"
#include "txteditor/panels/ShipTurretTab.h"
#include "txteditor/panels/WareListViewer.h"
#include "txteditor/panels/WeaponLists.h"

#include <algorithm>

namespace {

using namespace shiptabs;

// What each tab shows, in its order.
constexpr std::int32_t infoFields[] = {5, 52, 45, 44, 28, 29, 43, 50, 6};
constexpr std::int32_t performanceFields[] = {2, 3, 4, 7, 8, 51, 26, 27, 13, 46, 10};
constexpr std::int32_t modelFields[] = {16, 17, 11, 12, 9, 14, 15, 47, 48, 49, 1, 0};
constexpr std::int32_t weaponFields[] = {22, 23, 20, 21, 25, 19, 53};
constexpr std::int32_t weaponMasks[] = {18, 24};

/// The text of an ID in the text resources, or that it cannot be had.
QString descriptionOf(const clsTXTObject& ship) {
    const auto id =
        ship.size() > CommonNameField ? ship.ValueInteger(CommonNameField) : std::nullopt;
    if (!id || !DescServer)
        return ucShip::tr("[Error getting description]");
    return ToScreen(DescServer->GetStringDirect(ObjectNamePage, *id));
}

} // namespace

// The file

bool ucShip::LornQueryInterface(std::int32_t OType) const {
    return OType == otype::Ships;
}

bool ucShip::Init(clsTxtParser& Parser) {
    m_fields.LoadFiles();
    m_fields.SetVersion(Parser.Version());
    m_ship.reset();
    m_reported.clear();
    auto& [lasers, missiles] = m_weapons;
    lasers.Slots = WeaponSlots(m_fields.Lasers(), *lasers.Subtypes, m_fields.Symbolic());
    missiles.Slots = WeaponSlots(m_fields.Missiles(), *missiles.Subtypes, m_fields.Symbolic());
    m_ships = std::make_unique<clsShipParser>();
    return RecordPanel::Init(Parser) &&
           (m_ships->Load(Parser) || SetLastError(m_ships->GetLastError()));
}

std::string ucShip::ObjectTypeName(std::int32_t OType) const {
    if (OType != otype::Ships)
        return {};
    return "Ships v." + std::to_string(Parser() ? Parser()->Version() : 0);
}

std::string ucShip::PageName(std::int32_t OType) const {
    return OType == otype::Ships ? tr("Ship info").toStdString() : std::string();
}

std::int32_t ucShip::LornQueryInfo(std::int32_t OType) const {
    return OType == otype::Ships ? panelinfo::HasNames | panelinfo::HasRaces | panelinfo::HasClasses
                                 : 0;
}

bool ucShip::Validate(std::string& Text) {
    m_reported.clear();
    for (const auto& [id, ship] : m_ships->Ships()) {
        if (ship->Validate())
            continue;
        const std::string head = "Ship index " + std::to_string(ship->Object->Index) + ", name \"" +
                                 std::string(ship->Object->ObjectName()) + "\":";
        m_reported.insert(ToScreen(head), ship->Object);
        AppendLine(Text, head, "\r\n");
        AppendLine(Text, Finding(*ship), "\r\n");
    }
    if (m_reported.isEmpty())
        return true;
    Text +=
        "\r\n\r\nData in file " + BaseName(Parser()->FileName, false) + " are probably corrupted.";
    return false;
}

/// Why a ship is not valid, and what it counts.
std::string ucShip::Finding(clsShip& Ship) const try {
    return Ship.GetLastError() +
           "\r\nSection numbers in file: turrets: " + std::to_string(Ship.TurretCount()) +
           ", gun groups: " + std::to_string(Ship.GunSectionsCount()) +
           ", guns: " + std::to_string(Ship.GunCount()) + ".";
} catch (const KeshError&) { // a count that is no number
    return Ship.GetLastError();
}

RecordPtr ucShip::ReportedObject(const QString& Line) const {
    return m_reported.value(Line);
}

bool ucShip::KeshExportData(QWidget* Owner) {
    constexpr std::size_t longExport = 10'000; // ships
    ExportRequest request;
    request.Title = tr("Export TShips");
    request.Filter = tr("Semicolon delimeted file (*.txt)|*.txt|Record structure (*.txt)|*.txt");
    request.Kind = "TE export";
    request.Overwriting = tr("The ships would be lost: an export cannot be loaded again.");
    request.LongWork = Parser()->ByIndex().size() > longExport;
    request.Write = [this](std::int32_t file, int filter) {
        std::string error;
        const auto form = filter == 2 ? ExportForm::Records : ExportForm::Table;
        static_cast<void>(ExportShips(file, *Parser(), m_fields, form, error));
        return error;
    };
    return ExportFile(Owner, *Parser(), request);
}

// Rows of the record list

std::string ucShip::GetClass(const RecordPtr& Object) const {
    return m_fields.Class(*Object);
}

std::string ucShip::GetRace(const RecordPtr& Object) const {
    return m_fields.Race(*Object);
}

std::string ucShip::GetResourceName(const RecordPtr& Object) const {
    return m_fields.ResourceName(*Object);
}

// The file's records

std::shared_ptr<clsShip> ucShip::ShipOf(const RecordPtr& Object) const {
    return Object && m_ships ? m_ships->Find(Object->ID) : nullptr;
}

RecordPtr ucShip::CreateObject(std::int32_t OType, clsTxtParser& Parser, const RecordPtr& Before) {
    if (OType != otype::Ships) {
        SetLastError("Invalid object type.");
        return {};
    }
    RecordPtr made = Parser.CreateObjectBefore(Before);
    const auto ship = m_ships->CreateShip(made);
    ship->Construct();
    if (!ship->LoadObjects())
        SetLastError(ship->GetLastError());
    return made;
}

bool ucShip::InitObject(const RecordPtr& Object) {
    const auto ship = ShipOf(Object);
    if (!ship)
        return false;
    if (!ship->LoadObjects())
        SetLastError(ship->GetLastError());
    return true;
}

bool ucShip::RemoveObject(const RecordPtr& Object) {
    return Object && m_ships->RemoveShip(Object->key());
}

void ucShip::ObjectReset(const RecordPtr& Object) {
    static_cast<void>(InitObject(Object));
    if (m_ship && Object == m_ship->Object)
        RefreshViews();
}

void ucShip::RestoreObject(const RecordPtr& Object) {
    const auto ship = m_ships->CreateShip(Object);
    static_cast<void>(InitObject(Object));
    if (!m_ship || m_ship->Object != Object)
        return;
    m_ship = ship;
    RefreshViews();
}

// Fields

bool ucShip::KeepsCounts(std::int32_t Field) const {
    if (Field == clsShip::FieldTurretCount || Field == clsShip::FieldGunCount)
        return true;
    try {
        return m_ship && Field == m_ship->GGCountOffset();
    } catch (const KeshError&) {
        return false;
    }
}

bool ucShip::MayEdit(std::int32_t Field) {
    if (!KeepsCounts(Field))
        return true;
    const QString question = tr("Warning:\nManually modifying this value can corrupt ship data.\n"
                                "This value is altered automatically by the editor.\n\n"
                                "Do you really want to modify it?");
    const MessageRequest request{ProgramName(), question, BoxIcon::Exclamation, BoxButtons::YesNo,
                                 true};
    return Ui().ShowMessage(this, request) == Answer::Yes;
}

bool ucShip::FollowEdit(std::int32_t Field) {
    if (KeepsCounts(Field)) {
        static_cast<void>(m_ship->LoadObjects()); // the views show what it says now
        m_filled[Turrets] = m_filled[Guns] = false;
    }
    if (Field == shipfield::CargoMax)
        return LetCargoFollow(shipfield::CargoMax, shipfield::CargoMin);
    return Field == shipfield::CargoMin && LetCargoFollow(shipfield::CargoMin, shipfield::CargoMax);
}

/// The least cargo is never above the most.
bool ucShip::LetCargoFollow(std::int32_t Changed, std::int32_t Follower) {
    const RecordPtr& ship = CurrentObject();
    const auto least = ship->ValueNumber(shipfield::CargoMin);
    const auto most = ship->ValueNumber(shipfield::CargoMax);
    if (!least || !most || *least <= *most)
        return false;
    ship->SetValue(Follower, ship->Value(Changed));
    Say(tr("\"%1\" was modified to be equal to new \"%2\" value.")
            .arg(ToScreen(LornGetPropertyName(ship, Follower)),
                 ToScreen(LornGetPropertyName(ship, Changed))),
        BoxIcon::Information);
    return true;
}

// The ship on view

void ucShip::ShowObject(const RecordPtr& Object, std::int32_t) {
    m_ship = ShipOf(Object);
    SetCurrentObject(m_ship ? Object : nullptr);
    UpdateToolbar();
    RefreshViews();
}

QString ucShip::RowText(const QString& Translated, const QString&) const {
    return Translated;
}

void ucShip::RefreshViews() {
    m_filled.fill(false);
    FillTab(m_tabs->currentIndex());
}

void ucShip::ShowTab() {
    try {
        FillTab(m_tabs->currentIndex());
    } catch (const std::exception& failure) {
        Say(tr("Error showing object: ") + ToScreen(failure.what()), BoxIcon::Critical);
    }
}

void ucShip::FillTab(int Tab) {
    if (std::exchange(m_filled[Tab], true))
        return;
    switch (Tab) {
    case Info:
        return FillInfo();
    case Performance:
        return FillPerformance();
    case Model:
        return m_model->SetRows(RowsOf(modelFields));
    case WeaponFields:
        return FillWeaponFields();
    case Turrets:
        return m_turrets->Show(m_ship);
    case Guns:
        return m_guns->Show(m_ship);
    case Lasers:
    case Missiles:
        return FillWeapons(m_weapons.at(static_cast<std::size_t>(Tab - Lasers)));
    default:
        return FillWares();
    }
}

void ucShip::FillInfo() {
    if (!CurrentObject()) {
        m_description->clear();
        m_info->SetRows({});
        return;
    }
    const clsTXTObject& ship = *CurrentObject();
    const KeshValue type =
        ship.size() > shipfield::Type ? ship.Value(shipfield::Type) : KeshValue();
    m_description->setPlainText(tr("Ship type: ") +
                                ToScreen(GetShipTypeName(type, m_fields.Version(), false)) + u'\n' +
                                tr("Description: ") + descriptionOf(ship));
    QList<PropertyRow> rows;
    if (ship.size() > 0)
        rows = QList<PropertyRow>{IdRow()} + RowsOf(infoFields);
    for (std::int32_t i = std::max(ship.size() - CommonTailCount, 0); i <= ship.size() - 2; ++i)
        rows.append(RowOf(i));
    m_info->SetRows(std::move(rows));
}

void ucShip::FillPerformance() {
    QList<PropertyRow> rows = RowsOf(performanceFields);
    if (rows.isEmpty()) {
        m_performance->SetRows({});
        return;
    }
    rows.append({PropertyRow::Computed, tr("Max recharge time"), {}});
    m_performance->SetRows(rows);
    rows.back().Value = ToScreen(m_fields.RechargeTime(*CurrentObject())); // may fail
    m_performance->SetRows(std::move(rows));
}

void ucShip::FillWeaponFields() {
    QList<PropertyRow> rows = RowsOf(weaponFields);
    try {
        if (m_ship) {
            rows.append(RowOf(m_ship->GGCountOffset()));
            rows.back().Name = tr("Gun group count");
        }
    } catch (const KeshError&) { // the count of turrets leads out of the record
    }
    m_weaponFields->SetRows(rows + RowsOf(weaponMasks));
}

void ucShip::FillWeapons(const Weapons& Kind) {
    const bool has = CurrentObject() && CurrentObject()->size() > Kind.Field;
    Kind.Lists->Show(has ? WeaponLists::RowsOf(Kind.Slots) : QList<WeaponLists::Row>(),
                     has ? ReadMask(*CurrentObject(), Kind.Field) : std::nullopt);
}

void ucShip::FillWares() {
    const bool has = CurrentObject() && CurrentObject()->size() > shipfield::WareList;
    m_wareListId->setText(has ? ToScreen(CurrentObject()->ValueText(shipfield::WareList))
                              : QString());
    if (!has)
        m_wares->Clear();
    else
        m_wares->ShowWareList(CurrentObject()->ValueInteger(shipfield::WareList).value_or(-1),
                              m_wareListId->text());
}

void ucShip::MoveWeapons(const Weapons& Kind, std::uint32_t Mask) {
    HandleKey([&] {
        if (ReadOnly() || !CurrentObject())
            return;
        CurrentObject()->SetValue(Kind.Field, MaskValue(Mask));
        m_filled[WeaponFields] = false;
        Q_EMIT OnObjectChanged(CurrentObject());
    });
}

void ucShip::OnShipChanged(bool Structure) {
    Q_EMIT OnObjectChanged(CurrentObject());
    const int shown = m_tabs->currentIndex();
    m_filled.fill(false);
    if (!Structure)
        m_filled[shown] = true;
    FillTab(shown);
}

void ucShip::EditWareList() {
    if (CurrentObject() && CurrentObject()->size() > shipfield::WareList)
        EditField(shipfield::WareList);
}

void ucShip::ShowBody(std::int32_t Field) {
    if (CurrentObject())
        ExportObjectToViewer(this, *CurrentObject(), Field, Field != shipfield::Body);
}
