#include "app/killdriver.h"

#include "app/Main.h"
#include "app/frmMain.h"
#include "txteditor/frmEdit.h"
#include "txteditor/frmTXTEditor.h"
#include "ui/UserInterface.h"

#include <random>

namespace {

using namespace std::chrono;

constexpr int fields = 17;
constexpr std::size_t fewestRecords = 20; ///< that are left by deleting

template <class Window>
Window* shownWindow() {
    for (QWidget* top : QApplication::topLevelWidgets())
        if (auto* window = qobject_cast<Window*>(top); window && window->isVisible())
            return window;
    return nullptr;
}

class Driver final : public UserInterface {
public:
    Driver(const QString& log, std::uint32_t seed) : m_log(log), m_random(seed) {
        if (!m_log.open(QIODevice::WriteOnly | QIODevice::Unbuffered))
            qFatal("There is no log.");
        next(&Driver::waitForFile);
    }

    Answer ShowMessage(QWidget*, const MessageRequest& request) override {
        const QStringList foreseen = {QStringLiteral("bring them back"),
                                      QStringLiteral("already exists"),
                                      QStringLiteral("really want to delete")};
        if (std::ranges::none_of(foreseen, [&](auto& text) { return request.Text.contains(text); }))
            qFatal("Unforeseen box: %s", qUtf8Printable(request.Text));
        return Answer::Yes;
    }
    std::optional<FileChoice> ShowSave(QWidget*, const FileRequest& request) override {
        const bool packed = number(2) == 1;
        m_target = packed ? QStringLiteral("TWareT.pck") : QStringLiteral("TWareT.txt");
        note("saving");
        return FileChoice{QDir(request.Directory).filePath(m_target), packed ? 2 : 1};
    }
    std::optional<FileChoice> ShowOpen(QWidget*, const FileRequest&) override { return {}; }
    std::optional<QString> PickDirectory(QWidget*, const QString&, const QString&) override {
        return {};
    }
    std::optional<QColor> PickColor(QWidget*, const QString&, const QColor&) override { return {}; }
    bool RunProgram(const QString&, const QStringList&) override { return false; }
    bool OpenUrl(const QUrl&) override { return false; }

private:
    void next(void (Driver::*what)()) {
        QTimer::singleShot(0, qApp, [this, what] { (this->*what)(); });
    }
    int number(int below) { return static_cast<int>(m_random() % static_cast<unsigned>(below)); }

    void note(const char* what) {
        const auto now = duration_cast<milliseconds>(steady_clock::now().time_since_epoch());
        m_log.write(QStringLiteral("%1 %2 %3 %4\n")
                        .arg(now.count())
                        .arg(QString::fromLatin1(what), m_target,
                             QString::fromStdString(DigestOf(TextOf(m_editor->Parser()))))
                        .toUtf8());
    }

    void waitForFile() {
        m_editor = shownWindow<frmTXTEditor>();
        const bool started =
            shownWindow<frmMain>() && m_editor && !m_editor->Parser().FileName.empty();
        if (!started)
            return next(&Driver::waitForFile);
        QApplication::setActiveWindow(m_editor);
        m_editor->findChild<QTabWidget*>(QStringLiteral("MainTab"))->setCurrentIndex(0); // raw data
        note("start");
        next(&Driver::step);
    }
    void step() {
        static constexpr std::array steps = {&Driver::edit, &Driver::edit,  &Driver::edit,
                                             &Driver::undo, &Driver::redo,  &Driver::undo,
                                             &Driver::redo, &Driver::remove};
        if (number(m_stepsPerSave) == 0)
            save();
        else
            (this->*steps[static_cast<std::size_t>(number(steps.size()))])();
        next(&Driver::step);
    }

    void trigger(const char* action) {
        m_editor->findChild<QAction*>(QString::fromLatin1(action))->trigger();
    }
    void pick(const char* name, int row) {
        auto* view = m_editor->findChild<QAbstractItemView*>(QString::fromLatin1(name));
        view->setCurrentIndex(view->model()->index(row, 0));
    }
    void pickRecord() {
        pick("ObjectView", number(static_cast<int>(m_editor->Parser().ByIndex().size())));
    }

    void edit() {
        static constexpr std::array texts = {"%1", "0%1", "%1.50", "-%1e2", "WARE_%1", ""};
        pickRecord();
        pick("ObjectDataView", number(fields));
        const QString form = QString::fromLatin1(texts[static_cast<std::size_t>(number(6))]);
        const QString text = form.contains(u'%') ? form.arg(m_random()) : form;
        QTimer::singleShot(0, qApp, [text] {
            auto* dialog = qobject_cast<frmEdit*>(QApplication::activeModalWidget());
            if (!dialog)
                qFatal("There is no value dialog.");
            dialog->findChild<QComboBox*>(QStringLiteral("cmbValue"))->setEditText(text);
            dialog->findChild<QPushButton*>(QStringLiteral("btnOK"))->click();
        });
        trigger("edit");
        note("edit");
    }
    void undo() {
        trigger("undo");
        note("undo");
    }
    void redo() {
        trigger("redo");
        note("redo");
    }
    void remove() {
        if (m_editor->Parser().ByIndex().size() <= fewestRecords)
            return;
        pickRecord();
        trigger("mnuDel");
        note("remove");
    }
    void save() {
        if (!m_editor->SaveFile())
            qFatal("The file was not saved.");
        note("saved");
    }

    QFile m_log;
    std::mt19937 m_random;
    int m_stepsPerSave = std::array{4, 60, 1000}[m_random() % 3];
    QString m_target = QStringLiteral("-");
    frmTXTEditor* m_editor = nullptr;
};

} // namespace

int DriveProgram(const QString& Log, std::uint32_t Seed) {
    const auto former = SetUserInterface(std::make_unique<Driver>(Log, Seed));
    return Main();
}

std::string TextOf(const clsTxtParser& Parser) {
    std::string text = "48;" + std::to_string(Parser.ByIndex().size()) + ";\r\n";
    for (const RecordPtr& record : Parser.ByIndex())
        text += record->GetObjectTData() + "\r\n";
    return text;
}

std::string DigestOf(const std::string& Text) {
    return QCryptographicHash::hash(QByteArray::fromStdString(Text), QCryptographicHash::Md5)
        .toHex()
        .toStdString();
}
