// Random numbers that are the same with every standard library.
#pragma once

#include <cstdint>
#include <random>

namespace sample {

/// std::mt19937 is fixed by the standard, its distributions are not: this has one of its own.
class Random {
public:
    explicit Random(std::uint32_t seed) : m_engine(seed) {}

    /// 0 to `limit` - 1.
    int below(int limit) {
        return static_cast<int>((std::uint64_t{m_engine()} * static_cast<std::uint64_t>(limit)) >>
                                32);
    }
    /// `first` to `last`, both included.
    int between(int first, int last) { return first + below(last - first + 1); }
    /// A number in [0, 1) with two decimals.
    double hundredth() { return below(100) / 100.0; }

    template <class Table>
    const auto& pick(const Table& table) {
        return table[static_cast<std::size_t>(below(static_cast<int>(std::size(table))))];
    }

private:
    std::mt19937 m_engine;
};

} // namespace sample
