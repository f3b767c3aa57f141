#include "bench/shipfile.h"

#include "bench/tfile.h"
#include "tdata/clsShip.h"

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

} // namespace

void writeShips(const std::string& path) {
    std::string text = "49;" + std::to_string(ships) + ";\r\n";
    for (int number = 0; number < ships; ++number)
        text += shipLine(number);
    writePlain(path, text);
}

} // namespace bench
