// Answers in the user's place where nobody foresees what is asked: every box and chooser is closed.
#pragma once

#include "ui/UserInterface.h"

namespace support {

class RefusingInterface : public UserInterface {
public:
    Answer ShowMessage(QWidget*, const MessageRequest& Request) override {
        return Request.Buttons == BoxButtons::Ok ? Answer::Ok : Answer::No;
    }
    std::optional<FileChoice> ShowOpen(QWidget*, const FileRequest&) override { return {}; }
    std::optional<FileChoice> ShowSave(QWidget*, const FileRequest&) override { return {}; }
    std::optional<QString> PickDirectory(QWidget*, const QString&, const QString&) override {
        return {};
    }
    std::optional<QColor> PickColor(QWidget*, const QString&, const QColor&) override { return {}; }
    bool RunProgram(const QString&, const QStringList&) override { return false; }
    bool OpenUrl(const QUrl&) override { return false; }
};

} // namespace support
