#include "bench/groups.h"
#include "bench/tfile.h"
#include "tdata/clsShipParser.h"
#include "tdata/mdlKeshConst.h"
#include "tdata/mdlShipLabels.h"

#include <string>

namespace bench {

namespace {

constexpr int ships = 5000;
constexpr int turrets = 7;
constexpr int entries = 2; ///< of guns in each group, each for two guns

/// One ship; `number` makes its names differ.
std::string shipLine(int number) {
    std::string line = "ships\\hull_" + std::to_string(number) + ";";
    for (int field = 1; field < clsShip::FieldTurretCount; ++field)
        line += std::to_string(field == clsShip::FieldGunCount ? turrets * entries * 2
                                                               : (number * 7 + field * 13) % 3000) +
                ";";
    line += std::to_string(turrets) + ";";
    for (int i = 0; i < turrets; ++i)
        line += std::to_string(i + 1) + ";" + std::to_string(i) + ";turret_body;" +
                std::to_string(i * 3) + ";";
    line += std::to_string(turrets) + ";";
    for (int i = 0; i < turrets; ++i) {
        const int first = 1 + i * entries * 2;
        line += std::to_string(first) + ";4;" + std::to_string(i + 1) + ";2;";
        for (int entry = 0; entry < entries; ++entry)
            line += std::to_string(first + 2 * entry) + ";2;gun_body;12;gun_body_2;-1;";
    }
    return line + "1000;25;0;0;4;20;0;0;0;SS_SH_" + std::to_string(number) + ";\r\n";
}

std::string shipsText() {
    std::string text = "49;" + std::to_string(ships) + ";\r\n";
    for (int number = 0; number < ships; ++number)
        text += shipLine(number);
    return text;
}

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
    writePlain(path, shipsText());
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
