// Timing two ways of doing the same work against each other, and the table of the results.
#pragma once

#include <algorithm>
#include <chrono>
#include <ctime>
#include <string>
#include <vector>

namespace bench {

/// Best times of both sides, in seconds.
struct Times {
    double ours;
    double reference;
};

/// Processor time: what else the machine does counts little. For work that waits for nothing.
struct CpuClock {
    static double now() { return static_cast<double>(std::clock()) / CLOCKS_PER_SEC; }
};
/// For work that waits for the disk.
struct WallClock {
    static double now() {
        return std::chrono::duration<double>(std::chrono::steady_clock::now().time_since_epoch())
            .count();
    }
};

/// Seconds that `work` takes; what it returns is destroyed after the clock has stopped.
template <class Clock = CpuClock, class Work>
double secondsOf(Work&& work) {
    const double start = Clock::now();
    [[maybe_unused]] const auto kept = work();
    return Clock::now() - start;
}

/// Runs both in turns and keeps the best time of each: what else the machine does hits both alike.
template <class Clock = CpuClock, class Ours, class Reference>
Times bestOf(int rounds, Ours&& ours, Reference&& reference) {
    Times best{1e9, 1e9};
    for (int round = 0; round < rounds; ++round) {
        best.ours = std::min(best.ours, secondsOf<Clock>(ours));
        best.reference = std::min(best.reference, secondsOf<Clock>(reference));
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

/// "at least `factor` times as fast": the ratio is reference time over ours.
Row fasterRow(std::string work, std::string reference, const Times& times, double factor);
/// "at most `factor` times the time": the ratio is our time over the reference's.
Row withinRow(std::string work, std::string reference, const Times& times, double factor);

/// Seconds, milliseconds or microseconds, three digits.
std::string spellTime(double seconds);
std::string spellRatio(double ratio);
/// The rows as a table in Markdown, columns aligned.
std::string tableOf(const std::vector<Row>& rows);

/// Keeps a computed value alive for the optimiser.
template <class Value>
void keep(const Value& value) {
    asm volatile("" : : "r,m"(value) : "memory");
}

} // namespace bench
