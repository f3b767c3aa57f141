// The files of the sample game, each as its complete plain text.
#pragma once

#include "sample/texts.h"

#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace sample {

struct Game {
    int scale = 1;
    Texts texts;
};

// Weapons. The number of weapons does not grow with the scale: masks and lists refer to them.
std::string laserFile(Game& game, int version);
std::string bulletFile(Game& game, int version);
std::string missileFile(Game& game, int version);
std::string shieldFile(Game& game, int version, bool withModShield = false);
std::string cockpitFile(Game& game, int version);
int laserCount();
int shieldCount();
int cockpitCount();
int missileMask(); ///< a bit per missile slot in use
int laserMask();
std::vector<std::string> weaponIds(); ///< IDs of lasers, missiles and shields
std::vector<std::string> iconNames(); ///< HUD icons of weapons and stations

// Wares. `letter` is the last of TWareB, E, F, M, N, T.
std::string wareFile(Game& game, char letter, int version);
std::string wareListFile(Game& game);
std::vector<std::string> wareIds(int scale, char letter);
int wareListCount(const Game& game);

// Ships
std::string shipFile(Game& game, int version);
std::string modShipFile(Game& game, int version); ///< what the mod has in place of the game's
std::vector<std::string> shipIds(const Game& game);
std::vector<std::string_view> shipBodies();

// Stations
std::string factoryFile(Game& game, int version);
std::string dockFile(Game& game, int version);
std::string specialFile(Game& game, int version);
std::string wreckFile(Game& game, int version);
std::vector<std::string> factoryIds(const Game& game);
std::vector<std::string> dockIds(const Game& game);
/// The ware that a factory makes, as letter of its file and ID.
std::pair<char, std::string> productOf(int factory);

// Space
std::string gateFile(Game& game, int version);
std::string planetFile(Game& game, int version);
std::string sunFile(Game& game, int version);
std::string asteroidFile(Game& game, int version);
std::string debrisFile(Game& game, int version);
std::string backgroundFile(Game& game, int version);
std::string nebulaFile(Game& game, int version);

// Jobs
std::string jobFile(Game& game, int version);
std::string jobWingFile(Game& game);

// Universe; names of its sectors go into the texts.
struct SectorPlace {
    int x;
    int y;
};
std::vector<SectorPlace> sectorPlaces();
void nameSectors(Texts& texts);
std::string universeFile(Game& game);
std::string smallUniverseFile(); ///< nine sectors

// Pictures
inline constexpr std::string_view guiPicture = "gui_icons.tga";
inline constexpr std::string_view mapPicture = "map_icons.dds";
std::string iconDataFile();
std::string guiPictureFile(); ///< TGA, 24 bits a pixel
std::string mapPictureFile(); ///< DDS, 32 bits a pixel
std::string skyPictureFile(); ///< BMP, 24 bits a pixel

} // namespace sample
