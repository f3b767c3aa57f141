#include "sample/samplegame.h"

#include "lornfd/lornfd.h"
#include "sample/faults.h"
#include "sample/gamefiles.h"
#include "sample/output.h"
#include "sample/ttext.h"

#include <algorithm>

namespace sample {

namespace {

/// A T file: how it is made, its version in the finished game, and the older ones that exist.
struct TFile {
    std::string_view name;
    std::string (*make)(Game& game, int version);
    int version;
    std::int32_t form; ///< of the packed file in the first catalog
    std::vector<int> older;
};

const std::vector<TFile>& tFiles() {
    static const std::vector<TFile> files = {
        {"TBullets", bulletFile, 55, LORNFD_ZSTD, {53}},
        {"TLaser", laserFile, 52, LORNFD_ZSTD, {49}},
        {"TMissiles", missileFile, 52, LORNFD_GZIP, {48, 49}},
        {"TShields", [](Game& game, int v) { return shieldFile(game, v); }, 49, LORNFD_PLAIN, {}},
        {"TCockpits", cockpitFile, 49, LORNFD_GZIP, {}},
        {"TWareB", [](Game& game, int v) { return wareFile(game, 'B', v); }, 48, LORNFD_ZSTD, {}},
        {"TWareE", [](Game& game, int v) { return wareFile(game, 'E', v); }, 48, LORNFD_GZIP, {}},
        {"TWareF", [](Game& game, int v) { return wareFile(game, 'F', v); }, 48, LORNFD_PLAIN, {}},
        {"TWareM", [](Game& game, int v) { return wareFile(game, 'M', v); }, 48, LORNFD_ZSTD, {}},
        {"TWareN", [](Game& game, int v) { return wareFile(game, 'N', v); }, 48, LORNFD_ZSTD, {}},
        {"TWareT", [](Game& game, int v) { return wareFile(game, 'T', v); }, 48, LORNFD_ZSTD, {}},
        {"TShips", shipFile, 50, LORNFD_ZSTD, {48}},
        {"TFactories", factoryFile, 50, LORNFD_GZIP, {47}},
        {"TDocks", dockFile, 50, LORNFD_ZSTD, {47}},
        {"TSpecial", specialFile, 48, LORNFD_PLAIN, {}},
        {"Wrecks", wreckFile, 50, LORNFD_PLAIN, {47}},
        {"TGates", gateFile, 48, LORNFD_PLAIN, {}},
        {"TPlanets", planetFile, 48, LORNFD_ZSTD, {}},
        {"TSuns", sunFile, 48, LORNFD_PLAIN, {}},
        {"TAsteroids", asteroidFile, 48, LORNFD_PLAIN, {}},
        {"TDebris", debrisFile, 48, LORNFD_GZIP, {}},
        {"TBackgrounds", backgroundFile, 48, LORNFD_ZSTD, {}},
        {"TNebula", nebulaFile, 15, LORNFD_ZSTD, {13, 14}},
        {"Jobs", jobFile, 10, LORNFD_ZSTD, {8, 9}},
        {"JobWings", [](Game& game, int) { return jobWingFile(game); }, 0, LORNFD_PLAIN, {}},
        {"WareLists", [](Game& game, int) { return wareListFile(game); }, 0, LORNFD_GZIP, {}},
        {"IconData", [](Game&, int) { return iconDataFile(); }, 0, LORNFD_PLAIN, {}},
    };
    return files;
}

GameFile typesFile(const TFile& file, Game& game, int version, std::int32_t form) {
    const std::string_view extension = form == LORNFD_PLAIN ? ".txt" : ".pck";
    return {"types\\" + std::string(file.name).append(extension), file.make(game, version), form};
}

GameFile textFile(int file, int language, std::string content, bool packed) {
    const std::string name = "t\\000" + spell(file) + "-L0" + spell(language);
    return {name + (packed ? ".pck" : ".xml"), std::move(content),
            packed ? LORNFD_ZSTD : LORNFD_PLAIN};
}

GameFile bodyFile(const std::string& name, int number) {
    std::string content = "/* body " + name + " */\r\n3;\r\n";
    for (int i = 0; i < 3; ++i)
        content +=
            spell(number * 10 + i) + ";" + spell(i * 250) + ";" + spell(number % 7) + ";\r\n";
    return {"objects\\" + name + ".bod", content, LORNFD_PLAIN};
}

std::string fiveDigits(int number) {
    const std::string digits = spell(number);
    return std::string(5 - std::min<std::size_t>(digits.size(), 5), '0') + digits;
}

std::vector<GameFile> bodies(int scale) {
    std::vector<GameFile> files;
    int number = 0;
    for (const std::string_view ship : shipBodies())
        files.push_back(bodyFile("ships\\" + idOf("", ship), ++number));
    for (const std::string_view name : {"turrets\\mount1", "turrets\\mount2", "turrets\\mount3",
                                        "weapons\\mount", "weapons\\dart", "scenes\\helm"})
        files.push_back(bodyFile(std::string(name), ++number));
    for (int i = 0; i < 10 * scale; ++i) {
        files.push_back(bodyFile("v\\" + fiveDigits(i), i));
        files.push_back(bodyFile("cut\\" + fiveDigits(i), i));
    }
    return files;
}

/// The game as it was first shipped: some files are older than in the finished game.
std::vector<GameFile> firstCatalog(Game& game) {
    std::vector<GameFile> files;
    for (const TFile& file : tFiles())
        files.push_back(typesFile(file, game, file.older.empty() ? file.version : file.older.back(),
                                  file.form));
    std::ranges::move(bodies(game.scale), std::back_inserter(files));
    files.push_back({"textures\\" + std::string(guiPicture), guiPictureFile(), LORNFD_GZIP});
    files.push_back({"textures\\sky.bmp", skyPictureFile(), LORNFD_PLAIN});
    files.push_back({"dds\\" + std::string(mapPicture), mapPictureFile(), LORNFD_PLAIN});
    files.push_back(textFile(1, Texts::German, game.texts.pagesXml(Texts::German), false));
    files.push_back(textFile(2, Texts::German, game.texts.objectsXml(Texts::German), true));
    return files;
}

/// What came later and lies over the first catalog.
std::vector<GameFile> secondCatalog(Game& game) {
    std::vector<GameFile> files;
    for (const TFile& file : tFiles())
        if (!file.older.empty())
            files.push_back(typesFile(file, game, file.version, file.form));
    files.push_back({"maps\\universe.pck", universeFile(game), LORNFD_ZSTD});
    return files;
}

std::vector<GameFile> looseFiles(Game& game) {
    std::vector<GameFile> files;
    for (const TFile& file : tFiles()) {
        if (file.name == "TWareT" || file.name == "JobWings")
            files.push_back(typesFile(file, game, file.version, LORNFD_PLAIN));
        for (const int version : file.older)
            files.push_back({"versions\\" + std::string(file.name) + "_" + spell(version) + ".txt",
                             file.make(game, version), LORNFD_PLAIN});
    }
    files.push_back(textFile(1, Texts::English, game.texts.pagesXml(Texts::English), false));
    files.push_back(textFile(2, Texts::English, game.texts.objectsXml(Texts::English), true));
    files.push_back({"game.ini", "[General]\nModName=longhaul\n", LORNFD_PLAIN});
    files.push_back({"maps\\outskirts.xml", smallUniverseFile(), LORNFD_PLAIN});
    return files;
}

/// Below "faulty": copies in which something is wrong, and beside them the list of what.
std::vector<GameFile> faultyCopies(Game& game) {
    std::vector<TFileText> good;
    for (const TFile& file : tFiles()) {
        good.push_back({std::string(file.name), file.make(game, file.version)});
        for (const int version : file.older)
            good.push_back(
                {std::string(file.name) + "_" + spell(version), file.make(game, version)});
    }
    FaultyFiles faulty = faultyFiles(good);
    faulty.files.push_back({"faults.txt", std::move(faulty.list), LORNFD_PLAIN});
    return std::move(faulty.files);
}

std::vector<GameFile> modCatalog(Game& game) {
    const int firstOwn = game.texts.nextObject();
    std::vector<GameFile> files = {
        {"types\\TShips.pck", modShipFile(game, 50), LORNFD_ZSTD},
        {"types\\TShields.txt", shieldFile(game, 49, true), LORNFD_PLAIN},
    };
    for (const int language : {Texts::English, Texts::German})
        files.push_back(textFile(3, language, game.texts.objectsXml(language, firstOwn), false));
    return files;
}

/// Makes every file once, so that all objects have their texts before the texts are written.
void nameEverything(Game& game) {
    nameSectors(game.texts);
    for (const TFile& file : tFiles())
        file.make(game, file.version);
}

bool prepareDirectory(const std::string& directory, std::string& error) {
    std::error_code code;
    std::filesystem::create_directories(directory, code);
    const bool empty = !code && std::filesystem::is_empty(directory, code);
    if (code)
        error = "Cannot use " + directory + ": " + code.message();
    else if (!empty)
        error = directory + " is not empty.";
    return !code && empty;
}

} // namespace

bool writeSampleGame(const std::string& directory, int scale, std::string& error) {
    if (!prepareDirectory(directory, error))
        return false;
    Game game{std::clamp(scale, 1, 10000), {}};
    nameEverything(game);
    const std::filesystem::path root(directory);
    for (const auto& files : {looseFiles(game), faultyCopies(game)})
        for (const GameFile& file : files)
            if (!writeLooseFile(root, file, error))
                return false;
    return writeCatalog(root / "01.cat", firstCatalog(game), error) &&
           writeCatalog(root / "02.cat", secondCatalog(game), error) &&
           writeCatalog(root / "mods" / "longhaul.cat", modCatalog(game), error);
}

} // namespace sample
