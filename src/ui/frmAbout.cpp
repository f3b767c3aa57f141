#include "ui/frmAbout.h"

#include "core/mdlCommon.h"
#include "ui/CommonBoxes.h"
#include "ui/Icons.h"

namespace {

struct Library {
    const char* Name;
    const char* Purpose;
    const char* Licence; ///< empty for the program's own
};

constexpr std::array libraries = {
    Library{"lornfd", QT_TRANSLATE_NOOP("frmAbout", "files, packed files and catalogs"), ""},
    Library{"keshvfs", QT_TRANSLATE_NOOP("frmAbout", "merged view of the game's files"), ""},
    Library{"keshobjects", QT_TRANSLATE_NOOP("frmAbout", "texts of the game's files"), ""},
    Library{"Qt %1", QT_TRANSLATE_NOOP("frmAbout", "windows and platform services"), "LGPL 3"},
    Library{"libdeflate", QT_TRANSLATE_NOOP("frmAbout", "older packed files"), "MIT"},
    Library{"Zstandard", QT_TRANSLATE_NOOP("frmAbout", "newer packed files"), "BSD"},
};

QString licence() {
    QFile file(QStringLiteral(":/icons/LICENSE"));
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

QString paragraph(const QString& text) {
    return QStringLiteral("<p>%1</p>").arg(text.toHtmlEscaped());
}

QString libraryTable() {
    QString rows;
    for (const Library& library : libraries) {
        const bool own = *library.Licence == '\0';
        const QString version = QString::fromStdString(ProgramVersion());
        const QString name = QString::fromLatin1(library.Name);
        const QString shown =
            own ? name + u' ' + version
                : QString(name).replace(QStringLiteral("%1"), QString::fromLatin1(qVersion()));
        const QString terms = own ? QStringLiteral("MIT") : QString::fromLatin1(library.Licence);
        rows += QStringLiteral("<tr><td>%1</td><td>%2</td><td>%3</td></tr>")
                    .arg(shown, frmAbout::tr(library.Purpose).toHtmlEscaped(), terms);
    }
    return QStringLiteral("<table cellpadding=\"3\">%1</table>").arg(rows);
}

QString aboutText() {
    QString text = paragraph(frmAbout::tr("Made by the Kesh Editor authors. Pictures: our own."));
    text += libraryTable() + paragraph(frmAbout::tr("Free software under the MIT licence."));
    for (const QString& part : licence().split(QStringLiteral("\n\n")))
        text += paragraph(part);
    return text;
}

} // namespace

frmAbout::frmAbout(QWidget* Owner) : QDialog(Owner) {
    setObjectName(QStringLiteral("frmAbout"));
    setWindowTitle(tr("About %1").arg(ProgramName()));
    auto* grid = new QGridLayout(this);
    grid->setColumnStretch(1, 1);
    grid->setHorizontalSpacing(fontMetrics().height());
    grid->addWidget(BuildPicture(), 0, 0, 2, 1, Qt::AlignTop);
    grid->addWidget(BuildName(), 0, 1);
    grid->addWidget(BuildVersion(), 1, 1);
    grid->addWidget(BuildLicences(), 2, 0, 1, 2);
    grid->addWidget(BuildButtons(), 3, 0, 1, 2);
    HelpOnF1(this, "about.html");
    resize(QSize(72 * fontMetrics().averageCharWidth(), 24 * fontMetrics().height())
               .boundedTo(screen()->availableSize()));
}

QWidget* frmAbout::BuildPicture() {
    auto* picture = new QLabel(this);
    const int side = 3 * fontMetrics().height();
    picture->setPixmap(ToolIcon("kesh").pixmap(side, side));
    return picture;
}

QWidget* frmAbout::BuildName() {
    auto* name = new QLabel(ProgramName(), this);
    name->setObjectName(QStringLiteral("lblTitle"));
    QFont large = name->font();
    large.setPointSizeF(large.pointSizeF() * 1.6);
    name->setFont(large);
    return name;
}

QWidget* frmAbout::BuildVersion() {
    const QString version = QString::fromStdString(ProgramVersion());
    auto* label = new QLabel(tr("Version %1").arg(version), this);
    label->setObjectName(QStringLiteral("lblVersion"));
    return label;
}

QWidget* frmAbout::BuildLicences() {
    auto* text = new QTextBrowser(this);
    text->setObjectName(QStringLiteral("txtLicences"));
    text->setAccessibleName(tr("Libraries and licences"));
    text->setHtml(aboutText());
    return text;
}

QWidget* frmAbout::BuildButtons() {
    auto* buttons = new QDialogButtonBox(this);
    auto* close = buttons->addButton(tr("Close"), QDialogButtonBox::AcceptRole);
    close->setObjectName(QStringLiteral("btnOK"));
    close->setDefault(true);
    close->setFocus();
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    return buttons;
}
