// Every panel but the ships' over 20,000 records: opening a file until the first is shown, and
// selecting one after the other.
#include "bench/groups.h"
#include "bench/panelgame.h"
#include "bench/tfile.h"
#include "tdata/clsArchive.h"
#include "tdata/mdlKeshConst.h"

#include <QtWidgets>

#include <algorithm>
#include <array>
#include <map>

namespace bench {

namespace {

constexpr int records = 20000;
constexpr double paintings = 1.5; ///< of a bare view, that may be taken beside loading

constexpr std::array wareFiles = {"TShields", "TLaser",       "TBullets", "TMissiles",
                                  "TWareF",   "TFactories",   "TSpecial", "TDocks",
                                  "Wrecks",   "TGates",       "TPlanets", "TSuns",
                                  "TDebris",  "TBackgrounds", "TNebula",  "TAsteroids"};
constexpr std::array otherFiles = {"Jobs", "WareLists", "TCockpits"};

struct File {
    std::string name; ///< "TLaser"
    std::int32_t type;
    std::string path;
    QStringList texts; ///< the last value of each record
};

const clsTxtParser& gameFile(const std::string& name) {
    const auto parser = Archive->GetFile(name);
    if (!parser)
        fail("The game has no " + name);
    return *parser; // the archive keeps it
}

/// What a record has in place of the game's values, so that each has its own ID and its own texts.
std::map<std::int32_t, std::string> ownValues(const clsTXTObject& record, int number) {
    const std::string name = std::to_string(number % PanelGame::names);
    if (record.otype == otype::WareLists)
        return {};
    if (record.otype != otype::Jobs)
        return {{6, name},
                {record.size() - 1,
                 std::string(record.ObjectName()).append("_").append(std::to_string(number))}};
    const auto& ships = gameFile("TShips").ByIndex();
    const auto& wings = gameFile("JobWings").ByIndex();
    const auto pick = [&](const auto& from) -> const clsTXTObject& {
        return *from[static_cast<std::size_t>(number) % from.size()];
    };
    return {{0, std::to_string(100 + number)},
            {6, name},
            {8, name},
            {13, std::string(pick(wings).ValueText(0))},
            {18, std::string(pick(ships).ObjectName())}};
}

std::string lineOf(const clsTXTObject& record, int number) {
    const auto own = ownValues(record, number);
    std::string line;
    if (record.otype == otype::WareLists)
        line = std::to_string(record.size()).append(";");
    for (std::int32_t field = 0; field < record.size(); ++field) {
        const auto found = own.find(field);
        line.append(found == own.end() ? record.ValueText(field) : found->second);
        if (record.otype != otype::Jobs || field < record.size() - 1)
            line += ';'; // a job's name is the rest of its line
    }
    return line + "\r\n";
}

/// The game's own records, one after the other, as often as it takes.
File writeFile(const Options& options, const std::string& name) {
    const clsTxtParser& game = gameFile(name);
    File file{name, game.otype(), (options.directory / (name + ".txt")).string(), {}};
    std::string text;
    if (file.type != otype::WareLists)
        text = std::to_string(game.Version()).append(";");
    if (file.type != otype::Jobs)
        text.append(std::to_string(records)).append(";");
    text += "\r\n";
    for (int number = 0; number < records; ++number)
        text += lineOf(*game.ByIndex()[static_cast<std::size_t>(number) % game.ByIndex().size()],
                       number);
    writePlain(file.path, text);
    const auto parser = loadFile(file.path, file.type);
    if (parser->ByIndex().size() != records)
        fail(name + " has another number of records");
    for (const RecordPtr& record : parser->ByIndex())
        file.texts.append(QString::fromLatin1(record->ObjectName()));
    return file;
}

/// Seconds from the call that opens it, in a window on the screen, until the panel is painted.
double showFirst(const File& file) {
    PanelWindow window;
    const auto start = Clock::now();
    window.Open(file.path);
    const PaintCount paints(window.Panel());
    window.Select(0);
    waitFor(paints);
    return secondsSince(start);
}

/// Seconds until a view that shows the texts, and nothing else, is painted.
double paintBare(const QStringList& texts) {
    const auto start = Clock::now();
    QStringListModel model(texts);
    QTreeView view;
    view.setRootIsDecorated(false);
    view.setUniformRowHeights(true);
    view.resize(500, 700);
    view.setModel(&model);
    const PaintCount paints(*view.viewport());
    view.show();
    waitFor(paints);
    return secondsSince(start);
}

Times timesOf(int rounds, const File& file) {
    Times best{1e9, 1e9};
    double painting = 1e9;
    for (int round = 0; round < rounds; ++round) {
        best.ours = std::min(best.ours, showFirst(file));
        best.reference =
            std::min(best.reference, secondsOf([&] { return loadFile(file.path, file.type); }));
        painting = std::min(painting, paintBare(file.texts));
    }
    best.reference += paintings * painting;
    return best;
}

Row firstRow(const std::string& what, const Times& times) {
    return withinRow("first record of " + what + " of 20,000 shown",
                     "loading to records + 1.5 times the first paint of a bare QTreeView", times,
                     1);
}

void addSelection(const File& file, std::vector<Row>& rows) {
    PanelWindow window;
    window.Open(file.path);
    addSelectionRows(window, "a record of " + file.name, rows);
}

} // namespace

std::vector<Row> panelRows(const Options& options) {
    const PanelGame game(options);
    std::vector<Row> first;
    std::vector<Row> selection;
    const auto measure = [&](const char* name) {
        const File file = writeFile(options, name);
        addSelection(file, selection);
        const Row row = firstRow(name, timesOf(options.rounds, file));
        std::filesystem::remove(file.path);
        return row;
    };
    for (const char* name : wareFiles) {
        Row row = measure(name);
        row.work.append(" (worst of 16 such types)");
        if (first.empty() || row.ratio > first.front().ratio)
            first = {row};
    }
    for (const char* name : otherFiles)
        first.push_back(measure(name));
    std::ranges::move(selection, std::back_inserter(first));
    return first;
}

} // namespace bench
