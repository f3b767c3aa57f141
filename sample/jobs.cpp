#include "sample/gamefiles.h"
#include "sample/random.h"
#include "sample/ttext.h"

#include <algorithm>
#include <array>
#include <span>

namespace sample {

namespace {

constexpr int logicalFields = 120;
constexpr int jobsAtScaleOne = 40;
constexpr int firstJob = 100;
constexpr int firstWing = 1;
constexpr int jobsAWing = 3;

/// Names stand at the end of a line, raw: they may hold anything.
constexpr std::array<std::string_view, 8> names = {
    "Night ferry // rents by the hour; see ledger",
    "Harbour watch",
    "",
    "  Two blanks in front",
    "Salt run, outbound",
    "/* not a remark */ Tinker",
    "Carters' guild; second shift;",
    "Fahrt zum \xE4ltesten Steg",
};

constexpr std::array<Phrase, 6> tasks = {{
    {"Ferry service", "Fährdienst"},
    {"Harbour watch", "Hafenwache"},
    {"Salt run", "Salzfahrt"},
    {"Tinker", "Kesselflicker"},
    {"Carter", "Fuhrmann"},
    {"Pilgrim", "Pilger"},
}};

constexpr std::array<std::string_view, 4> scripts = {"job.carry", "job.watch", "job.roam",
                                                     "job.mine"};

/// Logical fields that a version does not have.
std::span<const int> missingFields(int version) {
    static constexpr std::array<int, 3> of8 = {36, 55, 86};
    switch (version) {
    case 8:
        return of8;
    case 9:
        return std::span(of8).subspan(1, 1);
    default:
        return {};
    }
}

void setChoices(std::array<std::string, logicalFields>& job, Random& random, int first, int last) {
    for (int field = first; field <= last; ++field)
        job[static_cast<std::size_t>(field)] = spell(random.below(2));
}

int wingCount(const Game& game) {
    return jobsAtScaleOne * game.scale / jobsAWing;
}

std::array<std::string, logicalFields> jobOf(Game& game, Random& random, int number,
                                             const std::vector<std::string>& ships) {
    std::array<std::string, logicalFields> job;
    job.fill("0");
    const auto taskNumber = static_cast<std::size_t>(number) % tasks.size();
    const Phrase& task = tasks[taskNumber];
    const int name = game.texts.object(idOf("JOB_", task.english), std::string(task.english),
                                       std::string(task.german));
    const std::vector<SectorPlace> sectors = sectorPlaces();
    const SectorPlace& sector = random.pick(sectors);

    job[0] = spell(firstJob + number);
    job[1] = idOf("", task.english) + "_" + spell(number);
    job[2] = spell(random.between(1, 60));
    job[3] = spell(random.between(1, 6));
    job[4] = random.pick(scripts);
    job[6] = job[8] = spell(name);
    job[13] = number % 4 == 0 ? spell(firstWing + random.below(wingCount(game))) : spell(0);
    job[14] = spell(random.below(wareListCount(game)));
    job[15] = spell(random.below(20));
    job[17] = spell(60 * random.between(1, 30));
    job[18] = number % 3 == 0 ? random.pick(ships) : "";
    setChoices(job, random, 9, 12);
    setChoices(job, random, 19, 54);
    job[55] = number % 5 == 0 ? "-1" : spell(random.below(360));
    setChoices(job, random, 58, 64);
    job[65] = spell(sector.x);
    job[66] = spell(sector.y);
    setChoices(job, random, 67, 71);
    job[72] = spell(random.below(101));
    setChoices(job, random, 78, 87);
    for (std::size_t field = 74; field <= 77; ++field)
        job[field] = job[field + 14] = spell(random.below(101));
    setChoices(job, random, 90, 103);
    setChoices(job, random, 110, 114);
    job[115 + taskNumber % 4] = spell(1);
    job[119] = names[static_cast<std::size_t>(number) % names.size()];
    return job;
}

} // namespace

std::string jobFile(Game& game, int version) {
    Random random(1901);
    const std::span<const int> missing = missingFields(version);
    const std::vector<std::string> ships = shipIds(game);
    std::string text = spell(version) + ";\r\n";
    for (int number = 0; number < jobsAtScaleOne * game.scale; ++number) {
        const auto job = jobOf(game, random, number, ships);
        for (int field = 0; field < logicalFields; ++field) {
            if (std::ranges::find(missing, field) != missing.end())
                continue;
            text += job[static_cast<std::size_t>(field)];
            text += field < logicalFields - 1 ? ";" : "\r\n";
        }
    }
    return text;
}

std::string jobWingFile(Game& game) {
    Random random(2001);
    std::string text = "// Which jobs fly together\r\n";
    for (int wing = 0; wing < wingCount(game); ++wing) {
        text += spell(firstWing + wing) + ";";
        for (int i = 0; i < jobsAWing; ++i)
            text += spell(firstJob + wing * jobsAWing + i) + (i < jobsAWing - 1 ? "," : ";");
        text += wing % 5 == 4 ? " // night shift\r\n" : "\r\n";
    }
    return text;
}

} // namespace sample
