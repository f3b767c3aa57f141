// The windows over 100,000 rows: how long a step takes, and how long it keeps the window from
// answering.
#include "app/frmFiles.h"
#include "bench/groups.h"
#include "bench/plainread.h"
#include "bench/program.h"
#include "bench/tfile.h"
#include "files/frmCATDialog.h"
#include "keshvfs/keshvfs.h"
#include "sample/samplegame.h"
#include "tests/txteditor/fakepanel.h"
#include "txteditor/RecordListModel.h"
#include "txteditor/frmTXTEditor.h"

#include <QtWidgets>

#include <fstream>

namespace bench {

namespace {

constexpr double mostBlocked = 0.1; // seconds
constexpr double mostBlockedByPaste = 1;
constexpr auto unanswered = "longest time without an answer";
constexpr int pasted = 20000;

struct Step {
    double total = 0;   ///< until it is done and painted
    double blocked = 0; ///< the longest time without a turn of the event loop
};

/// Does the work in the event loop, beside a timer that always wants its turn, until it is done and
/// what it changed had a turn to be painted.
Step run(const std::function<void()>& work, const std::function<bool()>& done) {
    QCoreApplication::processEvents();
    Step step;
    QEventLoop loop;
    QTimer ticks;
    bool started = false;
    int turnsLeft = 2;
    const auto start = Clock::now();
    auto last = start;
    QObject::connect(&ticks, &QTimer::timeout, &loop, [&] {
        step.blocked = std::max(step.blocked, secondsSince(last));
        last = Clock::now();
        if (!started || !done())
            return;
        QCoreApplication::sendPostedEvents(nullptr, QEvent::UpdateRequest);
        if (--turnsLeft == 0)
            loop.quit();
    });
    ticks.start(0);
    QTimer::singleShot(0, &loop, [&] {
        started = true;
        work();
    });
    loop.exec();
    step.total = secondsSince(start);
    return step;
}

Step run(const std::function<void()>& work) {
    return run(work, [] { return true; });
}

class Panel : public FakePanel {
public:
    RecordPtr CreateObject(std::int32_t, clsTxtParser& parser, const RecordPtr& before) override {
        return parser.CreateObjectBefore(before);
    }
    std::string GetResourceName(const RecordPtr& object) const override {
        return "name of " + std::string(object->ObjectName());
    }
};

/// A window with so many records, and a bare proxy over the same texts in a view as the window's.
class Subject {
public:
    explicit Subject(const Options& options) : m_editor({new Panel}) {
        const std::string path = (options.directory / "TWareT.txt").string();
        writePlain(path, sample::largeWareText(std::int64_t{130} * options.files));
        m_editor.MyShow();
        m_editor.OpenFile(QString::fromStdString(path).replace(u'/', u'\\').toStdString());
        for (const RecordPtr& record : m_editor.Parser().ByIndex())
            m_names.append(QString::fromLatin1(record->ObjectName()));
        m_source.setStringList(m_names);
        m_proxy.setSourceModel(&m_source);
        m_proxy.setFilterCaseSensitivity(Qt::CaseInsensitive);
        m_bare.setUniformRowHeights(true);
        m_bare.setRootIsDecorated(false);
        m_bare.resize(500, 700);
        m_bare.setModel(&m_proxy);
        m_bare.show();
        QCoreApplication::processEvents();
    }

    template <class Control>
    Control* Find(const char* name) const {
        auto* control = m_editor.findChild<Control*>(QString::fromLatin1(name));
        if (!control)
            fail(std::string("The window has no ") + name + ".");
        return control;
    }
    Step Filter(const QString& text) {
        bool filtered = false;
        const auto* model = qobject_cast<RecordListModel*>(Find<QTreeView>("ObjectView")->model());
        const auto connection = QObject::connect(model, &RecordListModel::Filtered, &m_source,
                                                 [&] { filtered = true; });
        const Step step =
            run([&] { Find<QLineEdit>("FilterEdit")->setText(text); }, [&] { return filtered; });
        QObject::disconnect(connection);
        return step;
    }
    Step BareFilter(const QString& text) {
        return run([&] { m_proxy.setFilterFixedString(text); });
    }
    Step Sort(bool on) {
        return run([&] { Find<QCheckBox>("chkSort")->setChecked(on); });
    }
    Step BareSort(bool on) {
        return run([&] { m_proxy.sort(on ? 0 : -1); });
    }
    Step Show(const char* names) {
        return run([&] { Find<QRadioButton>(names)->click(); });
    }
    Step BareShow(const QString& prefix) {
        QStringList texts;
        for (const QString& name : m_names)
            texts.append(prefix + name);
        return run([&] { m_source.setStringList(texts); });
    }
    Step PasteMany() {
        auto* view = Find<QTreeView>("ObjectView");
        const QItemSelection rows(view->model()->index(0, 0), view->model()->index(pasted - 1, 0));
        view->selectionModel()->select(rows, QItemSelectionModel::ClearAndSelect |
                                                 QItemSelectionModel::Rows);
        Find<QAction>("mnuCopy")->trigger();
        const std::size_t before = m_editor.Parser().ByIndex().size();
        const Step step = run([&] { Find<QAction>("mnuPaste")->trigger(); });
        if (m_editor.Parser().ByIndex().size() != before + pasted)
            fail("The records were not pasted.");
        return step;
    }

private:
    frmTXTEditor m_editor;
    QStringList m_names;
    QStringListModel m_source;
    QSortFilterProxyModel m_proxy;
    QTreeView m_bare;
};

/// Steps of both sides in turns: the best time of each, and the longest that ours blocked.
struct Both {
    Times times{1e9, 1e9};
    double blocked = 0;

    void take(const Step& our, const Step& their) {
        times = {std::min(times.ours, our.total), std::min(times.reference, their.total)};
        blocked = std::max(blocked, our.blocked);
    }
};

void addRows(std::vector<Row>& rows, const std::string& work, const Both& both) {
    rows.push_back(
        withinRow(work, "bare QSortFilterProxyModel with the same texts", both.times, 3));
    rows.push_back(limitRow("(the same)", unanswered, both.blocked, mostBlocked));
}

void editorRows(const Options& options, std::vector<Row>& rows) {
    Both sort;
    for (int round = 0; round < options.rounds; ++round) {
        Subject fresh(options); // its order is kept once it is known
        sort.take(fresh.Sort(true), fresh.BareSort(true));
    }
    Subject subject(options);
    Both filter;
    Both more;
    Both names;
    subject.Show("rbName2");
    for (int round = 0; round < options.rounds; ++round) {
        filter.take(subject.Filter(QStringLiteral("9")), subject.BareFilter(QStringLiteral("9")));
        more.take(subject.Filter(QStringLiteral("99")), subject.BareFilter(QStringLiteral("99")));
        subject.Filter({});
        subject.BareFilter({});
        names.take(subject.Show("rbName0"), subject.BareShow(QStringLiteral("name of ")));
        subject.Show("rbName2");
        subject.BareShow({});
    }
    addRows(rows, "sorting the record list", sort);
    addRows(rows, "filtering it by a first letter", filter);
    addRows(rows, "filtering it by a second letter", more);
    addRows(rows, "switching the name view", names);
    rows.push_back(limitRow("pasting 20,000 records", unanswered, subject.PasteMany().blocked,
                            mostBlockedByPaste));
}

/// Takes the time until a view of that name was painted with rows, and closes its window.
class PaintWatch : public QObject {
public:
    explicit PaintWatch(const char* view) : m_view(QString::fromLatin1(view)) {
        qApp->installEventFilter(this);
    }
    double seconds = 1e9;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override {
        const auto* view = qobject_cast<QAbstractItemView*>(watched->parent());
        if (event->type() != QEvent::Paint || m_painted || !view || view->objectName() != m_view ||
            view->model()->rowCount() == 0)
            return false;
        m_painted = true;
        m_window = view->window();
        QCoreApplication::postEvent(this, new QEvent(QEvent::User), Qt::HighEventPriority);
        return false;
    }
    void customEvent(QEvent*) override { // before any timer of the window
        seconds = secondsSince(m_start);
        m_window->close();
    }

private:
    QString m_view;
    QWidget* m_window = nullptr;
    bool m_painted = false;
    Clock::time_point m_start = Clock::now();
};

/// All entries in one directory, which the dialog lists at once.
std::string writeCatalog(const Options& options) {
    std::ofstream index(options.directory / "window.cat");
    index << "KESHCAT 1 window.dat\n";
    for (int i = 0; i < options.files; ++i)
        index << i << " 1 00000000 entry" << i << ".txt\n";
    std::ofstream(options.directory / "window.dat")
        << std::string(static_cast<std::size_t>(options.files), 'x');
    return (options.directory / "window.cat").string();
}

/// What stands behind the last blank of each line but the first, in order.
QStringList readNames(const std::string& catalog) {
    const Bytes bytes = readPlain(catalog);
    QStringList names;
    std::string_view rest = bytes.view().substr(bytes.view().find('\n') + 1);
    while (!rest.empty()) {
        const std::string_view line = rest.substr(0, rest.find('\n'));
        const std::string_view name = line.substr(line.rfind(' ') + 1);
        names.append(QString::fromLatin1(name.data(), std::ssize(name)));
        rest.remove_prefix(line.size() + 1);
    }
    names.sort(Qt::CaseInsensitive);
    return names;
}

double paintCatalog(const std::string& catalog) {
    frmCATDialog dialog;
    dialog.Filter = QStringLiteral("All files (*.*)|*.*");
    const PaintWatch watch("FileView");
    dialog.ShowOpen(catalog, nullptr);
    return watch.seconds;
}

double paintFiles() {
    const PaintWatch watch("View");
    frmFiles window;
    window.ShowFiles(true);
    return watch.seconds;
}

/// A dialog with a bare view over the texts that the function gives.
template <class Texts>
double paintBare(Texts texts) {
    const PaintWatch watch("bare");
    QStringListModel model(texts());
    QDialog dialog;
    dialog.resize(700, 500);
    QTreeView view(&dialog);
    view.setObjectName(QStringLiteral("bare"));
    view.setUniformRowHeights(true);
    view.setRootIsDecorated(false);
    view.resize(dialog.size());
    view.setModel(&model);
    dialog.exec();
    return watch.seconds;
}

/// Both paint in turns; each side's best time counts.
template <class Ours, class Theirs>
Times bestPaint(int rounds, Ours ours, Theirs theirs) {
    Times best{1e9, 1e9};
    for (int round = 0; round < rounds; ++round) {
        best.ours = std::min(best.ours, ours());
        best.reference = std::min(best.reference, theirs());
    }
    return best;
}

Row catalogRow(const Options& options) {
    const std::string catalog = writeCatalog(options);
    const Times best = bestPaint(
        options.rounds, [&] { return paintCatalog(catalog); },
        [&] { return paintBare([&] { return readNames(catalog); }); });
    return withinRow("catalog dialog to its first paint",
                     "the file's names, split and sorted, in a QTreeView of texts", best, 1.5);
}

Row filesRow(const Options& options) {
    const std::filesystem::path root = options.directory / "viewed";
    std::string error;
    if (!sample::writeLargeTree(root.string(), options.files, error))
        fail(error);
    KeshVFS_AddVFSFilter("*");
    KeshVFS_CreateVFS(root.string());
    QStringList texts;
    for (int i = 0; i < options.files; ++i)
        texts.append(QString::fromStdString(sample::largeEntryName(i)));
    const Times best = bestPaint(
        options.rounds, [] { return paintFiles(); },
        [&] { return paintBare([&] { return texts; }); });
    KeshVFS_CreateVFS("");
    KeshVFS_ClearFilters();
    return withinRow("loaded files window to its first paint",
                     "QTreeView of texts that are there already", best, 1.5);
}

} // namespace

std::vector<Row> windowRows(const Options& options) {
    const Program program(options);
    std::vector<Row> rows;
    editorRows(options, rows);
    rows.push_back(catalogRow(options));
    rows.push_back(filesRow(options));
    return rows;
}

} // namespace bench
