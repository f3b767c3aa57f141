#include "txteditor/panels/ucJob.h"

#include "core/clsSettings.h"
#include "tdata/FieldConversion.h"
#include "tdata/JobFields.h"
#include "tdata/NewObjectName.h"
#include "tdata/clsArchive.h"
#include "tdata/mdlKeshConst.h"
#include "tdata/mdlKeshJobs.h"
#include "textres/ResourceText.h"
#include "txteditor/panels/JobBoxes.h"
#include "txteditor/panels/JobShipBox.h"
#include "txteditor/panels/JobSummary.h"
#include "txteditor/panels/LabelPlace.h"
#include "txteditor/panels/PropertyView.h"
#include "txteditor/panels/TextRows.h"
#include "txteditor/panels/WareListViewer.h"

namespace {

using namespace jobtabs;

constexpr qsizetype descriptionRow = 2;
constexpr int wingIdWidth = 20; ///< characters

constexpr std::int32_t infoFields[] = {0,  1,  6,  4,  5,  2,  3,   13, 14,
                                       15, 16, 17, 55, 56, 57, 109, 73};
constexpr std::int32_t equipmentFields[] = {88, 89, 106, 107, 108, 74, 75, 76, 77};

enum Filter { OwnerFilter, ClassFilter };
const JobBoxRow* const filterRows[] = {&JobOwnerBoxes, &JobClassBoxes};

RecordFilter filterOf(const QString& name, const QString& any, const JobBoxRow& row) {
    RecordFilter filter{name.toStdString(), any.toStdString(), {}};
    for (std::int32_t place = 0; place < row.Flags.Count; ++place)
        filter.Choices.push_back(row.Caption(place).toStdString());
    return filter;
}

/// The text that a field names, or its place in brackets; empty for an empty field.
QString textOf(const clsTXTObject& job, std::int32_t field) {
    const std::string_view id = GetJobText(job, field);
    const auto number = GetJobInteger(job, field);
    const auto text = number ? ResourceText(ObjectNamePage, *number) : std::nullopt;
    if (text || id.empty())
        return ToScreen(text.value_or(""));
    return QStringLiteral("[%1:%2]").arg(QString::number(ObjectNamePage), ToScreen(id));
}

QString nameOf(const clsTXTObject& job) {
    const std::string name = JobResourceName(job);
    return ToScreen(name.empty() ? GetJobText(job, jobfield::Name) : name);
}

} // namespace

// The file

bool ucJob::LornQueryInterface(std::int32_t OType) const {
    return OType == otype::Jobs;
}

bool ucJob::Init(clsTxtParser& Parser) {
    m_jobs.reset();
    const bool taken = RecordPanel::Init(Parser);
    LoadFiles();
    UpdateEnabled();
    RefreshViews();
    return taken;
}

void ucJob::LoadFiles() {
    m_ship->SetShips(GameFileOf("TShips").get(), Settings && Settings->LoadDescriptions());
    m_wings.reset();
    if (const auto wings = GameFileOf("JobWings"))
        m_wings.emplace(*wings);
    for (JobBoxes* boxes : m_boxes)
        boxes->Rename();
}

std::string ucJob::ObjectTypeName(std::int32_t OType) const {
    if (!LornQueryInterface(OType))
        return {};
    return "Jobs v." + std::to_string(Parser() ? Parser()->Version() : 0);
}

std::string ucJob::PageName(std::int32_t) const {
    return tr("Job info").toStdString();
}

std::int32_t ucJob::LornQueryInfo(std::int32_t OType) const {
    return LornQueryInterface(OType) ? panelinfo::HasNames : 0;
}

// Rows of the record list

std::string ucJob::ObjectName(const RecordPtr& Object) const {
    std::string name(GetJobText(*Object, jobfield::Number));
    return name.append(" - ").append(JobResourceName(*Object));
}

/// Also its own name, its script and the ID of its ship.
std::string ucJob::SearchText(const RecordPtr& Object) const {
    constexpr std::int32_t script = 4;
    std::string text = ObjectName(Object);
    for (const std::int32_t field : {jobfield::Name, script, jobfield::Ship})
        text.append("\n").append(GetJobText(*Object, field));
    return text;
}

std::string ucJob::GetResourceName(const RecordPtr& Object) const {
    return JobResourceName(*Object);
}

/// A job's ID is its number, and 0 is none.
std::string ucJob::UniqueName(const RecordPtr& Object) const {
    const auto number = GetJobInteger(*Object, jobfield::Number);
    return number.value_or(0) == 0 ? std::string() : std::to_string(*number);
}

std::vector<RecordFilter> ucJob::Filters() const {
    return {filterOf(tr("Owner race"), tr("Any owner race"), JobOwnerBoxes),
            filterOf(tr("Ship class"), tr("Any ship class"), JobClassBoxes)};
}

/// The flags of classes say nothing where the ship is fixed.
bool ucJob::Passes(const RecordPtr& Object, int Filter, int Choice) const {
    const std::string ship(JobShip(*Object));
    if (Filter == ClassFilter && !ship.empty() && m_ship->Ships().RowOf(ship) >= 0)
        return m_ship->Ships().ClassOf(ship) == Choice;
    return JobFlagSet(*Object, filterRows[Filter]->Flags.First + Choice);
}

// The file's records

RecordPtr ucJob::CreateObject(std::int32_t OType, clsTxtParser& Parser, const RecordPtr& Before) {
    if (!LornQueryInterface(OType)) {
        SetLastError("Invalid object type.");
        return {};
    }
    const auto size = JobSize(Parser.Version());
    if (!size) {
        SetLastError("Unkown object size for Job version " + std::to_string(Parser.Version()));
        return {};
    }
    m_jobs.reset();
    RecordPtr made = Parser.CreateObjectBefore(Before);
    made->Construct(*size);
    return made;
}

bool ucJob::LornAssignUniqueObjectName(const RecordPtr& Object) {
    m_jobs.reset();
    SetJobValue(*Object, jobfield::Number, keshobjects::readValue(NewObjectName(*Parser())));
    return SetJobValue(*Object, jobfield::Name, std::string("NEW JOB"));
}

// Fields

std::int32_t ucJob::FieldPlace(const RecordPtr& Object, std::int32_t Index) const {
    return JobPhysicalIndex(Object->size(), Index);
}

bool ucJob::LornTranslateValue(const RecordPtr& Object, std::int32_t Index, std::string& Text,
                               bool) const {
    Text = GetJobText(*Object, Index);
    return true;
}

bool ucJob::LornTranslateValueBack(const RecordPtr& Object, std::string& Text, std::int32_t Index,
                                   KeshValue& Value) {
    const auto number = EnteredNumber(Text);
    if (number)
        Value = *number;
    else if (LornGetValueType(Object, Index) == valuetype::String)
        Value = Text;
    else
        return false;
    return true;
}

// Changes

void ucJob::Change(const std::function<void(clsTXTObject&)>& Write) {
    HandleKey([&] {
        const RecordPtr job = CurrentObject();
        if (job && !ReadOnly()) {
            Write(*job);
            Q_EMIT OnObjectChanged(job);
        }
        RefreshViews(); // also of what could not be written
    });
}

void ucJob::PickRole(int Role) {
    Change([=](clsTXTObject& job) {
        for (std::int32_t place = 0; place < jobflags::Roles.Count; ++place)
            SetJobValue(job, jobflags::Roles.First + place, place == Role ? 1 : 0);
    });
}

bool ucJob::FinishEntry() {
    m_ship->FinishEntry();
    return RecordPanel::FinishEntry();
}

bool ucJob::RemoveObject(const RecordPtr& Object) {
    m_jobs.reset();
    return RecordPanel::RemoveObject(Object);
}

void ucJob::RestoreObject(const RecordPtr&) {
    m_jobs.reset();
}

bool ucJob::FollowEdit(std::int32_t) {
    m_jobs.reset();
    return false;
}

void ucJob::ObjectReset(const RecordPtr& Object) {
    m_jobs.reset();
    if (Object == CurrentObject())
        RefreshViews();
}

// The job on view

void ucJob::ShowObject(const RecordPtr& Object, std::int32_t) {
    if (Object == CurrentObject()) // it may have been changed by its raw fields
        m_jobs.reset();
    SetCurrentObject(Object);
    UpdateEnabled();
    RefreshViews();
    WarnOfOldFile();
}

void ucJob::WarnOfOldFile() {
    if (!Job() || Job()->size() >= jobfield::Count || std::exchange(m_warned, true))
        return;
    Say(tr("Warning - this is old Job file (ver. %1)\n\n"
           "It's possible that not all user controls will behave correctly.")
            .arg(Parser()->Version()),
        BoxIcon::Exclamation);
}

void ucJob::RefreshViews() {
    m_filled.fill(false);
    ShowFields();
    for (int tab = 0; tab < m_filled.size() && !Job(); ++tab)
        FillTab(tab);
    FillTab(m_tabs->currentIndex());
}

void ucJob::ShowTab() {
    HandleKey([this] { FillTab(m_tabs->currentIndex()); });
}

/// Tabs whose views take longer.
void ucJob::FillTab(int Tab) {
    if (std::exchange(m_filled[Tab], true))
        return;
    if (Tab == Info)
        ShowInfo();
    else if (Tab == Weapons)
        m_equipment->SetRows(TippedRows(equipmentFields));
    else if (Tab == Wings)
        FillWings();
    else if (Tab == Wares)
        FillWares();
}

void ucJob::ShowFields() {
    for (JobBoxes* boxes : m_boxes)
        boxes->Show(Job());
    for (const auto& [field, edit] : m_edits) {
        edit->setText(Job() ? ToScreen(GetJobText(*Job(), field)) : QString());
        edit->setCursorPosition(0);
    }
    m_ship->Show(Job() ? std::optional<std::string>(GetJobText(*Job(), jobfield::Ship))
                       : std::nullopt);
    m_goToShip->Update();
    m_shipName->setText(Job() ? textOf(*Job(), jobfield::ShipName) : QString());
    ShowRole();
}

void ucJob::ShowRole() {
    const auto set = Job() ? JobFlagsSet(*Job(), jobflags::Roles) : std::vector<std::int32_t>();
    m_roles->setExclusive(false); // else one of them would stay
    for (QAbstractButton* button : m_roles->buttons())
        button->setChecked(!set.empty() && m_roles->id(button) == set.front());
    m_roles->setExclusive(true);
}

/// The rows of a field that the version does not have say so.
QList<PropertyRow> ucJob::TippedRows(std::span<const std::int32_t> Fields) const {
    QList<PropertyRow> rows = RowsOf(Fields);
    for (PropertyRow& row : rows)
        if (JobNeighbour(*Job(), row.Field))
            row.Tip = JobFieldTip(Job(), row.Field, false);
    return rows;
}

void ucJob::ShowInfo() {
    QList<PropertyRow> rows = TippedRows(infoFields);
    if (rows.size() >= descriptionRow)
        rows.insert(descriptionRow, {PropertyRow::Computed, tr("Description text"),
                                     textOf(*Job(), jobfield::Description)});
    m_fields->SetRows(std::move(rows));
    const auto shipName = [this](const std::string& id) { return m_ship->Ships().TextOf(id); };
    m_summary->setText(Job() ? JobSummary(*Job(), shipName) : QString());
    m_summary->setToolTip(Qt::convertFromPlainText(m_summary->text(), Qt::WhiteSpaceNormal));
    m_summaryPlace->Fit();
}

void ucJob::FillWings() {
    if (!Job() || !m_wings) {
        m_wingJobs->SetColumns({}, {});
        return;
    }
    if (const RecordPtr wing = m_wings->Find(GetJobValue(*Job(), jobfield::Wing)))
        ShowWing(*wing);
    else
        m_wingJobs->SetColumns(
            {tr("Wing %1 not found").arg(ToScreen(GetJobText(*Job(), jobfield::Wing)))}, {});
}

void ucJob::ShowWing(const clsTXTObject& Wing) {
    QList<TextRow> rows;
    for (std::int32_t i = 1; i < Wing.size(); ++i) {
        const QString id = ToScreen(Wing.ValueText(i));
        const RecordPtr job = JobOf(Wing.Value(i));
        rows.append(job ? TextRow{id, {id, nameOf(*job)}}
                        : TextRow{id, {tr("%1 (not found)").arg(id), {}}});
    }
    m_wingJobs->EnsureColumns({tr("ID"), tr("Name")}, {wingIdWidth});
    m_wingJobs->SetRows(std::move(rows));
}

RecordPtr ucJob::JobOf(const KeshValue& Number) {
    if (!m_jobs)
        m_jobs.emplace(*Parser());
    return m_jobs->Find(Number);
}

void ucJob::FillWares() {
    if (!Job()) {
        m_wares->Clear();
        return;
    }
    m_wares->ShowWareList(GetJobInteger(*Job(), jobfield::WareList).value_or(-1),
                          ToScreen(GetJobText(*Job(), jobfield::WareList)));
}
