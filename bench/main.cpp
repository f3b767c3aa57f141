// kesh_bench: each figure beside the reference it is held against, from the same run on the same
// data.

#include "bench/groups.h"

#include <CLI/CLI.hpp>
#include <QApplication>
#include <QTemporaryDir>

#include <iostream>

namespace {

using Group = std::pair<const char*, std::vector<bench::Row> (*)(const bench::Options&)>;
constexpr std::array<Group, 6> groups = {{
    {"load", bench::loadRows},
    {"packed", bench::packedRows},
    {"save", bench::saveRows},
    {"catalog", bench::catalogRows},
    {"view", bench::viewRows},
    {"list", bench::listRows},
}};

} // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    CLI::App app("Measures Kesh Editor's libraries against plain code that does the same work.");
    bench::Options options;
    std::string only;
    std::string place = "/var/tmp";
    app.add_option("--mb", options.megabytes, "Size of the T text in MB")
        ->check(CLI::Range(1, 4000));
    app.add_option("--files", options.files, "Entries, loose files, rows")
        ->check(CLI::Range(1, 10000000));
    app.add_option("--rounds", options.rounds, "Rounds of which the best counts")
        ->check(CLI::Range(1, 100));
    app.add_option("--only", only, "One group: load, packed, save, catalog, view, list");
    app.add_option("--place", place,
                   "Directory on the disk to measure; a temporary one is made there");
    CLI11_PARSE(app, argc, argv);

    const QTemporaryDir directory(QString::fromStdString(place) +
                                  QStringLiteral("/keshbench-XXXXXX"));
    options.directory = directory.path().toStdString();
    std::vector<bench::Row> rows;
    for (const auto& [name, measure] : groups)
        if (only.empty() || only == name)
            std::ranges::move(measure(options), std::back_inserter(rows));
    std::cout << bench::tableOf(rows);
    return std::ranges::all_of(rows, &bench::Row::met) ? 0 : 1;
}
