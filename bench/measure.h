// Timing two ways of doing the same work against each other, and the table of the results.
#pragma once

#include <algorithm>
#include <chrono>
#include <string>
#include <vector>

namespace bench {

/// Best times of both sides, in seconds.
struct Times {
    double ours;
    double reference;
};

/// Makes the optimiser believe that somebody looks at the value.
template <class Value>
void keep(const Value& value) {
    asm volatile("" : : "g"(&value) : "memory");
}

using Clock = std::chrono::steady_clock;

inline double secondsSince(Clock::time_point start) {
    return std::chrono::duration<double>(Clock::now() - start).count();
}

/// Seconds that `work` takes; what it returns is destroyed after the clock has stopped.
template <class Work>
double secondsOf(Work&& work) {
    const auto start = Clock::now();
    const auto kept = work();
    keep(kept);
    return secondsSince(start);
}

/// Runs both in turns and keeps the best time of each: what else the machine does hits both alike.
template <class Ours, class Reference>
Times bestOf(int rounds, Ours&& ours, Reference&& reference) {
    Times best{1e9, 1e9};
    for (int round = 0; round < rounds; ++round) {
        best.ours = std::min(best.ours, secondsOf(ours));
        best.reference = std::min(best.reference, secondsOf(reference));
    }
    return best;
}

struct Row {
    std::string work;
    std::string reference;
    std::string ours;   ///< measured, with its unit
    std::string theirs; ///< of the reference, with its unit
    double ratio;
    std::string asked;
    bool met;
};

/// At least `factor` times as fast: the ratio is the reference's time over ours.
Row fasterRow(std::string work, std::string reference, const Times& times, double factor);
/// At most `factor` times the time: the ratio is our time over the reference's.
Row withinRow(std::string work, std::string reference, const Times& times, double factor);
/// At most so many seconds; `what` tells which of several times is taken.
Row limitRow(std::string work, std::string what, double seconds, double limit);
/// A further reference for the row above, of which nothing is asked.
Row besides(Row row);

/// Seconds, milliseconds or microseconds, three digits.
std::string spellTime(double seconds);
std::string spellRatio(double ratio);
/// The rows as a table in Markdown, columns aligned.
std::string tableOf(const std::vector<Row>& rows);

} // namespace bench
