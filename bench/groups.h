// The groups of measurements; each gives its rows.
#pragma once

#include "bench/measure.h"

#include <filesystem>

namespace bench {

struct Options {
    std::filesystem::path directory; ///< for the data; its own, removed at the end
    int megabytes = 100;             ///< size of the T text
    int files = 100000;              ///< entries of the catalog, loose files, rows of the list
    int rounds = 7;
};

std::vector<Row> loadRows(const Options& options);
std::vector<Row> packedRows(const Options& options);
std::vector<Row> saveRows(const Options& options);
std::vector<Row> catalogRows(const Options& options);
std::vector<Row> viewRows(const Options& options);
std::vector<Row> listRows(const Options& options);
std::vector<Row> shipRows(const Options& options);
std::vector<Row> shipPanelRows(const Options& options);
std::vector<Row> panelRows(const Options& options);
std::vector<Row> textRows(const Options& options);
std::vector<Row> checkRows(const Options& options);
std::vector<Row> windowRows(const Options& options);

} // namespace bench
