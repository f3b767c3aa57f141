#include "txteditor/panels/PropertyView.h"

#include "txteditor/frmEdit.h"
#include "txteditor/panels/RecordPanel.h"
#include "ui/ListHelpers.h"
#include "ui/UserInterface.h"

namespace {

constexpr int nameWidth = 36; ///< characters

QLineEdit* lineOf(QWidget* editor) {
    auto* combo = qobject_cast<QComboBox*>(editor);
    return combo ? combo->lineEdit() : qobject_cast<QLineEdit*>(editor);
}

QLineEdit* newLine(QWidget* parent) {
    auto* line = new QLineEdit(parent);
    line->setFrame(false);
    line->setMaxLength(std::numeric_limits<int>::max());
    return line;
}

QComboBox* newCombo(const QStringList& choices, QWidget* parent) {
    auto* combo = new QComboBox(parent);
    combo->setEditable(true);
    combo->setInsertPolicy(QComboBox::NoInsert);
    combo->setCompleter(nullptr); // it would change what is typed
    combo->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon); // of many
    combo->addItems(choices);
    combo->lineEdit()->setMaxLength(std::numeric_limits<int>::max());
    return combo;
}

/// Brings the pages of tabs to the front on which a widget stands.
void showPagesOf(const QWidget& widget) {
    for (QWidget* page = widget.parentWidget(); page; page = page->parentWidget()) {
        const QWidget* stack = page->parentWidget();
        if (auto* tabs = qobject_cast<QTabWidget*>(stack ? stack->parentWidget() : nullptr))
            tabs->setCurrentWidget(page);
    }
}

/// A box that came up at the press on a button has taken the release.
void releaseButtons(const QWidget& window) {
    for (QAbstractButton* button : window.findChildren<QAbstractButton*>())
        button->setDown(false);
}

/// A colour as it is: with a frame, since it may be the row's own, and not tinted by a selection.
QIcon swatchOf(const QColor& color, const QSize& size, const QColor& frame) {
    QPixmap swatch(size);
    swatch.fill(frame);
    QPainter(&swatch).fillRect(swatch.rect().adjusted(1, 1, -1, -1), color);
    QIcon icon(swatch);
    icon.addPixmap(swatch, QIcon::Selected);
    return icon;
}

/// Makes the editor of a value, and lets the list decide what becomes of its text.
class EntryDelegate : public QStyledItemDelegate {
public:
    explicit EntryDelegate(PropertyView& view) : QStyledItemDelegate(&view), m_view(view) {}

    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem&,
                          const QModelIndex& index) const override {
        return m_view.OpenEntry(parent, index);
    }
    void setEditorData(QWidget* editor, const QModelIndex&) const override {
        m_view.ShowEntry(editor);
    }
    /// As high as it needs, though the row is lower.
    void updateEditorGeometry(QWidget* editor, const QStyleOptionViewItem& option,
                              const QModelIndex&) const override {
        QRect place = option.rect;
        place.setHeight(std::max(place.height(), editor->minimumSizeHint().height()));
        place.moveCenter(option.rect.center());
        editor->setGeometry(place);
    }
    void setModelData(QWidget* editor, QAbstractItemModel*, const QModelIndex&) const override {
        m_view.TakeEntry(editor);
    }

protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override {
        QStyledItemDelegate::initStyleOption(option, index);
        const auto color = index.data(Qt::DecorationRole).value<QColor>();
        if (color.isValid())
            option->icon =
                swatchOf(color, option->decorationSize, option->palette.color(QPalette::Mid));
    }

private:
    PropertyView& m_view;
};

} // namespace

PropertyView::PropertyView(const char* Name, RecordPanel& Editor, QWidget* Parent)
    : QTreeView(Parent), m_panel(Editor), m_model(new PropertyModel(this)) {
    setObjectName(QString::fromLatin1(Name));
    setAccessibleName(tr("Fields"));
    PrepareRows(*this);
    setModel(m_model);
    setItemDelegate(new EntryDelegate(*this));
    setEditTriggers(SelectedClicked | EditKeyPressed);
    setColumnWidth(2, 8 * fontMetrics().averageCharWidth());
    header()->setStretchLastSection(false);
    header()->setSectionResizeMode(PropertyModel::ValueColumn, QHeaderView::Stretch);
    m_panel.OfferGoTo(*this, [this]() -> std::optional<RecordAddress> {
        const PropertyRow* row = m_model->Row(currentIndex());
        return row ? m_panel.TargetOf(row->Field) : std::nullopt;
    });
    connect(m_model, &QAbstractItemModel::modelReset, this, [this] { m_entry.reset(); });
    connect(this, &QTreeView::doubleClicked, this, [this](const QModelIndex& index) {
        edit(index, DoubleClicked, nullptr); // ends the wait for the entry that one click begins
        EditRow();
    });
}

void PropertyView::SetRows(QList<PropertyRow> Rows) {
    const int place = currentIndex().row();
    m_model->SetRows(std::move(Rows));
    if (place >= 0 && !currentIndex().isValid())
        setCurrentIndex(m_model->index(std::min(place, m_model->rowCount() - 1), 0));
}

QWidget* PropertyView::OpenEntry(QWidget* Parent, const QModelIndex& Index) {
    const PropertyRow* row = m_model->Row(Index);
    if (!row)
        return nullptr;
    const std::int32_t field = row->Field;
    m_panel.HandleKey([&] { m_entry = m_panel.BeginEntry(field); });
    if (!m_entry)
        return nullptr;
    m_field = field;
    m_refused = m_taken = m_told = false;
    const bool choice = m_entry->Class() == translation::List;
    m_editor =
        choice ? static_cast<QWidget*>(newCombo(m_entry->Choices(), Parent)) : newLine(Parent);
    m_editor->setObjectName(QStringLiteral("ValueEditor"));
    m_editor->setAccessibleName(tr("Value"));
    return m_editor;
}

void PropertyView::ShowEntry(QWidget* Editor) {
    QLineEdit* line = lineOf(Editor);
    if (!m_entry || Editor != m_editor || line->isModified())
        return;
    m_panel.HandleKey([&] {
        const QString text = m_entry->Text();
        if (auto* combo = qobject_cast<QComboBox*>(Editor))
            combo->setCurrentIndex(combo->findText(text)); // where the arrow keys go on from
        line->setText(text);
        m_entry->SetShown(line->text());
    });
    line->selectAll();
}

void PropertyView::TakeEntry(QWidget* Editor) {
    if (!m_entry || Editor != m_editor || m_taken)
        return;
    const QString refusal = m_entry->Take(lineOf(Editor)->text());
    m_refused = !refusal.isEmpty();
    m_taken = !m_refused;
    if (m_refused && !std::exchange(m_told, true))
        ShowBox(this, frmEdit::tr("Value Edit"), refusal, BoxIcon::Exclamation);
}

void PropertyView::closeEditor(QWidget* editor, QAbstractItemDelegate::EndEditHint hint) {
    if (m_refused && editor == m_editor) {
        m_refused = false;
        ReturnTo(editor);
        return;
    }
    const bool taken = std::exchange(m_taken, false);
    const bool ours = m_entry && editor == m_editor;
    m_entry.reset();
    QTreeView::closeEditor(editor, QAbstractItemDelegate::NoHint);
    if (ours)
        m_panel.EndEntry(m_field, taken);
    const bool back = hint == QAbstractItemDelegate::EditPreviousItem;
    if (!back && hint != QAbstractItemDelegate::EditNextItem)
        return;
    const QModelIndex next = back ? indexAbove(currentIndex()) : indexBelow(currentIndex());
    setCurrentIndex(next);
    if (next.isValid())
        edit(next);
}

void PropertyView::ReturnTo(QWidget* Editor) {
    QTimer::singleShot(0, Editor, [this, Editor] {
        if (!m_entry || Editor != m_editor) // it was given up meanwhile
            return;
        showPagesOf(*this);
        releaseButtons(*window());
        if (const QModelIndex row = indexAt(Editor->geometry().center()); row.isValid())
            setCurrentIndex(row);
        m_told = false;
        Editor->setFocus();
        lineOf(Editor)->selectAll();
    });
}

bool PropertyView::FinishEntry() {
    const QPointer<QWidget> editor = m_entry ? m_editor : nullptr;
    if (!editor)
        return true;
    commitData(editor);
    const bool refused = m_refused;
    closeEditor(editor, QAbstractItemDelegate::NoHint);
    return !refused;
}

void PropertyView::DropEntry() {
    const QPointer<QWidget> editor = m_entry ? m_editor : nullptr;
    m_entry.reset();
    m_refused = m_taken = m_told = false;
    if (editor)
        QTreeView::closeEditor(editor, QAbstractItemDelegate::NoHint);
}

void PropertyView::EditRow() {
    if (const PropertyRow* row = m_model->Row(currentIndex()))
        m_panel.EditField(row->Field);
}

void PropertyView::CopyValue() const {
    if (const PropertyRow* row = m_model->Row(currentIndex()))
        QGuiApplication::clipboard()->setText(row->Value);
}

/// Where there is little room, names and values share it.
void PropertyView::resizeEvent(QResizeEvent* event) {
    QTreeView::resizeEvent(event);
    if (m_nameWidth != 0 && columnWidth(0) != m_nameWidth)
        return;
    m_nameWidth = std::min(nameWidth * fontMetrics().averageCharWidth(),
                           viewport()->width() / 2 - columnWidth(2) / 2);
    setColumnWidth(0, m_nameWidth);
    m_nameWidth = columnWidth(0);
}

void PropertyView::keyPressEvent(QKeyEvent* event) {
    const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    const PropertyRow* row = m_model->Row(currentIndex());
    const bool special = row && row->Field == PropertyRow::Color && event->key() == Qt::Key_F2;
    if ((enter && state() != EditingState) || special)
        EditRow();
    else if (event->matches(QKeySequence::Copy) ||
             (event->key() == Qt::Key_Insert && event->modifiers() == Qt::ControlModifier))
        m_panel.HandleKey([this] { CopyValue(); });
    else
        QTreeView::keyPressEvent(event);
}
