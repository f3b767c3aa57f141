#include "ui/frmAbout.h"

#include "core/mdlCommon.h"
#include "ui/Icons.h"

namespace {

struct Library {
    const char* Name;
    const char* Purpose;
};

constexpr std::array libraries = {
    Library{"lornfd", QT_TRANSLATE_NOOP("frmAbout", "files, packed files and catalogs")},
    Library{"keshvfs", QT_TRANSLATE_NOOP("frmAbout", "merged view of the game's files")},
    Library{"keshobjects", QT_TRANSLATE_NOOP("frmAbout", "texts of the game's files")},
};

} // namespace

frmAbout::frmAbout(QWidget* Owner) : QDialog(Owner) {
    setObjectName(QStringLiteral("frmAbout"));
    const QString title = QString::fromStdString(ProgramTitle());
    const QString version = QString::fromStdString(ProgramVersion());
    setWindowTitle(tr("About %1").arg(title));

    auto* picture = new QLabel(this);
    const int side = 4 * fontMetrics().height();
    picture->setPixmap(ToolIcon("about").pixmap(side, side));
    auto* name = new QLabel(title, this);
    name->setObjectName(QStringLiteral("lblTitle"));
    QFont large = name->font();
    large.setPointSizeF(large.pointSizeF() * 1.6);
    name->setFont(large);
    auto* versionLabel = new QLabel(tr("Version %1").arg(version), this);
    versionLabel->setObjectName(QStringLiteral("lblVersion"));

    auto* table = new QFormLayout;
    table->setHorizontalSpacing(2 * fontMetrics().height());
    for (const Library& library : libraries)
        table->addRow(tr("%1 %2").arg(QString::fromLatin1(library.Name), version),
                      new QLabel(tr(library.Purpose), this));
    table->addRow(tr("Qt %1").arg(QString::fromLatin1(qVersion())),
                  new QLabel(tr("windows and platform services"), this));
    auto* licence = new QLabel(tr("Free software under the MIT licence."), this);
    licence->setObjectName(QStringLiteral("lblLicence"));
    auto* buttons = new QDialogButtonBox(this);
    auto* close = buttons->addButton(tr("Close"), QDialogButtonBox::AcceptRole);
    close->setObjectName(QStringLiteral("btnOK"));
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);

    auto* grid = new QGridLayout(this);
    grid->setHorizontalSpacing(fontMetrics().height());
    grid->addWidget(picture, 0, 0, 2, 1, Qt::AlignTop);
    grid->addWidget(name, 0, 1);
    grid->addWidget(versionLabel, 1, 1);
    grid->addLayout(table, 2, 1);
    grid->addWidget(licence, 3, 1);
    grid->addWidget(buttons, 4, 0, 1, 2);
    grid->setSizeConstraint(QLayout::SetFixedSize);
}
