#include "bench/groups.h"
#include "bench/shipfile.h"
#include "bench/tfile.h"
#include "tdata/clsShipParser.h"
#include "tdata/mdlKeshConst.h"
#include "tdata/mdlShipLabels.h"

namespace bench {

namespace {

/// The objects of all ships, every one valid.
std::unique_ptr<clsShipParser> openShips(const clsTxtParser& parser) {
    auto result = std::make_unique<clsShipParser>();
    if (!result->Load(parser))
        fail(result->GetLastError());
    for (const auto& ship : result->SortedShips())
        if (!ship->Validate())
            fail(ship->GetLastError());
    return result;
}

std::size_t countLabels(const clsTxtParser& parser) {
    std::size_t count = 0;
    for (const RecordPtr& record : parser.ByIndex())
        for (const std::string_view label : ShipFieldLabels(*record))
            count += label.empty() ? 0 : 1;
    return count;
}

} // namespace

std::vector<Row> shipRows(const Options& options) {
    const std::string path = options.directory / "TShips_large.txt";
    writeShips(path);
    const auto parser = loadFile(path, otype::Ships);
    const auto load = [&] { return loadFile(path, otype::Ships); };
    const auto row = [&](const char* work, const auto& ours) {
        return withinRow(work, "loading their file to records", bestOf(options.rounds, ours, load),
                         4);
    };
    return {row("5,000 ships of 7 turrets: all objects, each validated",
                [&] { return openShips(*parser); }),
            row("5,000 ships of 7 turrets: a name for every value",
                [&] { return countLabels(*parser); })};
}

} // namespace bench
