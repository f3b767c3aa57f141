#include "txteditor/panels/JobShipBox.h"

#include "core/mdlComFunctions.h"
#include "tdata/JobFields.h"
#include "tdata/RecordNames.h"
#include "tdata/mdlKeshConst.h"
#include "tdata/mdlKeshShips.h"
#include "tdata/mdlRecordNumbers.h"
#include "ui/TextCodec.h"

#include <algorithm>
#include <limits>

namespace {

constexpr int boxWidth = 6;        ///< characters, at least
constexpr int completionRows = 15; ///< that are seen at once

/// Race, name and variant; the ID where there is no name.
std::string describedShip(const clsTXTObject& ship) {
    std::string text = ListItem(RaceNames, IntegerAt(ship, shipfield::Race).value_or(0), false);
    AppendLine(text, RecordName(ship), " ");
    if (const auto variant = IntegerAt(ship, shipfield::Variation); variant.value_or(0) > 0)
        text += " (" + JobVariantName(*variant) + ")";
    return text;
}

} // namespace

// --- The ships

void JobShipsModel::SetShips(const clsTxtParser* Ships, bool Names) {
    beginResetModel();
    m_rows.assign(1, {std::string(), tr("[empty]")});
    m_byId = {{std::string(), 0}};
    if (Ships)
        for (const RecordPtr& ship : Ships->ByIndex()) {
            std::string id(ship->ObjectName());
            m_byId.try_emplace(id, static_cast<int>(m_rows.size()));
            QString text = ToScreen(Names ? describedShip(*ship) : id);
            m_rows.push_back({std::move(id), std::move(text), JobClassOf(*ship)});
        }
    m_byId.try_emplace("0", 0); // so a new job spells that it has none
    endResetModel();
}

int JobShipsModel::RowOf(const std::string& ID) const {
    const auto found = m_byId.find(ID);
    return found == m_byId.end() ? -1 : found->second;
}

int JobShipsModel::RowMeant(const QString& Text, int Present) const {
    const auto reads = [&](const Ship& row) {
        return row.Text.compare(Text, Qt::CaseInsensitive) == 0;
    };
    if (Text.isEmpty())
        return -1;
    if (Present >= 0 && reads(m_rows[static_cast<std::size_t>(Present)]))
        return Present;
    auto found = std::find_if(m_rows.begin(), m_rows.end(), reads);
    if (found == m_rows.end())
        found = std::find_if(m_rows.begin() + 1, m_rows.end(), [&](const Ship& row) {
            return ToScreen(row.ID).compare(Text, Qt::CaseInsensitive) == 0;
        });
    return found == m_rows.end() ? -1 : static_cast<int>(found - m_rows.begin());
}

QString JobShipsModel::TextOf(const std::string& ID) const {
    const int row = RowOf(ID);
    return row < 0 ? tr("%1 (not found)").arg(ToScreen(ID))
                   : m_rows[static_cast<std::size_t>(row)].Text;
}

std::optional<std::int32_t> JobShipsModel::ClassOf(const std::string& ID) const {
    const int row = RowOf(ID);
    return row < 0 ? std::nullopt : m_rows[static_cast<std::size_t>(row)].Class;
}

int JobShipsModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(m_rows.size());
}

QVariant JobShipsModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid() || index.row() >= rowCount())
        return {};
    const Ship& row = m_rows[static_cast<std::size_t>(index.row())];
    if (role == Qt::DisplayRole || role == Qt::EditRole)
        return row.Text;
    return role == Qt::UserRole || role == Qt::ToolTipRole ? QVariant(ToScreen(row.ID))
                                                           : QVariant();
}

// --- The box

JobShipBox::JobShipBox(QWidget* Parent) : QComboBox(Parent), m_ships(new JobShipsModel(this)) {
    setEditable(true);
    setInsertPolicy(NoInsert);
    // The box would take the first of equal rows for what is typed.
    setDuplicatesEnabled(true);
    disconnect(lineEdit(), &QLineEdit::editingFinished, this, nullptr);
    setSizeAdjustPolicy(AdjustToMinimumContentsLengthWithIcon);
    setMinimumContentsLength(boxWidth);
    setFocusPolicy(Qt::StrongFocus);
    lineEdit()->setMaxLength(std::numeric_limits<int>::max());
    static_cast<QListView*>(view())->setUniformItemSizes(true);
    m_ships->SetShips(nullptr, false);
    setModel(m_ships);
    auto* finder = new QCompleter(m_ships, this);
    finder->setFilterMode(Qt::MatchContains);
    finder->setCaseSensitivity(Qt::CaseInsensitive);
    finder->setMaxVisibleItems(completionRows);
    static_cast<QListView*>(finder->popup())->setUniformItemSizes(true); // of thousands
    setCompleter(finder);
    connect(this, &QComboBox::activated, this, &JobShipBox::Take);
    connect(lineEdit(), &QLineEdit::editingFinished, this, &JobShipBox::OnEditingFinished);
    Show({});
}

void JobShipBox::SetShips(const clsTxtParser* Ships, bool Names) {
    m_ships->SetShips(Ships, Names);
    Show(m_id);
}

void JobShipBox::Show(const std::optional<std::string>& ID) {
    m_id = ID;
    setCurrentIndex(ID ? m_ships->RowOf(*ID) : -1);
    if (currentIndex() < 0)
        setEditText(ID ? m_ships->TextOf(*ID) : QString());
    lineEdit()->setCursorPosition(0);
}

void JobShipBox::FinishEntry() {
    if (!m_id || lineEdit()->text() == m_ships->TextOf(*m_id))
        return;
    const int row = m_ships->RowMeant(lineEdit()->text(), m_ships->RowOf(*m_id));
    row < 0 ? Show(m_id) : Take(row);
}

void JobShipBox::OnEditingFinished() {
    const QAbstractItemView* popup = completer()->popup();
    if (popup->isVisible() && popup->currentIndex().isValid()) // Enter takes it next, Tab does not
        Take(qobject_cast<QAbstractProxyModel*>(completer()->completionModel())
                 ->mapToSource(popup->currentIndex())
                 .row());
    else
        FinishEntry();
}

void JobShipBox::Take(int Row) {
    if (!m_id || Row < 0)
        return;
    const std::string id = m_ships->ID(Row);
    const bool other = id != *m_id;
    Show(id);
    if (other)
        Q_EMIT Chosen(id);
}

/// With nothing typed to take back, the keys of undo and redo are the window's.
bool JobShipBox::event(QEvent* event) {
    if (event->type() == QEvent::ShortcutOverride) {
        const auto& key = static_cast<const QKeyEvent&>(*event);
        const bool windows = (key.matches(QKeySequence::Undo) && !lineEdit()->isUndoAvailable()) ||
                             (key.matches(QKeySequence::Redo) && !lineEdit()->isRedoAvailable());
        if (windows) {
            event->ignore();
            return true;
        }
    }
    return QComboBox::event(event);
}

/// Turning the wheel over the page must not change the ship.
void JobShipBox::wheelEvent(QWheelEvent* event) {
    event->ignore();
}

void JobShipBox::keyPressEvent(QKeyEvent* event) {
    const bool step = event->key() == Qt::Key_Up || event->key() == Qt::Key_Down;
    if (step && currentIndex() < 0) {
        event->accept(); // from a ship that is not found no way leads to the next one
        return;
    }
    if (event->key() == Qt::Key_Escape && m_id && lineEdit()->text() != m_ships->TextOf(*m_id))
        Show(m_id); // what was typed is given up
    else
        QComboBox::keyPressEvent(event);
}
