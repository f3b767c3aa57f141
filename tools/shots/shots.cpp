// kesh_shots: takes a picture of each window over the sample game, in a light or dark theme. The
// script ./shots runs it for each theme, scale and font.
#include "app/Main.h"
#include "app/frmFiles.h"
#include "app/frmMain.h"
#include "app/frmSettings.h"
#include "core/clsSettings.h"
#include "files/frmCATDialog.h"
#include "tdata/clsArchive.h"
#include "tdata/clsGunGroup.h"
#include "txteditor/frmEdit.h"
#include "txteditor/frmTXTEditor.h"
#include "txteditor/panels/AllPanels.h"
#include "txteditor/panels/frmGunEdit.h"
#include "txteditor/panels/frmTurretEdit.h"
#include "ui/frmAbout.h"
#include "ui/frmColorEdit.h"
#include "ui/frmFind.h"
#include "ui/frmText.h"
#include "ui/frmWait.h"

#include <CLI/CLI.hpp>

#include <iostream>

namespace {

constexpr int settleTime = 150; // milliseconds until a window has laid itself out

/// How one picture comes about: a window is opened, found by its class, made ready, and closed.
struct Shot {
    QString Name;
    const char* Class;
    std::function<void()> Open; ///< may return at once, or when the window is closed
    std::function<void(QWidget&)> Prepare = [](QWidget&) {};
};

QWidget* visibleWindow(const char* className) {
    for (QWidget* top : QApplication::topLevelWidgets())
        if (top->isVisible() && std::strcmp(top->metaObject()->className(), className) == 0)
            return top;
    return nullptr;
}

void settle() {
    QEventLoop loop;
    QTimer::singleShot(settleTime, &loop, &QEventLoop::quit);
    loop.exec();
}

/// False if the window did not show, or the picture could not be written.
bool take(const Shot& shot, const QString& file) {
    bool done = false;
    bool good = false;
    QTimer look;
    look.callOnTimeout([&] {
        if (QGuiApplication::overrideCursor())
            return; // amid work that lets events through: closing its window would be too early
        look.stop();
        if (QWidget* window = visibleWindow(shot.Class)) {
            shot.Prepare(*window);
            settle();
            good = window->grab().save(file);
            window->close();
        }
        done = true;
    });
    look.start(settleTime);
    shot.Open();
    while (!done)
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    return good;
}

void setDark() {
    QPalette palette(QColor(45, 45, 48));
    palette.setColor(QPalette::Base, QColor(30, 30, 30));
    palette.setColor(QPalette::AlternateBase, QColor(38, 38, 40));
    palette.setColor(QPalette::Highlight, QColor(38, 79, 120));
    palette.setColor(QPalette::Link, QColor(100, 170, 255));
    for (const auto role : {QPalette::Text, QPalette::WindowText, QPalette::ButtonText})
        palette.setColor(QPalette::Disabled, role, QColor(128, 128, 128));
    QApplication::setPalette(palette);
}

frmTXTEditor* openEditor(const char* file = "vfs://types\\TShips.pck") {
    auto* editor = new frmTXTEditor(AllPanels());
    editor->setAttribute(Qt::WA_DeleteOnClose);
    editor->MyShow();
    editor->OpenFile(file);
    return editor;
}

QAbstractItemView* view(QWidget& window, const char* name) {
    return window.findChild<QAbstractItemView*>(QString::fromLatin1(name));
}

void pickRow(QWidget& window, const char* list, int row) {
    view(window, list)->setCurrentIndex(view(window, list)->model()->index(row, 0));
}

/// A tab of a panel, with a record and, where there are some, a turret and a gun group selected.
Shot panelShot(const QString& name, const char* file, const char* panel, int tab,
               QSize size = {1100, 760}) {
    return {name, "frmTXTEditor", [file] { openEditor(file); },
            [panel, tab, size](QWidget& window) {
                window.resize(size);
                pickRow(window, "ObjectView", 2);
                window.findChild<QWidget*>(QString::fromLatin1(panel))
                    ->findChild<QTabWidget*>(QStringLiteral("MainTab"))
                    ->setCurrentIndex(tab);
                pickRow(window, "TurView", 2);
                pickRow(window, "GunGroupView", 1);
            }};
}

/// A file of the game with its panel.
Shot fileShot(const char* name) {
    return {QString::fromLatin1(name).toLower(), "frmTXTEditor",
            [name] { openEditor(("vfs://types\\" + std::string(name)).c_str()); },
            [](QWidget& window) {
                window.resize(1100, 760);
                pickRow(window, "ObjectView", 1);
            }};
}

template <class Dialog>
void openOfShip(const std::function<void(Dialog&, clsShip&)>& show) {
    const std::unique_ptr<frmTXTEditor> editor(openEditor());
    editor->setAttribute(Qt::WA_DeleteOnClose, false);
    clsShip ship(editor->Parser().FindIndex(2));
    Dialog dialog(editor.get());
    if (ship.LoadObjects() && ship.Turrets().size() > 1)
        show(dialog, ship);
}

Shot editorShot(const QString& name, QSize size) {
    return {name, "frmTXTEditor", [] { openEditor(); },
            [size](QWidget& window) {
                window.resize(size);
                pickRow(window, "ObjectView", 2);
            }};
}

void openValue() {
    const std::unique_ptr<frmTXTEditor> editor(openEditor());
    editor->setAttribute(Qt::WA_DeleteOnClose, false);
    frmEdit(editor.get()).ShowProperty(nullptr, editor->Parser().FindIndex(0), 0);
}

using Shots = std::vector<Shot>;

void addWindows(Shots& all) {
    for (const int tab : {0, 1, 2, 3})
        all.push_back(
            {QStringLiteral("settings%1").arg(tab), "frmSettings",
             [] { frmSettings().ShowSettings(); },
             [tab](QWidget& window) { window.findChild<QTabWidget*>()->setCurrentIndex(tab); }});
    all.push_back({QStringLiteral("files"), "frmFiles", [] { frmFiles().ShowFiles(true); }});
    all.push_back({QStringLiteral("about"), "frmAbout", [] { frmAbout().exec(); }});
    all.push_back(editorShot(QStringLiteral("txteditor"), {1000, 700}));
    all.push_back(editorShot(QStringLiteral("txteditor-small"), {800, 600}));
    all.push_back(editorShot(QStringLiteral("txteditor-large"), {2560, 1440}));
}

void addPanels(Shots& all) {
    for (int tab = 0; tab < 9; ++tab)
        all.push_back(panelShot(QStringLiteral("ship%1").arg(tab), "vfs://types\\TShips.pck",
                                "ShipEdit", tab));
    for (int tab = 0; tab < 2; ++tab)
        all.push_back(panelShot(QStringLiteral("turret%1").arg(tab), "vfs://types\\TCockpits.pck",
                                "TurretEdit", tab));
    for (int tab = 0; tab < 7; ++tab) {
        const QString name = QStringLiteral("job%1").arg(tab);
        const auto add = [&](const QString& picture, QSize size) {
            all.push_back(panelShot(picture, "vfs://types\\Jobs.pck", "JobEdit", tab, size));
        };
        add(name, {1100, 760});
        add(name + QStringLiteral("-small"), {820, 620});
    }
    for (const char* name :
         {"TShields", "TLaser", "TBullets", "TMissiles", "TWareF", "TFactories", "TSpecial",
          "TDocks", "Wrecks", "TGates", "TPlanets", "TSuns", "TAsteroids", "TDebris",
          "TBackgrounds", "TNebula", "JobWings", "IconData", "WareLists"})
        all.push_back(fileShot(name));
}

void addDialogs(Shots& all, const std::string& sample) {
    all.push_back({QStringLiteral("color"), "frmColorEdit", [] {
                       static_cast<void>(frmColorEdit().Edit(QStringLiteral("Color"), 0x20A0F0));
                   }});
    all.push_back({QStringLiteral("turretedit"), "frmTurretEdit", [] {
                       openOfShip<frmTurretEdit>([](frmTurretEdit& dialog, clsShip& ship) {
                           clsCockpitParser cockpits;
                           if (const auto file = Archive->GetFile("TCockpits"))
                               cockpits.Load(*file);
                           dialog.ShowTurret(*ship.Turrets()[1], ship, cockpits);
                       });
                   }});
    all.push_back({QStringLiteral("gunedit"), "frmGunEdit", [] {
                       openOfShip<frmGunEdit>([](frmGunEdit& dialog, clsShip& ship) {
                           dialog.NewGun(*ship.GunGroups()[1]);
                       });
                   }});
    all.push_back({QStringLiteral("value"), "frmEdit", openValue});
    all.push_back({QStringLiteral("find"), "frmFind", [] {
                       frmFind find;
                       find.ShowFindResEditor(QStringLiteral("Falcon"), true, nullptr);
                       settle();
                       settle();
                   }});
    all.push_back({QStringLiteral("catalog"), "frmCATDialog", [sample] {
                       frmCATDialog dialog;
                       dialog.Filter = QStringLiteral("All files (*.*)|*.*");
                       dialog.InitDir = "types";
                       dialog.ShowOpen(sample + "\\01.cat", nullptr);
                   }});
    all.push_back({QStringLiteral("report"), "frmText", [] {
                       frmText text;
                       text.setWindowTitle(QStringLiteral("Errors in file data"));
                       text.SetText(QStringLiteral(
                           "Ship 3: \"TurretCount\" is 4, but there are 3 turrets.\n"));
                       text.MyShow();
                   }});
    all.push_back({QStringLiteral("wait"), "frmWait",
                   [] { ShowWait(QStringLiteral("Loading resource strings...")); }});
}

Shots shots(const std::string& sample) {
    Shots all;
    addWindows(all);
    addPanels(all);
    addDialogs(all, sample);
    return all;
}

/// Settings of its own that lead to the sample; the path in the program's form.
std::string useSample(const QTemporaryDir& place, const QString& sample) {
    qputenv("KESH_CONFIG_DIR", place.filePath(QStringLiteral("config")).toUtf8());
    qputenv("KESH_STATE_DIR", place.filePath(QStringLiteral("state")).toUtf8());
    QDir(place.path()).mkdir(QStringLiteral("config"));
    std::string root = QDir(sample).absolutePath().replace(u'/', u'\\').toStdString();
    clsSettings().SetDataRoot(root);
    return root;
}

int takeAll(const QDir& target, const std::string& sample, const QString& suffix) {
    Program program;
    if (!StartUp(StartUpPhases(program, {})))
        return EXIT_FAILURE;
    settle();
    int result = program.Launcher->grab().save(target.filePath(QStringLiteral("launcher") + suffix))
                     ? EXIT_SUCCESS
                     : EXIT_FAILURE;
    for (const Shot& shot : shots(sample))
        if (!take(shot, target.filePath(shot.Name + suffix))) {
            std::cerr << "No picture of \"" << shot.Name.toStdString() << "\".\n";
            result = EXIT_FAILURE;
        }
    Archive.reset(); // before the library that it reads by ends
    return result;
}

} // namespace

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    QApplication::setStyle(QStringLiteral("Fusion"));
    CLI::App app("Takes a picture of each window.");
    std::string target;
    std::string sample;
    std::string suffix;
    bool dark = false;
    double font = 1;
    app.add_option("DIR", target, "Where the pictures go")->required();
    app.add_option("SAMPLE", sample, "Sample game")->required();
    app.add_option("--suffix", suffix, "Behind the name of each picture");
    app.add_option("--font", font, "How many times as large the font is");
    app.add_flag("--dark", dark, "Dark theme");
    CLI11_PARSE(app, argc, argv);

    if (dark)
        setDark();
    QFont larger = QApplication::font();
    larger.setPointSizeF(larger.pointSizeF() * font);
    QApplication::setFont(larger);
    const QTemporaryDir place;
    std::string root = useSample(place, QString::fromStdString(sample));
    return takeAll(QDir(QString::fromStdString(target)), root,
                   QString::fromStdString(suffix + ".png"));
}
