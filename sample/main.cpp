// keshsample: makes the sample game, or large data for measurements.

#include "sample/samplegame.h"

#include <CLI/CLI.hpp>

#include <fstream>
#include <iostream>

namespace {

bool writeLargeText(const std::string& file, int megabytes, std::string& error) {
    std::ofstream out(file, std::ios::binary);
    out << sample::largeWareText(std::int64_t{megabytes} * 1000000);
    out.close();
    if (!out)
        error = "Cannot write " + file + ".";
    return !out.fail();
}

} // namespace

int main(int argc, char** argv) {
    CLI::App app("Makes a small, complete, invented game directory; the same bytes each time.");
    std::string target;
    int scale = 1;
    int megabytes = 0;
    int entries = 0;
    int files = 0;
    app.add_option("DIR", target, "What to make; a directory must be new or empty")->required();
    app.add_option("--scale", scale, "How many times as large")->check(CLI::Range(1, 10000));
    app.add_option("--ttext", megabytes, "Make one T file of this many MB instead")
        ->check(CLI::Range(1, 4000));
    app.add_option("--catalog", entries, "Make one catalog of this many small entries instead")
        ->check(CLI::Range(1, 10000000));
    app.add_option("--tree", files, "Make this many small loose files instead")
        ->check(CLI::Range(1, 10000000));
    try {
        app.parse(argc, argv);
    } catch (const CLI::ParseError& wrong) {
        return app.exit(wrong) == 0 ? 0 : 2;
    }

    std::string error;
    const bool good = megabytes > 0 ? writeLargeText(target, megabytes, error)
                      : entries > 0 ? sample::writeLargeCatalog(target, entries, error)
                      : files > 0   ? sample::writeLargeTree(target, files, error)
                                    : sample::writeSampleGame(target, scale, error);
    if (!good)
        std::cerr << "keshsample: " << error << "\n";
    return good ? 0 : 3;
}
