#include "bench/program.h"

#include "core/clsSettings.h"
#include "core/mdlCommon.h"
#include "tdata/clsArchive.h"
#include "tdata/mdlKeshConst.h"
#include "textres/clsDescServer.h"
#include "ui/UserInterface.h"

namespace bench {

namespace {

class Refusing : public UserInterface {
public:
    Answer ShowMessage(QWidget*, const MessageRequest& request) override {
        return request.Buttons == BoxButtons::Ok ? Answer::Ok : Answer::No;
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

} // namespace

Program::Program(const Options& options) {
    qputenv("KESH_CONFIG_DIR", QByteArray::fromStdString(options.directory.string()));
    qputenv("KESH_STATE_DIR", QByteArray::fromStdString(options.directory.string()));
    InitArrays();
    Settings = std::make_unique<clsSettings>();
    DescServer = std::make_unique<clsDescServer>();
    Archive = std::make_unique<clsArchive>();
    m_former = SetUserInterface(std::make_unique<Refusing>());
}

Program::~Program() {
    SetUserInterface(std::move(m_former));
    Archive.reset();
    DescServer.reset();
    Settings.reset();
}

} // namespace bench
