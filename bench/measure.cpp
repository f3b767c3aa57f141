#include "bench/measure.h"

#include <array>
#include <cstdio>

namespace bench {

namespace {

std::string spell(const char* format, double number) {
    std::array<char, 64> buffer;
    const int size = std::snprintf(buffer.data(), buffer.size(), format, number);
    return {buffer.data(), static_cast<std::size_t>(size)};
}

constexpr std::size_t columns = 7;
using Line = std::array<std::string, columns>;

std::string lineOf(const Line& line, const std::array<std::size_t, columns>& widths) {
    std::string out = "|";
    for (std::size_t i = 0; i < columns; ++i)
        out += " " + line[i] + std::string(widths[i] - line[i].size(), ' ') + " |";
    return out + "\n";
}

} // namespace

std::string spellTime(double seconds) {
    if (seconds >= 1)
        return spell("%.2f s", seconds);
    return seconds >= 1e-3 ? spell("%.3g ms", seconds * 1e3) : spell("%.3g us", seconds * 1e6);
}

std::string spellRatio(double ratio) {
    return spell("%.2f", ratio);
}

Row fasterRow(std::string work, std::string reference, const Times& times, double factor) {
    const double ratio = times.reference / times.ours;
    return {std::move(work),
            std::move(reference),
            spellTime(times.ours),
            spellTime(times.reference),
            ratio,
            "speed at least " + spellRatio(factor),
            ratio >= factor};
}

Row withinRow(std::string work, std::string reference, const Times& times, double factor) {
    const double ratio = times.ours / times.reference;
    return {std::move(work),
            std::move(reference),
            spellTime(times.ours),
            spellTime(times.reference),
            ratio,
            "time at most " + spellRatio(factor),
            ratio <= factor};
}

Row limitRow(std::string work, std::string what, double seconds, double limit) {
    return {std::move(work),    std::move(what),
            spellTime(seconds), "-",
            seconds / limit,    "at most " + spellTime(limit),
            seconds <= limit};
}

Row besides(Row row) {
    row.work = "(the same)";
    row.asked = "-";
    row.met = true;
    return row;
}

std::string tableOf(const std::vector<Row>& rows) {
    std::vector<Line> lines = {{"Work", "Reference", "Ours", "Theirs", "Ratio", "Asked", ""}};
    for (const Row& row : rows)
        lines.push_back({row.work, row.reference, row.ours, row.theirs, spellRatio(row.ratio),
                         row.asked,
                         row.asked == "-" ? ""
                         : row.met        ? "ok"
                                          : "MISS"});
    std::array<std::size_t, columns> widths{};
    for (const Line& line : lines)
        for (std::size_t i = 0; i < columns; ++i)
            widths[i] = std::max({widths[i], line[i].size(), std::size_t{3}});
    Line rule;
    for (std::size_t i = 0; i < columns; ++i)
        rule[i] = std::string(widths[i], '-');
    lines.insert(lines.begin() + 1, rule);
    std::string out;
    for (const Line& line : lines)
        out += lineOf(line, widths);
    return out;
}

} // namespace bench
