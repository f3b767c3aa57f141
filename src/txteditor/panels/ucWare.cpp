#include "txteditor/panels/ucWare.h"

#include "core/mdlComFunctions.h"
#include "tdata/FieldLookup.h"
#include "tdata/RecordExport.h"
#include "tdata/RecordNames.h"
#include "tdata/WeaponSlots.h"
#include "tdata/clsWare.h"
#include "tdata/mdlKeshConst.h"
#include "tdata/mdlRecordNumbers.h"
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

constexpr std::int32_t supportedNebula = 14;

constexpr int mostIconSide = 256; ///< pixels; a broken table may ask for the whole picture

std::string titleOf(std::int32_t type) {
    const ObjectTypeKey* const row = ObjectTypeOf(type);
    return row != nullptr ? std::string(row->PanelTitle) : std::string();
}

/// A row that is worked out from several fields.
struct ComputedRow {
    WareRow::Kind What;
    std::int32_t Field; ///< as the row is entered
    const char* Name;
    std::optional<std::string> (*Text)(const clsTXTObject& Record);
};
constexpr ComputedRow computedRows[] = {
    {WareRow::Kind::Name, PropertyRow::Computed, QT_TRANSLATE_NOOP("ucWare", "Name"),
     [](const clsTXTObject& record) { return std::optional(WareFields::ResourceName(record)); }},
    {WareRow::Kind::ChargeTime, PropertyRow::Computed, QT_TRANSLATE_NOOP("ucWare", "Charge time"),
     ChargeTime},
    {WareRow::Kind::Range, PropertyRow::Computed, QT_TRANSLATE_NOOP("ucWare", "Range"),
     BulletRange},
    {WareRow::Kind::Color, PropertyRow::Color, QT_TRANSLATE_NOOP("ucWare", "Color (RGB)"),
     [](const clsTXTObject& record) -> std::optional<std::string> {
         const auto color = ColorOfRecord(record);
         return color ? std::optional(ToHex(static_cast<std::uint32_t>(*color), 0).insert(0, "0x"))
                      : std::nullopt;
     }},
};

} // namespace

// The file

bool ucWare::LornQueryInterface(std::int32_t OType) const {
    return HasWareTrait(OType, waretrait::Plain);
}

bool ucWare::LornQueryInterfaceEx(std::int32_t& OType) {
    if (!HasWareRows(OType))
        return false;
    Prepare(OType);
    return true;
}

void ucWare::Prepare(std::int32_t OType) {
    m_fields.LoadFiles(OType);
    if (IconField(OType) >= 0 && !m_picture)
        m_picture = LoadGamePicture(m_fields.Icons().Picture());
    const WareFlagField flags = WareFlagsOf(OType);
    m_flags->SetFlags(flags.Flags);
    if (flags.Field >= 0)
        m_flags->setTitle(ToScreen(FieldsOf(OType).Find(flags.Field, 0)->Name));
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
    return (HasWareTrait(OType, waretrait::Names) ? panelinfo::HasNames : 0) |
           (HasWareTrait(OType, waretrait::Races) ? panelinfo::HasRaces : 0);
}

bool ucWare::Validate(std::string& Text) {
    if (Parser()->otype() != otype::Nebula || Parser()->Version() >= supportedNebula)
        return true;
    AppendLine(Text, tr("This is TNebula file for Lorn. It's not fully supported.").toStdString(),
               "\r\n");
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
    if (!HasWareTrait(OType, waretrait::Creatable)) {
        SetLastError(tr("Objects of this type cannot be created.").toStdString());
        return {};
    }
    RecordPtr made = Parser.CreateObjectBefore(Before);
    made->Construct(ObjectSize(OType));
    return made;
}

void ucWare::ObjectReset(const RecordPtr& Object) {
    if (Object == CurrentObject())
        RefreshViews();
}

// The record on view

void ucWare::ShowObject(const RecordPtr& Object, std::int32_t) {
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
    if (Row.What == Kind::ID)
        return IdRow();
    if (Row.Field < 0)
        return ComputedRowFor(Row.What);
    PropertyRow row = RowOf(Row.Field);
    if (Row.What != Kind::Field)
        row.Name += Row.What == Kind::DustBody ? tr(" (Dust body)") : tr(" (Dust density)");
    return row;
}

PropertyRow ucWare::ComputedRowFor(WareRow::Kind What) const {
    const auto* row = std::find_if(std::begin(computedRows), std::end(computedRows),
                                   [What](const ComputedRow& one) { return one.What == What; });
    const auto text = row->Text(*CurrentObject());
    const auto color =
        What == WareRow::Kind::Color ? ColorOfRecord(*CurrentObject()) : std::nullopt;
    return {row->Field, tr(row->Name), text ? ToScreen(*text) : tr("N/A"),
            color ? ColorOf(*color) : QColor()};
}

void ucWare::ShowDescription() {
    m_description->clear();
    const RecordPtr& record = CurrentObject();
    if (!record || record->size() == 0 || !HasWareTrait(record->otype, waretrait::Description))
        return;
    const auto id =
        record->size() > CommonNameField ? record->ValueInteger(CommonNameField) : std::nullopt;
    const bool told = id && *id < std::numeric_limits<std::int32_t>::max() && DescServer;
    m_description->setPlainText(
        tr("Description: ") + (told ? ToScreen(DescServer->GetStringDirect(ObjectNamePage, *id + 1))
                                    : tr("[Error getting description]")));
}

void ucWare::ShowFlags() {
    const RecordPtr& record = CurrentObject();
    const std::int32_t type = record ? record->otype : Parser() ? Parser()->otype() : otype::None;
    const std::int32_t field = WareFlagsOf(type).Field;
    m_flags->setVisible(field >= 0);
    m_flags->ShowWord(record && field >= 0 ? ReadMask(*record, field) : std::nullopt);
}

void ucWare::ShowIcon() {
    const RecordPtr& record = CurrentObject();
    const std::int32_t field = record ? IconField(record->otype) : -1;
    const auto place =
        m_picture && field >= 0 ? m_fields.Icons().Find(SpellingAt(*record, field)) : std::nullopt;
    QRect rect = place ? QRect(place->X, place->Y, place->Width, place->Height) & m_picture->rect()
                       : QRect();
    rect.setSize(rect.size().boundedTo({mostIconSide, mostIconSide}));
    m_icon->setVisible(!rect.isEmpty());
    m_icon->setPixmap(rect.isEmpty() ? QPixmap() : QPixmap::fromImage(m_picture->copy(rect)));
}

// Changes

void ucWare::SetFlag(int Bit, bool On) {
    RunAction([&] {
        const RecordPtr record = CurrentObject();
        const std::int32_t field = record ? WareFlagsOf(record->otype).Field : -1;
        const auto word = field >= 0 ? ReadMask(*record, field) : std::nullopt;
        if (word && !ReadOnly()) {
            const std::uint32_t bit = std::uint32_t{1} << Bit;
            record->SetValue(field, MaskValue(On ? *word | bit : *word & ~bit));
            Q_EMIT OnObjectChanged(record);
            RefreshViews();
        }
    });
    ShowFlags(); // also where nothing was changed
}

bool ucWare::EditFields(std::int32_t Row) {
    if (Row != PropertyRow::Color)
        return false;
    const RecordPtr record = CurrentObject();
    frmColorEdit dialog(this);
    const auto color = dialog.Edit(tr("Color"), ColorOfRecord(*record).value_or(0));
    return color && SetColorOfRecord(*record, *color);
}
