#include "txteditor/GoToAction.h"

#include "ui/Icons.h"
#include "ui/TextCodec.h"

#include <memory>

GoToAction::GoToAction(QWidget& Widget, Target Find, std::function<bool()> Finish)
    : QAction(&Widget), m_widget(Widget), m_find(std::move(Find)), m_finish(std::move(Finish)) {
    setObjectName(QStringLiteral("mnuGoTo"));
    setIcon(ToolIcon("goto"));
    setIconText(tr("Go to")); // on buttons, which stay as wide as they are
    setToolTip(tr("Show the object that is named here (also by a click with Ctrl)"));
    setShortcut(Qt::Key_F12);
    setShortcutContext(Qt::WidgetWithChildrenShortcut);
    connect(this, &QAction::triggered, this, &GoToAction::Go);
    Widget.addAction(this);
    Widget.installEventFilter(this);
    if (auto* view = qobject_cast<QAbstractItemView*>(&Widget))
        FollowRows(*view);
    if (auto* edit = qobject_cast<QLineEdit*>(&Widget))
        OfferIn(*edit);
    for (QLineEdit* edit : Widget.findChildren<QLineEdit*>()) { // of a combo box
        edit->installEventFilter(this);
        OfferIn(*edit);
    }
    Update();
}

/// In front of what an edit's own popup has.
void GoToAction::OfferIn(QLineEdit& Edit) {
    Edit.setContextMenuPolicy(Qt::CustomContextMenu);
    connect(&Edit, &QWidget::customContextMenuRequested, this, [this, &Edit](const QPoint& place) {
        const std::unique_ptr<QMenu> menu(Edit.createStandardContextMenu());
        menu->insertAction(menu->actions().value(0), this);
        menu->exec(Edit.mapToGlobal(place));
    });
}

void GoToAction::FollowRows(QAbstractItemView& View) {
    View.setContextMenuPolicy(Qt::ActionsContextMenu);
    View.viewport()->installEventFilter(this);
    const auto update = [this] { Update(); };
    connect(View.selectionModel(), &QItemSelectionModel::currentChanged, this, update);
    connect(View.model(), &QAbstractItemModel::modelReset, this, update);
    connect(View.model(), &QAbstractItemModel::dataChanged, this, update);
}

void GoToAction::Update() {
    const auto address = m_find();
    setEnabled(address.has_value());
    if (!address)
        return setText(tr("Go to ..."));
    const QString name =
        address->Name.empty() ? QString::number(address->Index) : ToScreen(address->Name);
    const QString text = address->File.empty()
                             ? tr("Go to %1").arg(name)
                             : tr("Go to %1: %2").arg(ToScreen(address->File), name);
    setText(QString(text).replace(u'&', QStringLiteral("&&")));
}

void GoToAction::Go() {
    if (!m_finish())
        return;
    if (const auto address = m_find())
        Q_EMIT Asked(*address);
}

/// False where the click leads nowhere, and means what it does without this. The second of two
/// fast clicks does nothing in a list, where the first has gone its way.
bool GoToAction::TakeClick(const QMouseEvent& Click) {
    if (Click.button() != Qt::LeftButton || Click.modifiers() != Qt::ControlModifier)
        return false;
    if (Click.type() == QEvent::MouseButtonDblClick)
        return qobject_cast<QAbstractItemView*>(&m_widget) != nullptr;
    if (auto* view = qobject_cast<QAbstractItemView*>(&m_widget)) {
        const QModelIndex row = view->indexAt(Click.position().toPoint());
        if (!row.isValid())
            return false;
        if (!m_finish())
            return true;
        view->selectionModel()->setCurrentIndex(row, // the view itself would heed Ctrl
                                                QItemSelectionModel::ClearAndSelect |
                                                    QItemSelectionModel::Rows);
    }
    if (!m_find())
        return qobject_cast<QAbstractItemView*>(&m_widget) != nullptr;      // its row is selected
    QMetaObject::invokeMethod(this, &GoToAction::Go, Qt::QueuedConnection); // another window opens
    return true;
}

bool GoToAction::eventFilter(QObject* watched, QEvent* event) {
    switch (event->type()) {
    case QEvent::ContextMenu:
    case QEvent::FocusIn:
    case QEvent::ShortcutOverride:
        Update(); // what leads somewhere may have changed
        break;
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
        if (TakeClick(*static_cast<QMouseEvent*>(event)))
            return true;
        break;
    default:
        break;
    }
    return QAction::eventFilter(watched, event);
}
