// The controls of the ware panel, and the toolbar that its type asks for.
#include "tdata/mdlKeshConst.h"
#include "txteditor/ExportObjectToViewer.h"
#include "txteditor/panels/FlagBoxes.h"
#include "txteditor/panels/PropertyView.h"
#include "txteditor/panels/ucWare.h"
#include "ui/Icons.h"
#include "ui/ListHelpers.h"

namespace {

constexpr int descriptionLines = 3;
constexpr std::int32_t bodyField = 0;
constexpr std::int32_t pictureField = 1;

/// A button for a scene of a type.
struct SceneButton {
    std::int32_t Type;
    std::int32_t Field;
    const char* Text;
    const char* Tip;
};
constexpr const char* scene = QT_TRANSLATE_NOOP("ucWare", "Scene");
constexpr const char* sceneTip = QT_TRANSLATE_NOOP("ucWare", "Show object scene");
constexpr SceneButton sceneButtons[] = {
    {otype::Missiles, 26, scene, sceneTip},
    {otype::Factories, 11, scene, sceneTip},
    {otype::Docks, 11, scene, sceneTip},
    {otype::Special, 7, scene, sceneTip},
    {otype::Wrecks, 7, scene, sceneTip},
    {otype::Gates, 7, scene, sceneTip},
    {otype::Suns, 7, scene, sceneTip},
    {otype::Planets, 10, scene, sceneTip},
    {otype::Asteroids, 10, QT_TRANSLATE_NOOP("ucWare", "Debris map"), ""},
    {otype::Asteroids, 7, scene, sceneTip},
    {otype::Debris, 9, QT_TRANSLATE_NOOP("ucWare", "Scene 2"), ""},
    {otype::Debris, 7, scene, sceneTip},
};

} // namespace

ucWare::ucWare(QWidget* Parent) : RecordPanel(Parent) {
    BuildControls();
    connect(m_flags, &FlagBoxes::Clicked, this, &ucWare::SetFlag);
    auto* top = new QHBoxLayout;
    top->addWidget(m_bar, 1);
    top->addWidget(m_icon);
    auto* rows = new QVBoxLayout(this);
    rows->setContentsMargins({});
    rows->addLayout(top);
    rows->addWidget(m_view, 1);
    rows->addWidget(m_flags);
    rows->addWidget(m_description);
}

void ucWare::BuildControls() {
    m_bar = new QToolBar(tr("Object"), this);
    m_bar->setObjectName(QStringLiteral("Bar"));
    m_bar->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    m_icon = new QLabel(this);
    m_icon->setObjectName(QStringLiteral("IconImage"));
    m_icon->setAccessibleName(tr("Icon"));
    m_icon->hide();
    m_view = new PropertyView("PropView", *this, this);
    m_view->setContextMenuPolicy(Qt::ActionsContextMenu);
    m_flags = new FlagBoxes(this);
    m_flags->hide();
    m_description = new QPlainTextEdit(this);
    m_description->setObjectName(QStringLiteral("DescEdit"));
    m_description->setAccessibleName(tr("Description"));
    m_description->setReadOnly(true);
    m_description->setTabChangesFocus(true);
    m_description->setFixedHeight((descriptionLines + 1) * fontMetrics().lineSpacing());
    AddViewAction("showbody", QStringLiteral("body"), tr("Body"),
                  tr("View object's body in external viewer"), bodyField, false);
    AddViewAction("picture", QStringLiteral("picture"), tr("Picture"),
                  tr("View object's picture in external viewer"), pictureField, false);
}

void ucWare::BuildToolbar(std::int32_t OType) {
    if (std::exchange(m_barType, OType) == OType)
        return;
    qDeleteAll(std::exchange(m_scenes, {}));
    for (const SceneButton& button : sceneButtons)
        if (button.Type == OType)
            m_scenes.append(AddViewAction(
                "showmodel", QStringLiteral("scene_%1").arg(m_scenes.size()), tr(button.Text),
                *button.Tip == '\0' ? tr(button.Text) : tr(button.Tip), button.Field, true));
}

QAction* ucWare::AddViewAction(const char* Icon, const QString& Key, const QString& Text,
                               const QString& Tip, std::int32_t Field, bool Scene) {
    QAction* action = m_bar->addAction(ToolIcon(Icon), Text);
    action->setObjectName(Key);
    action->setToolTip(Tip);
    action->setData(Field);
    action->setEnabled(false);
    m_view->addAction(action);
    connect(action, &QAction::triggered, this, [this, Field, Scene] {
        RunAction([&] {
            if (CurrentObject())
                ExportObjectToViewer(this, *CurrentObject(), Field, Scene);
        });
    });
    return action;
}

void ucWare::SetReadOnly(bool Value) {
    RecordPanel::SetReadOnly(Value);
    m_flags->SetReadOnly(Value);
}
