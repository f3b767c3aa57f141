#include "txteditor/panels/WeaponLists.h"

#include "tdata/RecordNames.h"
#include "txteditor/panels/TextRows.h"
#include "ui/TextCodec.h"

#include <algorithm>
#include <functional>

namespace {

constexpr std::uint32_t bitOf(std::int32_t bit) {
    return bit >= 0 && bit < 32 ? 1U << static_cast<unsigned>(bit) : 0U;
}

std::uint32_t bitOf(const QModelIndex& index) {
    return bitOf(index.data(Qt::UserRole + 1).toInt());
}

std::uint32_t selectedBits(const QAbstractItemView& view) {
    std::uint32_t bits = 0;
    for (const QModelIndex& index : view.selectionModel()->selectedRows())
        bits |= bitOf(index);
    return bits;
}

void selectBits(QAbstractItemView& view, std::uint32_t bits) {
    QItemSelection selection;
    for (int row = 0; row < view.model()->rowCount(); ++row) {
        const QModelIndex index = view.model()->index(row, 0);
        if ((bitOf(index) & bits) != 0)
            selection.select(index, index);
    }
    view.selectionModel()->select(selection, QItemSelectionModel::ClearAndSelect);
    if (selection.isEmpty())
        return;
    view.selectionModel()->setCurrentIndex(selection.first().topLeft(),
                                           QItemSelectionModel::NoUpdate);
    view.scrollTo(view.currentIndex());
}

} // namespace

/// The rows of one list. Dragged, they name the list that they come from, and only the one beside
/// it takes them.
class WeaponModel final : public TextRowsModel {
public:
    explicit WeaponModel(QObject* parent) : TextRowsModel(parent) { SetColumns({QString()}); }

    /// `Take` gets the bits of rows that were dropped.
    void Pair(const WeaponModel& Other, std::function<bool(std::uint32_t)> Take) {
        m_other = Other.m_token;
        m_take = std::move(Take);
    }

    Qt::ItemFlags flags(const QModelIndex& index) const override {
        // A view accepts a drag where its root takes drops.
        return TextRowsModel::flags(index) |
               (index.isValid() ? Qt::ItemIsDragEnabled : Qt::ItemIsDropEnabled);
    }
    Qt::DropActions supportedDropActions() const override { return Qt::CopyAction; }
    QStringList mimeTypes() const override {
        return {QStringLiteral("application/x-kesh-weapons")};
    }
    QMimeData* mimeData(const QModelIndexList& indexes) const override {
        std::uint32_t bits = 0;
        for (const QModelIndex& index : indexes)
            bits |= bitOf(index);
        QByteArray bytes;
        QDataStream stream(&bytes, QIODevice::WriteOnly);
        stream << m_token << bits;
        auto* data = new QMimeData;
        data->setData(mimeTypes().first(), bytes);
        return data;
    }
    bool canDropMimeData(const QMimeData* data, Qt::DropAction, int, int,
                         const QModelIndex&) const override {
        return BitsFromOther(*data).has_value();
    }
    bool dropMimeData(const QMimeData* data, Qt::DropAction, int, int,
                      const QModelIndex&) override {
        const auto bits = BitsFromOther(*data);
        return bits && m_take(*bits);
    }

private:
    [[nodiscard]] std::optional<std::uint32_t> BitsFromOther(const QMimeData& data) const {
        QDataStream stream(data.data(mimeTypes().first()));
        QUuid from;
        std::uint32_t bits = 0;
        stream >> from >> bits;
        return stream.status() == QDataStream::Ok && from == m_other ? std::optional(bits)
                                                                     : std::nullopt;
    }

    QUuid m_token = QUuid::createUuid();
    QUuid m_other;
    std::function<bool(std::uint32_t)> m_take;
};

WeaponLists::WeaponLists(const Names& Called, QWidget* Parent) : QWidget(Parent) {
    m_mounted.Mounted = true;
    m_mounted.Key = Qt::Key_Delete;
    m_available.Key = Qt::Key_Insert;
    // In the order of the Tab key.
    BuildList(m_mounted, Called.Mounted);
    BuildButton(m_available, Called.Add);
    BuildButton(m_mounted, Called.Remove);
    BuildList(m_available, Called.Available);
    BuildLayout(Called);
    Connect(m_mounted, m_available);
    Connect(m_available, m_mounted);
    SetReadOnly(false);
}

void WeaponLists::BuildList(List& Side, const char* Name) {
    Side.View = new QListView(this);
    Side.View->setObjectName(QString::fromLatin1(Name));
    Side.Model = new WeaponModel(Side.View);
    Side.View->setModel(Side.Model);
    Side.View->setSelectionMode(QAbstractItemView::ExtendedSelection);
    Side.View->setEditTriggers(QAbstractItemView::NoEditTriggers);
    Side.View->setUniformItemSizes(true);
    Side.View->setDropIndicatorShown(false); // the whole list takes rows, in their own order
    Side.View->setDefaultDropAction(Qt::CopyAction);
    Side.View->installEventFilter(this);
}

void WeaponLists::BuildButton(List& Side, const char* Name) {
    const auto arrow = Side.Mounted ? QStyle::SP_ArrowForward : QStyle::SP_ArrowBack;
    Side.Button = new QPushButton(style()->standardIcon(arrow, nullptr, this),
                                  Side.Mounted ? tr("Remove") : tr("Add"), this);
    Side.Button->setObjectName(QString::fromLatin1(Name));
    Side.Button->setToolTip(Side.Mounted ? tr("Remove the selected weapons")
                                         : tr("Add the selected weapons"));
    Side.Button->setAutoDefault(false);
}

void WeaponLists::BuildLayout(const Names& Called) {
    auto* grid = new QGridLayout(this);
    const auto addList = [&](const List& side, const QString& text, const char* name, int column) {
        auto* label = new QLabel(text, this);
        label->setObjectName(QString::fromLatin1(name));
        label->setBuddy(side.View);
        grid->addWidget(label, 0, column);
        grid->addWidget(side.View, 1, column);
        grid->setColumnStretch(column, 1);
    };
    addList(m_mounted, Called.MountedLabel, Called.MountedLabelName, 0);
    addList(m_available, Called.AvailableLabel, Called.AvailableLabelName, 2);
    auto* buttons = new QVBoxLayout;
    buttons->addStretch();
    buttons->addWidget(m_available.Button);
    buttons->addWidget(m_mounted.Button);
    buttons->addStretch();
    grid->addLayout(buttons, 1, 1);
}

void WeaponLists::Connect(List& Side, List& Other) {
    const auto move = [this, &Side] { MoveSelected(Side); };
    connect(Side.Button, &QPushButton::clicked, this, move);
    connect(Side.View, &QListView::doubleClicked, this, move);
    connect(Side.View->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &WeaponLists::UpdateButtons);
    connect(Side.Model, &QAbstractItemModel::modelReset, this, &WeaponLists::UpdateButtons);
    Side.Model->Pair(*Other.Model,
                     [this, &Side](std::uint32_t bits) { return Move(bits, Side.Mounted); });
}

QList<WeaponLists::Row> WeaponLists::RowsOf(const std::vector<WeaponSlot>& Slots) {
    QList<Row> rows;
    for (const WeaponSlot& slot : Slots)
        rows.append({slot.Bit, QString::fromStdString(slot.Weapon->key()),
                     ToScreen(RecordName(*slot.Weapon))});
    return rows;
}

void WeaponLists::Show(const QList<Row>& Rows, std::optional<std::uint32_t> Mask) {
    m_rows = Rows;
    m_mask = Mask;
    Fill(selectedBits(*m_mounted.View) | selectedBits(*m_available.View));
}

void WeaponLists::Fill(std::uint32_t Selected) {
    for (const List* side : {&m_mounted, &m_available})
        FillList(*side, Selected);
}

void WeaponLists::FillList(const List& Side, std::uint32_t Selected) {
    QList<TextRow> rows;
    for (const Row& row : m_rows)
        if (m_mask && ((*m_mask & bitOf(row.Bit)) != 0) == Side.Mounted)
            rows.append({row.Key, {row.Text}, row.Bit});
    if (rows == Side.Model->Rows())
        return;
    const int place = Side.View->currentIndex().row();
    Side.Model->SetRows(std::move(rows));
    const QModelIndex near = Side.Model->index(std::min(place, Side.Model->rowCount() - 1), 0);
    Side.View->selectionModel()->setCurrentIndex(near, QItemSelectionModel::NoUpdate);
    selectBits(*Side.View, Selected);
}

bool WeaponLists::Move(std::uint32_t Bits, bool Mount) {
    if (m_readOnly || !m_mask)
        return false;
    const std::uint32_t mask = Mount ? *m_mask | Bits : *m_mask & ~Bits;
    if (mask == *m_mask)
        return false;
    m_mask = mask;
    Fill(Bits);
    Q_EMIT MaskChanged(mask);
    return true;
}

void WeaponLists::MoveSelected(const List& Side) {
    Move(selectedBits(*Side.View), !Side.Mounted);
}

void WeaponLists::SetReadOnly(bool Value) {
    m_readOnly = Value;
    const auto mode = Value ? QAbstractItemView::NoDragDrop : QAbstractItemView::DragDrop;
    for (const List* side : {&m_mounted, &m_available})
        side->View->setDragDropMode(mode);
    UpdateButtons();
}

void WeaponLists::UpdateButtons() {
    for (const List* side : {&m_mounted, &m_available})
        side->Button->setEnabled(!m_readOnly && side->View->selectionModel()->hasSelection());
}

bool WeaponLists::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() != QEvent::KeyPress)
        return false;
    const auto* key = static_cast<QKeyEvent*>(event);
    const List& side = watched == m_mounted.View ? m_mounted : m_available;
    const bool moves =
        key->key() == side.Key || key->key() == Qt::Key_Return || key->key() == Qt::Key_Enter;
    if (!moves || (key->modifiers() & ~Qt::KeypadModifier) != 0)
        return false;
    MoveSelected(side);
    return true;
}
