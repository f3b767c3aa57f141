#include "txteditor/panels/ucWareList.h"

#include "tdata/mdlKeshConst.h"
#include "txteditor/panels/EntryFilter.h"
#include "txteditor/panels/WareListViewer.h"

ucWareList::ucWareList(QWidget* Parent)
    : RecordPanel(Parent), m_view(new WareListView("WareListView", this)) {
    GoToAction* ware = OfferGoTo(*m_view, [this] { return WareOfRow(*m_view); });
    new EntryFilter(
        m_view, [ware] { ware->trigger(); }, EntryFilter::From::Rows);
    auto* bar = new QToolBar(tr("Ware"), this);
    bar->setObjectName(QStringLiteral("Bar"));
    bar->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    bar->addAction(ware);
    auto* rows = new QVBoxLayout(this);
    rows->setContentsMargins({});
    rows->addWidget(bar);
    rows->addWidget(m_view);
}

bool ucWareList::LornQueryInterface(std::int32_t OType) const {
    return OType == otype::WareLists;
}

bool ucWareList::Init(clsTxtParser& Parser) {
    m_view->Init();
    const bool taken = RecordPanel::Init(Parser);
    RefreshViews();
    return taken;
}

std::string ucWareList::ObjectTypeName(std::int32_t OType) const {
    return LornQueryInterface(OType) ? tr("Ware List").toStdString() : std::string();
}

std::string ucWareList::PageName(std::int32_t OType) const {
    return LornQueryInterface(OType) ? tr("Ware List info").toStdString() : std::string();
}

std::int32_t ucWareList::LornQueryInfo(std::int32_t) const {
    return 0;
}

void ucWareList::ShowObject(const RecordPtr& Object, std::int32_t) {
    SetCurrentObject(Object);
    RefreshViews();
}

void ucWareList::ObjectReset(const RecordPtr& Object) {
    if (Object == CurrentObject())
        RefreshViews();
}

void ucWareList::RefreshViews() {
    if (const RecordPtr& list = CurrentObject())
        m_view->ShowList(list, QString::number(list->Index));
    else
        m_view->Clear();
}

RecordPtr ucWareList::CreateObject(std::int32_t, clsTxtParser&, const RecordPtr&) {
    SetLastError(tr("Ware lists are only shown here; none can be added.").toStdString());
    return {};
}

std::string ucWareList::LornGetPropertyName(const RecordPtr&, std::int32_t) const {
    return {};
}
