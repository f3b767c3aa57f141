// Everything that asks the user or leaves the program: boxes, choosers, other programs.
//
// The windows speak to this one interface, so that a test can answer in the user's place. Paths
// here are the platform's own; the caller brings them into the program's form and back.
#pragma once

#include <QtWidgets>

#include <memory>
#include <optional>

enum class BoxIcon { None, Information, Question, Exclamation, Critical };
enum class BoxButtons { Ok, YesNo, YesNoCancel };
enum class Answer { Ok, Yes, No, Cancel };

struct MessageRequest {
    QString Title;
    QString Text; ///< shown as plain text
    BoxIcon Icon = BoxIcon::None;
    BoxButtons Buttons = BoxButtons::Ok;
    bool NoIsDefault = false; ///< where Yes loses something
};

struct FileRequest {
    QString Title;
    QString Filter;      ///< pairs of label and mask joined by "|", masks by ";"
    int FilterIndex = 1; ///< counted from 1
    QString Directory;
    QString FileName; ///< a name in Directory or a whole path; may be empty
};

struct FileChoice {
    QString FileName;
    int FilterIndex = 1;
};

class UserInterface {
public:
    virtual ~UserInterface() = default;

    /// Modal. Closing the box by other means gives Cancel where there is one, else No, else Ok.
    virtual Answer ShowMessage(QWidget* Owner, const MessageRequest& Request) = 0;
    /// Nothing after Cancel; so for all choosers.
    virtual std::optional<FileChoice> ShowOpen(QWidget* Owner, const FileRequest& Request) = 0;
    /// Does not ask about an existing file: the caller has its own words for that.
    virtual std::optional<FileChoice> ShowSave(QWidget* Owner, const FileRequest& Request) = 0;
    virtual std::optional<QString> PickDirectory(QWidget* Owner, const QString& Title,
                                                 const QString& Start) = 0;
    virtual std::optional<QColor> PickColor(QWidget* Owner, const QString& Title,
                                            const QColor& Start) = 0;
    /// Starts a program in its own directory and lets it go; false if it did not start.
    [[nodiscard]] virtual bool RunProgram(const QString& Path, const QStringList& Arguments) = 0;
    /// Hands an address to the user's browser.
    [[nodiscard]] virtual bool OpenUrl(const QUrl& Url) = 0;
};

/// The interface in use: Qt's own dialogs unless a test has put another one in place.
UserInterface& Ui();
/// Puts another one in place and gives the former; none stands for Qt's own dialogs.
std::unique_ptr<UserInterface> SetUserInterface(std::unique_ptr<UserInterface> Interface);

/// ProgramTitle for the screen: the title of most boxes.
[[nodiscard]] QString ProgramName();
/// A box with one OK button.
void ShowBox(QWidget* Owner, const QString& Title, const QString& Text, BoxIcon Icon);
