#include "txteditor/panels/ucWare.h"

#include "core/mdlComFunctions.h"
#include "tdata/FieldLookup.h"
#include "tdata/RecordExport.h"
#include "tdata/WeaponSlots.h"
#include "tdata/clsWare.h"
#include "tdata/mdlKeshConst.h"
#include "textres/ResourceText.h"
#include "txteditor/panels/ExportFile.h"
#include "txteditor/panels/FlagBoxes.h"
#include "txteditor/panels/GamePicture.h"
#include "txteditor/panels/PropertyView.h"
#include "txteditor/panels/WareFlags.h"
#include "ui/ColorEdit.h"
#include "ui/frmColorEdit.h"

#include <algorithm>
#include <limits>

namespace {

constexpr std::int32_t nameField = 6;
constexpr std::int32_t namesPage = 17; ///< of the text resources
constexpr std::int32_t supportedNebula = 14;

/// What a panel of a type is called; the type's key where it has no title.
std::string titleOf(std::int32_t type) {
    for (const ObjectTypeKey& key : ObjectTypeKeys())
        if (key.Code == type)
            return std::string(key.PanelTitle.empty() ? key.Key.substr(1) : key.PanelTitle);
    return {};
}

} // namespace

// The file

bool ucWare::LornQueryInterface(std::int32_t OType) const {
    return OType >= otype::Shields && OType <= otype::Factories;
}

bool ucWare::LornQueryInterfaceEx(std::int32_t& OType) {
    if (!HasWareRows(OType))
        return false;
    Prepare(OType);
    return true;
}

void ucWare::Prepare(std::int32_t OType) {
    m_fields.LoadFiles(OType);
    if (IconField(OType) >= 0 && m_picture.isNull())
        m_picture = LoadGamePicture(m_fields.Icons().Picture());
    m_flags->SetFlags(WareFlagsOf(OType).Flags);
    BuildToolbar(OType);
}

bool ucWare::Init(clsTxtParser& Parser) {
    m_fields.SetFile(Parser.otype(), Parser.Version());
    return RecordPanel::Init(Parser);
}

std::string ucWare::ObjectTypeName(std::int32_t OType) const {
    if (!HasWareRows(OType))
        return {};
    return titleOf(OType) + " v." + std::to_string(Parser() ? Parser()->Version() : 0);
}

std::string ucWare::PageName(std::int32_t OType) const {
    std::string title = titleOf(OType);
    if (title.ends_with('s'))
        title.pop_back();
    return title + " info";
}

std::int32_t ucWare::LornQueryInfo(std::int32_t OType) const {
    switch (OType) {
    case otype::Factories:
        return panelinfo::HasNames | panelinfo::HasRaces;
    case otype::Bullets:
        return 0;
    default:
        return panelinfo::HasNames;
    }
}

bool ucWare::Validate(std::string& Text) {
    if (Parser()->otype() != otype::Nebula || Parser()->Version() >= supportedNebula)
        return true;
    AppendLine(Text, "This is TNebula file for Lorn. It's not fully supported.", "\r\n");
    return false;
}

bool ucWare::KeshExportData(QWidget* Owner) {
    ExportRequest request;
    request.Title = tr("Export data");
    if (!CurrentObject()) {
        ShowBox(Owner, request.Title, tr("No object is selected."), BoxIcon::Information);
        return false;
    }
    request.Filter = tr("Record structure (*.txt, *.cat)|*.txt;*.cat");
    request.Overwriting = tr("The file would be lost: an export cannot be loaded again.");
    request.Write = [this](std::int32_t file, int) { return ExportRecord(file, *CurrentObject()); };
    return ExportFile(Owner, *Parser(), request);
}

// Records

std::string ucWare::GetRace(const RecordPtr& Object) const {
    return clsWare(Object).Race();
}

std::string ucWare::GetResourceName(const RecordPtr& Object) const {
    return WareFields::ResourceName(*Object);
}

RecordPtr ucWare::CreateObject(std::int32_t OType, clsTxtParser& Parser, const RecordPtr& Before) {
    if (OType > otype::Special && OType != otype::Docks) {
        SetLastError(tr("Objects of this type cannot be created.").toStdString());
        return {};
    }
    RecordPtr made = Parser.CreateObjectBefore(Before);
    made->Construct(ObjectSize(OType));
    return made;
}

std::vector<std::string> ucWare::LornGetPropertyValues(const RecordPtr& Object,
                                                       std::int32_t Index) const {
    return m_fields.Values(*Object, Index);
}

bool ucWare::LornTranslateValue(const RecordPtr& Object, std::int32_t Index, std::string& Text,
                                bool Raw) const {
    return m_fields.Translate(*Object, Index, Text, Raw);
}

bool ucWare::LornTranslateValueBack(const RecordPtr& Object, std::string& Text, std::int32_t Index,
                                    KeshValue& Value) {
    return m_fields.TranslateBack(*Object, Text, Index, Value);
}

void ucWare::ObjectReset(const RecordPtr& Object) {
    if (Object == CurrentObject())
        RefreshViews();
}

// The record on view

void ucWare::ShowObject(const RecordPtr& Object, std::int32_t OType) {
    Q_UNUSED(OType);
    SetCurrentObject(Object);
    RefreshViews();
}

void ucWare::RefreshViews() {
    QList<PropertyRow> rows;
    if (CurrentObject())
        for (const WareRow& row : WareRows(*CurrentObject()))
            rows.append(RowFor(row));
    m_view->SetRows(std::move(rows));
    for (QAction* action : m_bar->actions())
        action->setEnabled(CurrentObject() != nullptr);
    ShowDescription();
    ShowFlags();
    ShowIcon();
}

PropertyRow ucWare::RowFor(const WareRow& Row) const {
    using Kind = WareRow::Kind;
    switch (Row.What) {
    case Kind::ID:
        return IdRow();
    case Kind::Field:
        return RowOf(Row.Field);
    case Kind::DustBody:
    case Kind::DustDensity: {
        PropertyRow row = RowOf(Row.Field);
        row.Name += Row.What == Kind::DustBody ? tr(" (Dust body)") : tr(" (Dust density)");
        return row;
    }
    case Kind::Name:
        return {PropertyRow::Computed, tr("Name"), ComputedText(Row.What)};
    case Kind::ChargeTime:
        return {PropertyRow::Computed, tr("Charge time"), ComputedText(Row.What)};
    case Kind::Range:
        return {PropertyRow::Computed, tr("Range"), ComputedText(Row.What)};
    case Kind::Color:
        break;
    }
    const auto color = ColorOfRecord(*CurrentObject());
    return {PropertyRow::Colour, tr("Color (RGB)"), ComputedText(Kind::Color),
            color ? ColorOf(*color) : QColor()};
}

QString ucWare::ComputedText(WareRow::Kind What) const {
    const clsTXTObject& record = *CurrentObject();
    std::optional<std::string> text;
    switch (What) {
    case WareRow::Kind::Name:
        return ToScreen(WareFields::ResourceName(record));
    case WareRow::Kind::ChargeTime:
        text = ChargeTime(record);
        break;
    case WareRow::Kind::Range:
        text = BulletRange(record);
        break;
    default:
        if (const auto color = ColorOfRecord(record))
            text = ToHex(static_cast<std::uint32_t>(*color), 0).insert(0, "0x");
        break;
    }
    return text ? ToScreen(*text) : tr("N/A");
}

void ucWare::ShowDescription() {
    m_description->clear();
    const RecordPtr& record = CurrentObject();
    if (!record || record->size() == 0 || !ShowsDescription(record->otype))
        return;
    const auto id = record->size() > nameField ? record->ValueInteger(nameField) : std::nullopt;
    const bool told = id && *id < std::numeric_limits<std::int32_t>::max() && DescServer;
    m_description->setPlainText(tr("Description: ") +
                                (told ? ToScreen(DescServer->GetStringDirect(namesPage, *id + 1))
                                      : tr("[Error getting description]")));
}

void ucWare::ShowFlags() {
    const std::int32_t type = Parser() ? Parser()->otype() : otype::None;
    const std::int32_t field = WareFlagsOf(type).Field;
    m_flags->setVisible(field >= 0);
    if (field < 0)
        return;
    const RecordPtr& record = CurrentObject();
    m_flags->setTitle(ToScreen(FieldsOf(type).Find(field, 0)->Name));
    m_flags->ShowWord(record && field < record->size() ? ReadMask(*record, field) : std::nullopt);
}

void ucWare::ShowIcon() {
    const RecordPtr& record = CurrentObject();
    const std::int32_t field = record ? IconField(record->otype) : -1;
    const auto place = field >= 0 && field < record->size()
                           ? m_fields.Icons().Find(record->ValueText(field))
                           : std::nullopt;
    const QRect rect =
        place ? QRect(place->X, place->Y, place->Width, place->Height) & m_picture.rect() : QRect();
    m_icon->setVisible(!rect.isEmpty());
    m_icon->setPixmap(rect.isEmpty() ? QPixmap() : QPixmap::fromImage(m_picture.copy(rect)));
}

// Changes

void ucWare::SetFlag(int Bit, bool On) {
    HandleKey([&] {
        const RecordPtr record = CurrentObject();
        const std::int32_t field = record ? WareFlagsOf(record->otype).Field : -1;
        const auto word = field >= 0 ? ReadMask(*record, field) : std::nullopt;
        if (word && !ReadOnly()) {
            const std::uint32_t bit = std::uint32_t{1} << Bit;
            record->SetValue(field, MaskValue(On ? *word | bit : *word & ~bit));
            Q_EMIT OnObjectChanged(record);
        }
        RefreshViews();
    });
}

bool ucWare::EditFields(std::int32_t Row) {
    if (Row != PropertyRow::Colour)
        return false;
    const RecordPtr record = CurrentObject();
    frmColorEdit dialog(this);
    const auto color = dialog.Edit(tr("Color"), ColorOfRecord(*record).value_or(0));
    return color && SetColorOfRecord(*record, *color);
}
