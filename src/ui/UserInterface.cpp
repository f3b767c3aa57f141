#include "ui/UserInterface.h"

#include "core/mdlCommon.h"
#include "ui/FileFilter.h"
#include "ui/frmWait.h"

namespace {

QMessageBox::Icon QtIcon(BoxIcon icon) {
    switch (icon) {
    case BoxIcon::Information:
        return QMessageBox::Information;
    case BoxIcon::Question:
        return QMessageBox::Question;
    case BoxIcon::Exclamation:
        return QMessageBox::Warning;
    case BoxIcon::Critical:
        return QMessageBox::Critical;
    case BoxIcon::None:
        break;
    }
    return QMessageBox::NoIcon;
}

QMessageBox::StandardButtons QtButtons(BoxButtons buttons) {
    switch (buttons) {
    case BoxButtons::YesNo:
        return QMessageBox::Yes | QMessageBox::No;
    case BoxButtons::YesNoCancel:
        return QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel;
    case BoxButtons::Ok:
        break;
    }
    return QMessageBox::Ok;
}

Answer AnswerOf(int button, BoxButtons buttons) {
    switch (button) {
    case QMessageBox::Yes:
        return Answer::Yes;
    case QMessageBox::No:
        return Answer::No;
    case QMessageBox::Cancel:
        return Answer::Cancel;
    default:
        break;
    }
    switch (buttons) {
    case BoxButtons::YesNo:
        return Answer::No;
    case BoxButtons::YesNoCancel:
        return Answer::Cancel;
    case BoxButtons::Ok:
        break;
    }
    return Answer::Ok;
}

class QtInterface final : public UserInterface {
public:
    Answer ShowMessage(QWidget* Owner, const MessageRequest& Request) override {
        if (Owner && Owner->isVisible())
            AwaitExposed(*Owner->window()); // only then is its place known, and the box over it
        QMessageBox box(QtIcon(Request.Icon), Request.Title, Request.Text,
                        QtButtons(Request.Buttons), Owner);
        box.setObjectName(QStringLiteral("MessageBox"));
        box.setTextFormat(Qt::PlainText);
        box.setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
        if (Request.NoIsDefault)
            box.setDefaultButton(QMessageBox::No);
        return AnswerOf(box.exec(), Request.Buttons);
    }

    std::optional<FileChoice> ShowOpen(QWidget* Owner, const FileRequest& Request) override {
        return Choose(Owner, Request, QFileDialog::AcceptOpen);
    }

    std::optional<FileChoice> ShowSave(QWidget* Owner, const FileRequest& Request) override {
        return Choose(Owner, Request, QFileDialog::AcceptSave);
    }

    std::optional<QString> PickDirectory(QWidget* Owner, const QString& Title,
                                         const QString& Start) override {
        QFileDialog dialog(Owner, Title, Start);
        dialog.setObjectName(QStringLiteral("DirectoryDialog"));
        dialog.setOptions(QFileDialog::DontUseNativeDialog | QFileDialog::ShowDirsOnly);
        dialog.setFileMode(QFileDialog::Directory);
        if (dialog.exec() != QDialog::Accepted)
            return {};
        return dialog.selectedFiles().value(0);
    }

    std::optional<QColor> PickColor(QWidget* Owner, const QString& Title,
                                    const QColor& Start) override {
        QColorDialog dialog(Start, Owner);
        dialog.setObjectName(QStringLiteral("ColorDialog"));
        dialog.setWindowTitle(Title);
        dialog.setOption(QColorDialog::DontUseNativeDialog);
        if (dialog.exec() != QDialog::Accepted)
            return {};
        return dialog.selectedColor();
    }

    bool RunProgram(const QString& Path, const QStringList& Arguments) override {
        return QProcess::startDetached(Path, Arguments, QFileInfo(Path).absolutePath());
    }

    bool OpenUrl(const QUrl& Url) override { return QDesktopServices::openUrl(Url); }

private:
    static std::optional<FileChoice> Choose(QWidget* owner, const FileRequest& request,
                                            QFileDialog::AcceptMode mode) {
        const QStringList filters = ToolkitFilters(request.Filter);
        QFileDialog dialog(owner, request.Title, request.Directory);
        dialog.setObjectName(QStringLiteral("FileDialog"));
        dialog.setOptions(QFileDialog::DontUseNativeDialog | QFileDialog::DontConfirmOverwrite);
        dialog.setAcceptMode(mode);
        dialog.setFileMode(mode == QFileDialog::AcceptOpen ? QFileDialog::ExistingFile
                                                           : QFileDialog::AnyFile);
        dialog.setNameFilters(filters);
        dialog.selectNameFilter(filters.value(request.FilterIndex - 1));
        if (!request.FileName.isEmpty())
            dialog.selectFile(request.FileName);
        if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty())
            return {};
        const auto filter = filters.indexOf(dialog.selectedNameFilter());
        return FileChoice{dialog.selectedFiles().constFirst(), static_cast<int>(filter) + 1};
    }
};

std::unique_ptr<UserInterface>& Current() {
    static std::unique_ptr<UserInterface> current;
    return current;
}

} // namespace

UserInterface& Ui() {
    static QtInterface own;
    return Current() ? *Current() : own;
}

std::unique_ptr<UserInterface> SetUserInterface(std::unique_ptr<UserInterface> Interface) {
    return std::exchange(Current(), std::move(Interface));
}

QString ProgramName() {
    return QString::fromStdString(ProgramTitle());
}

void ShowBox(QWidget* Owner, const QString& Title, const QString& Text, BoxIcon Icon) {
    Ui().ShowMessage(Owner, {Title, Text, Icon, BoxButtons::Ok});
}
