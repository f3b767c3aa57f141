// Writing T texts as the game's own tools and its authors leave them.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace sample {

std::string spell(std::int64_t number);
std::string spell(double number);
inline std::string spell(int number) {
    return spell(std::int64_t{number});
}
inline std::string spell(std::string_view text) {
    return std::string(text);
}

/// Text in capitals with "_" for what is neither letter nor digit: the form of object IDs.
std::string idOf(std::string_view prefix, std::string_view name, int repeat = 0);
/// A name, or for a repeat of it in scaled data the name with its number.
std::string numbered(std::string_view name, int repeat);

class Record {
public:
    template <class... Values>
    Record& add(const Values&... values) {
        (m_values.push_back(spell(values)), ...);
        return *this;
    }
    Record& zeros(int count);
    Record& append(const Record& other);
    /// A value to change; `index` counts from the end if negative.
    std::string& at(int index);
    [[nodiscard]] const std::vector<std::string>& values() const noexcept { return m_values; }

private:
    std::vector<std::string> m_values;
};

/// The first seven values of a common record.
struct Head {
    std::string body = "0";
    int picture = 0;
    double rotation[3] = {0, 0, 0};
    std::string subtype = "0";
    int name = 0; ///< id in text page 17
};

/// The last ten values.
struct Tail {
    int volume = 1;
    int valueNpc = 0;
    int modifier1 = 10;
    int modifier2 = 10;
    int wareClass = 0;
    int valuePlayer = 0;
    int notoriety = -100000;
    int video = 0;
    int skin = 0;
    std::string id;
};

Record framed(const Head& head, const Record& own, const Tail& tail);

/// A T file with version, count and records. Every third record is spelled by hand: leading and
/// trailing zeros, exponents, blanks, remarks, other line ends.
class TText {
public:
    explicit TText(int version) : m_version(version) {}
    void add(Record record);
    [[nodiscard]] std::string finish() const;

private:
    int m_version;
    int m_count = 0;
    std::string m_body;
};

} // namespace sample
