#include "app/frmSettings.h"

#include "app/LoadKeshData.h"
#include "core/clsSettings.h"
#include "files/mdlPaths.h"
#include "keshobjects/value.h"
#include "tdata/mdlKeshConst.h"
#include "textres/clsDescServer.h"
#include "ui/CommonBoxes.h"
#include "ui/ListHelpers.h"
#include "ui/SelectOnEntry.h"
#include "ui/TextCodec.h"
#include "ui/WrappedLabel.h"
#include "ui/frmWait.h"

namespace {

constexpr int fieldWidth = 44; ///< of a path, in characters

constexpr auto programFilter =
    QT_TRANSLATE_NOOP("frmSettings", "Executable Files (*.exe)|*.exe|All Files (*.*)|*.*");

std::string typedPath(const QString& text) {
    return FromPlatform(text.trimmed().toStdString());
}

QLabel* note(const QString& text) {
    auto* label = new WrappedLabel(text);
    label->setTextFormat(Qt::PlainText);
    return label;
}

} // namespace

struct frmSettings::PathField {
    const char* Edit;
    const char* Button;
    const char* Label;
    const char* Tip;
    std::string (clsSettings::*Get)() const;
    void (clsSettings::*Set)(const std::string&);
};

struct frmSettings::CheckField {
    const char* Check;
    const char* Label;
    bool (clsSettings::*Get)() const;
    void (clsSettings::*Set)(bool);
};

const std::vector<frmSettings::PathField>& frmSettings::PathFields() {
    static const std::vector<PathField> fields = {
        {"LornPathEdit", "btnLornBrowse", QT_TR_NOOP("Path to Kesh &executable"),
         QT_TR_NOOP("Choose the game's program"), &clsSettings::KeshEXEPath,
         &clsSettings::SetKeshEXEPath},
        {"EditorEdit", "btnEditorBrowse", QT_TR_NOOP("&Program to run"),
         QT_TR_NOOP("Choose the program"), &clsSettings::CustomProgram,
         &clsSettings::SetCustomProgram},
        {"Ext3DViewerEdit", "btnExt3DViewerBrowse", QT_TR_NOOP("&Path to 3D viewer"),
         QT_TR_NOOP("Choose the viewer's program"), &clsSettings::Ext3DViewerPath,
         &clsSettings::SetExt3DViewerPath},
        {"DataDir", "btnDataDirBrowse", QT_TR_NOOP("&Direcotory with data files"),
         QT_TR_NOOP("Choose the game's directory"), &clsSettings::DataRoot,
         &clsSettings::SetDataRoot},
    };
    return fields;
}

const std::vector<frmSettings::CheckField>& frmSettings::CheckFields() {
    static const std::vector<CheckField> fields = {
        {"chkLoadDesc", QT_TR_NOOP("       &Load object descriptions"),
         &clsSettings::LoadDescriptions, &clsSettings::SetLoadDescriptions},
        {"chkUseDD", QT_TR_NOOP("Use Direct&Draw (better performance)"),
         &clsSettings::UseDirectDraw, &clsSettings::SetUseDirectDraw},
        {"chkUseDBuf", QT_TR_NOOP("Use double &buffer (no flickering)"),
         &clsSettings::UseDoubleBuffer, &clsSettings::SetUseDoubleBuffer},
        {"chkExt3DViewerSupportsLornFD",
         QT_TR_NOOP("&Viewer supports LornFD paths (catalog.cat::file.txt)"),
         &clsSettings::Ext3DViewerSupportsLornFD, &clsSettings::SetExt3DViewerSupportsLornFD},
    };
    return fields;
}

frmSettings::frmSettings(QWidget* Owner) : QDialog(Owner) {
    setObjectName(QStringLiteral("frmSettings"));
    setWindowTitle(tr("Settings"));
    m_tabs = new QTabWidget(this);
    m_tabs->setObjectName(QStringLiteral("MainTab"));
    m_tabs->addTab(BuildCommonPage(), tr("Common"));
    m_tabs->addTab(BuildGraphicsPage(), tr("Graphics"));
    m_tabs->addTab(BuildViewerPage(), tr("3D Viewer"));
    m_tabs->addTab(BuildGamePage(), tr("Game"));

    auto* rows = new QVBoxLayout(this);
    rows->addWidget(m_tabs);
    rows->addLayout(BuildButtons());
    for (QLineEdit* edit : findChildren<QLineEdit*>())
        new SelectOnEntry(*edit, true);
    for (const char* check : {"chkLoadDesc", "chkUseDD"})
        connect(Check(check), &QCheckBox::toggled, this, &frmSettings::EnableControls);
    HelpOnF1(this, "settings.html");
}

QWidget* frmSettings::BuildCommonPage() {
    auto* page = new QWidget;
    auto* custom = new QGroupBox(tr("Custom program"), page);
    auto* program = new QFormLayout(custom);
    AddPathField(program, "EditorEdit");
    program->addRow(
        note(tr("* You can rename the icon by right clicking it and selecting Rename")));

    m_language = new QComboBox(page);
    m_language->setObjectName(QStringLiteral("cmbLangID"));
    m_language->setEditable(true);
    m_language->setInsertPolicy(QComboBox::NoInsert);
    m_language->setCompleter(nullptr); // it would change a code that is typed
    const auto codes = LanguageIDs();
    for (std::size_t row = 0; row < codes.size(); ++row)
        m_language->addItem(
            QStringLiteral("%1 - %2")
                .arg(codes[row], 2, 10, QLatin1Char('0'))
                .arg(ToScreen(ListItemRaw(LanguageNames, static_cast<std::int32_t>(row)))),
            codes[row]);
    auto* descriptions = new QFormLayout;
    QCheckBox* load = AddCheckField("chkLoadDesc");
    descriptions->addRow(load);
    descriptions->addRow(tr("Use this language &ID for descriptions"), m_language);
    descriptions->addRow(
        note(tr("* You can write the code  directly if your language is not listed")));

    auto* rows = new QVBoxLayout(page);
    rows->addWidget(custom);
    rows->addLayout(descriptions);
    rows->addStretch();
    setTabOrder(load, m_language);
    return page;
}

QWidget* frmSettings::BuildGraphicsPage() {
    auto* page = new QWidget;
    auto* rows = new QVBoxLayout(page);
    rows->addWidget(AddCheckField("chkUseDD"));
    rows->addWidget(AddCheckField("chkUseDBuf"));
    rows->addStretch();
    return page;
}

QWidget* frmSettings::BuildViewerPage() {
    auto* page = new QWidget;
    auto* form = new QFormLayout(page);
    AddPathField(form, "Ext3DViewerEdit");
    m_viewerCommand = new QLineEdit(page);
    m_viewerCommand->setObjectName(QStringLiteral("Ext3DViewerCmdLineEdit"));
    form->addRow(tr("&Command line"), m_viewerCommand);
    form->addRow(note(tr("Use %1 for file name, %2 for actual T file data")));
    form->addRow(AddCheckField("chkExt3DViewerSupportsLornFD"));
    return page;
}

QWidget* frmSettings::BuildGamePage() {
    auto* page = new QWidget;
    auto* game = new QGroupBox(tr("Game"), page);
    auto* form = new QFormLayout(game);
    AddPathField(form, "DataDir");
    AddPathField(form, "LornPathEdit");
    auto* rows = new QVBoxLayout(page);
    rows->addWidget(game);
    rows->addStretch();
    return page;
}

QLayout* frmSettings::BuildButtons() {
    auto* buttons = new QDialogButtonBox(
        QDialogButtonBox::Ok | QDialogButtonBox::Cancel | QDialogButtonBox::Help, this);
    const std::pair<QDialogButtonBox::StandardButton, const char*> names[] = {
        {QDialogButtonBox::Ok, "btnOK"},
        {QDialogButtonBox::Cancel, "btnCancel"},
        {QDialogButtonBox::Help, "btnHelp"},
    };
    for (const auto& [button, name] : names)
        buttons->button(button)->setObjectName(QString::fromLatin1(name));
    buttons->button(QDialogButtonBox::Cancel)->setText(tr("Cancel"));
    buttons->button(QDialogButtonBox::Help)->setText(tr("Help"));
    connect(buttons, &QDialogButtonBox::accepted, this, &frmSettings::OnOK);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(buttons, &QDialogButtonBox::helpRequested, this,
            [this] { ShowHelp(this, "settings.html"); });
    auto* row = new QHBoxLayout;
    row->addWidget(buttons);
    return row;
}

void frmSettings::AddPathField(QFormLayout* Form, const char* Edit) {
    const auto& fields = PathFields();
    const auto field = std::find_if(fields.begin(), fields.end(), [Edit](const PathField& f) {
        return std::string_view(f.Edit) == Edit;
    });
    auto* edit = new QLineEdit;
    edit->setObjectName(QString::fromLatin1(field->Edit));
    edit->setMinimumWidth(fieldWidth * fontMetrics().averageCharWidth());
    auto* browse = new QPushButton(tr("Browse..."));
    browse->setObjectName(QString::fromLatin1(field->Button));
    browse->setToolTip(tr(field->Tip));
    browse->setAccessibleName(tr(field->Tip));
    browse->setAutoDefault(false);
    connect(browse, &QPushButton::clicked, this, [this, &found = *field] {
        if (found.Get == &clsSettings::DataRoot)
            BrowseDataDir();
        else
            BrowseProgram(found);
    });
    auto* label = new QLabel(tr(field->Label));
    label->setBuddy(edit);
    auto* row = new QHBoxLayout;
    row->addWidget(edit);
    row->addWidget(browse);
    Form->addRow(label);
    Form->addRow(row);
}

QCheckBox* frmSettings::AddCheckField(const char* Check) {
    const auto& fields = CheckFields();
    const auto field = std::find_if(fields.begin(), fields.end(), [Check](const CheckField& f) {
        return std::string_view(f.Check) == Check;
    });
    auto* check = new QCheckBox(tr(field->Label));
    check->setObjectName(QString::fromLatin1(field->Check));
    return check;
}

QLineEdit* frmSettings::Edit(const char* Name) const {
    return findChild<QLineEdit*>(QString::fromLatin1(Name));
}
QCheckBox* frmSettings::Check(const char* Name) const {
    return findChild<QCheckBox*>(QString::fromLatin1(Name));
}

void frmSettings::ShowSettings(bool Modal) {
    Fill();
    EnableControls();
    if (Modal)
        exec();
    else
        show();
}

void frmSettings::Fill() {
    ModalResult = modal::None;
    for (const PathField& field : PathFields())
        Edit(field.Edit)->setText(ShownText((*Settings.*field.Get)()));
    for (const CheckField& field : CheckFields())
        Check(field.Check)->setChecked((*Settings.*field.Get)());
    m_viewerCommand->setText(QString::fromStdString(Settings->Ext3DViewerCmdLine()));
    const int language = Settings->DescLangID();
    if (!ComboSelectData(*m_language, language))
        m_language->setEditText(QString::number(language));
    m_applied = {Settings->DataRoot(), Settings->LoadDescriptions(), language};
    if (m_applied.DataRoot.empty()) { // what a new user has to say first
        m_tabs->setCurrentIndex(m_tabs->count() - 1);
        Edit("DataDir")->setFocus();
    }
}

void frmSettings::EnableControls() {
    m_language->setEnabled(Check("chkLoadDesc")->isChecked());
    Check("chkUseDBuf")->setEnabled(!Check("chkUseDD")->isChecked());
}

void frmSettings::BrowseProgram(const PathField& Field) {
    const QFileInfo now(Edit(Field.Edit)->text());
    FileRequest request{windowTitle(), tr(programFilter), 1, {}, {}};
    if (now.isAbsolute()) {
        request.Directory = now.absolutePath();
        request.FileName = now.fileName();
    }
    if (QDir::separator() == u'/') // programs have no extension there
        request.FilterIndex = 2;
    if (const auto choice = Ui().ShowOpen(this, request))
        Edit(Field.Edit)->setText(QDir::toNativeSeparators(choice->FileName));
}

void frmSettings::BrowseDataDir() {
    QLineEdit* const edit = Edit("DataDir");
    const auto directory =
        Ui().PickDirectory(this, tr("Select directory containing game data files."), edit->text());
    if (directory)
        edit->setText(QDir::toNativeSeparators(*directory));
}

void frmSettings::OnOK() {
    StoreFields();
    if (!StoreLanguage())
        return;
    ModalResult = modal::Ok;
    accept();
    ApplyChanges();
}

void frmSettings::StoreFields() {
    // A path that was not touched is not written, so that one left to its default stays so.
    for (const PathField& field : PathFields())
        if (const QString text = Edit(field.Edit)->text();
            text != ShownText((*Settings.*field.Get)()))
            (*Settings.*field.Set)(typedPath(text));
    for (const CheckField& field : CheckFields())
        (*Settings.*field.Set)(Check(field.Check)->isChecked());
    Settings->SetExt3DViewerCmdLine(m_viewerCommand->text().toStdString());
}

bool frmSettings::StoreLanguage() {
    std::optional<std::int32_t> code = ComboItemData(*m_language);
    if (*code == -1) {
        const auto number =
            keshobjects::readNumber(m_language->currentText().trimmed().toStdString());
        code = number ? keshobjects::roundToInteger(*number) : std::nullopt;
    }
    if (!code) {
        ValueError(this, windowTitle(), "Lang ID", 0);
        m_tabs->setCurrentIndex(0); // where it stands
        m_language->setFocus();
        return false;
    }
    Settings->SetDescLangID(*code);
    return true;
}

void frmSettings::ApplyChanges() {
    const bool load = Settings->LoadDescriptions();
    const int language = Settings->DescLangID();
    QWidget* const owner = parentWidget();
    if (Settings->DataRoot() != m_applied.DataRoot) {
        ReloadKeshData(owner);
    } else if (load && (language != m_applied.Language || !m_applied.LoadDescriptions)) {
        ShowWait(tr("Loading resource strings..."), owner);
        (void)DescServer->LoadResources(language);
        CloseWait(owner);
    }
    if (!load)
        DescServer->Unload();
}
