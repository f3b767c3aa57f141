#include "sample/gamefiles.h"
#include "sample/random.h"
#include "sample/ttext.h"

#include <functional>
#include <span>

namespace sample {

namespace {

constexpr Phrase gates[] = {
    {"North Gate", "Nordtor"}, {"South Gate", "Südtor"},      {"West Gate", "Westtor"},
    {"East Gate", "Osttor"},   {"Blind Gate", "Blindes Tor"},
};
constexpr Phrase planets[] = {
    {"Ochre World", "Ockerwelt"},    {"Moss World", "Mooswelt"}, {"Salt World", "Salzwelt"},
    {"Foam World", "Schaumwelt"},    {"Ash World", "Aschewelt"}, {"Ringed World", "Ringwelt"},
    {"Twin World", "Zwillingswelt"}, {"Ice World", "Eiswelt"},
};
constexpr Phrase suns[] = {
    {"Yellow Sun", "Gelbe Sonne"},
    {"Red Sun", "Rote Sonne"},
    {"White Sun", "Weiße Sonne"},
    {"Brown Sun", "Braune Sonne"},
};
constexpr Phrase asteroids[] = {
    {"Round Rock", "Runder Fels"},  {"Long Rock", "Langer Fels"}, {"Split Rock", "Spaltfels"},
    {"Hollow Rock", "Hohler Fels"}, {"Glass Rock", "Glasfels"},
};
constexpr Phrase debris[] = {
    {"Hull Plates", "Rumpfplatten"},
    {"Frozen Cargo", "Gefrorene Fracht"},
    {"Rope Tangle", "Tauknäuel"},
};
constexpr Phrase backgrounds[] = {
    {"Lilac Sky", "Fliederhimmel"},       {"Amber Sky", "Bernsteinhimmel"},
    {"Green Sky", "Grüner Himmel"},       {"Plain Sky", "Schlichter Himmel"},
    {"Veiled Sky", "Verhangener Himmel"}, {"Deep Sky", "Tiefer Himmel"},
};
constexpr Phrase nebulae[] = {
    {"Milk Fog", "Milchnebel"},
    {"Rust Fog", "Rostnebel"},
    {"Whisper Fog", "Flüsternebel"},
    {"Thorn Fog", "Dornennebel"},
};

constexpr Phrase about = {"Seen from afar.", "Aus der Ferne gesehen."};

using OwnFields = std::function<void(Record& own, Random& random, int number)>;

/// A file with one record for each name; `fill` adds what stands between head and tail.
std::string fileOf(Game& game, int version, std::string_view prefix, std::span<const Phrase> names,
                   const OwnFields& fill) {
    Random random(static_cast<std::uint32_t>(prefix[0]) * 256 +
                  static_cast<std::uint32_t>(prefix[1]));
    TText text(version);
    int number = 0;
    for (const Phrase& name : names) {
        Head head;
        Tail tail;
        tail.id = idOf(prefix, name.english);
        head.body = number % 2 == 0 ? spell(number + 1) : "space\\" + idOf("", name.english);
        head.subtype = spell(number);
        head.rotation[2] = random.hundredth();
        head.name =
            game.texts.object(tail.id, std::string(name.english), std::string(name.german), about);
        Record own;
        fill(own, random, number++);
        text.add(framed(head, own, tail));
    }
    return text.finish();
}

/// Pairs of a body and its density.
void addDust(Record& own, Random& random, int pairs) {
    for (int i = 0; i < pairs; ++i)
        own.add(i % 3 == 2 ? "" : "dust\\grain" + spell(i), random.hundredth());
}

} // namespace

std::string gateFile(Game& game, int version) {
    return fileOf(game, version, "GATE_", gates,
                  [](Record& own, Random&, int number) { own.add("gates\\ring" + spell(number)); });
}

std::string planetFile(Game& game, int version) {
    return fileOf(game, version, "PLANET_", planets, [](Record& own, Random& random, int number) {
        own.add(random.below(256), random.below(256), random.below(256));
        own.add("planets\\globe" + spell(number));
        addDust(own, random, 8);
    });
}

std::string sunFile(Game& game, int version) {
    return fileOf(game, version, "SUN_", suns, [](Record& own, Random&, int number) {
        own.add("suns\\disc" + spell(number), number + 1);
    });
}

std::string asteroidFile(Game& game, int version) {
    return fileOf(game, version, "ROCK_", asteroids, [](Record& own, Random&, int number) {
        own.add("rocks\\rock" + spell(number), 400 + number, 420, "rocks\\map" + spell(number));
    });
}

std::string debrisFile(Game& game, int version) {
    return fileOf(game, version, "DEBRIS_", debris, [](Record& own, Random&, int number) {
        own.add("debris\\heap" + spell(number), 440, "debris\\far", "debris\\near");
    });
}

std::string backgroundFile(Game& game, int version) {
    return fileOf(game, version, "SKY_", backgrounds, [](Record& own, Random& random, int number) {
        own.add("skies\\sky" + spell(number));
        for (int i = 0; i < 16; ++i)
            own.add(random.below(256));
        own.add(500 * random.between(100, 900), 500 * random.between(1000, 9000)); // fields 24, 25
        own.add(random.hundredth(), 0);
    });
}

std::string nebulaFile(Game& game, int version) {
    return fileOf(game, version, "NEBULA_", nebulae, [&](Record& own, Random& random, int number) {
        own.add("nebulae\\cloud" + spell(number), 500 * random.between(4000, 9000),
                500 * random.between(500, 3000));
        own.add(random.below(100), random.below(20), random.below(20));
        if (version >= 14) {
            addDust(own, random, 6);
            own.add("dust\\flake");
        } else {
            own.add(random.below(256), random.below(256), random.below(256), random.hundredth());
        }
    });
}

} // namespace sample
