// kesh_bench: each figure beside the reference it is held against, from the same run on the same
// data.

#include "bench/groups.h"

#include <CLI/CLI.hpp>
#include <QApplication>
#include <QDate>
#include <QFile>
#include <QRegularExpression>
#include <QSysInfo>
#include <QTemporaryDir>
#include <QThread>

#include <fstream>
#include <iostream>

namespace {

using Group = std::pair<const char*, std::vector<bench::Row> (*)(const bench::Options&)>;
constexpr std::array<Group, 12> groups = {{
    {"load", bench::loadRows},
    {"packed", bench::packedRows},
    {"save", bench::saveRows},
    {"catalog", bench::catalogRows},
    {"view", bench::viewRows},
    {"list", bench::listRows},
    {"ships", bench::shipRows},
    {"shippanel", bench::shipPanelRows},
    {"panels", bench::panelRows},
    {"texts", bench::textRows},
    {"check", bench::checkRows},
    {"windows", bench::windowRows},
}};

std::string machineName() {
    QFile file(QStringLiteral("/proc/cpuinfo"));
    if (!file.open(QIODevice::ReadOnly))
        return QSysInfo::currentCpuArchitecture().toStdString();
    const QString text = QString::fromUtf8(file.readAll());
    const QRegularExpression model(QStringLiteral("model name\\s*: ([^\n]*)"));
    return model.match(text).captured(1).toStdString();
}

/// The page about speed, with date and machine.
bool writePage(const std::string& path, const bench::Options& options, const std::string& table) {
    std::ofstream out(path);
    out << "# Speed and memory\n\nMeasured on "
        << QDate::currentDate().toString(Qt::ISODate).toStdString() << ": " << machineName() << ", "
        << QThread::idealThreadCount() << " cores, " << QSysInfo::prettyProductName().toStdString()
        << ", " << QSysInfo::kernelVersion().toStdString() << ".\n\n"
        << "`build/bench/bench/kesh_bench --write docs/performance.md` (preset `bench`) makes this "
           "page. Each figure stands beside\na reference from the same run on the same data: "
        << options.megabytes << " MB of T text, " << options.files
        << " files, entries and rows. Both sides run in turns, the\nbest of " << options.rounds
        << " rounds counts. A ratio of speed is the reference's time over ours, a ratio of time "
           "ours "
           "over the reference's.\n\n"
        << table;
    out.close();
    return !out.fail();
}

} // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    CLI::App app("Measures Kesh Editor's libraries against plain code that does the same work.");
    bench::Options options;
    std::string only;
    std::string page;
    std::string place = "/var/tmp";
    app.add_option("--mb", options.megabytes, "Size of the T text in MB")
        ->check(CLI::Range(1, 4000));
    app.add_option("--files", options.files, "Entries, loose files, rows")
        ->check(CLI::Range(1, 10000000));
    app.add_option("--rounds", options.rounds, "Rounds of which the best counts")
        ->check(CLI::Range(1, 100));
    app.add_option("--only", only,
                   "One group: load, packed, save, catalog, view, list, ships, shippanel, panels, "
                   "texts, check, windows");
    app.add_option("--place", place,
                   "Directory on the disk to measure; a temporary one is made there");
    app.add_option("--write", page, "Also write the page with date, machine and table here");
    CLI11_PARSE(app, argc, argv);

    const QTemporaryDir directory(QString::fromStdString(place) +
                                  QStringLiteral("/keshbench-XXXXXX"));
    options.directory = directory.path().toStdString();
    std::vector<bench::Row> rows;
    for (const auto& [name, measure] : groups)
        if (only.empty() || only == name)
            std::ranges::move(measure(options), std::back_inserter(rows));
    const std::string table = bench::tableOf(rows);
    std::cout << table;
    if (!page.empty() && !writePage(page, options, table))
        return 3;
    return std::ranges::all_of(rows, &bench::Row::met) ? 0 : 1;
}
