#include "sample/ttext.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdlib>

namespace sample {

namespace {

template <class... Form>
std::string digits(Form... form) {
    std::array<char, 32> buffer{};
    const auto end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), form...).ptr;
    return {buffer.data(), end};
}

/// One way in which a record looks when somebody edited it; the values stay the same numbers.
using ByHand = void (*)(Record& record, std::string& lineEnd);
constexpr std::array<ByHand, 9> byHand = {
    [](Record& record, std::string&) { record.at(1).insert(0, "00"); },
    [](Record& record, std::string&) { record.at(2) = "0.50"; },
    [](Record& record, std::string&) { record.at(-8) = "1e3"; },
    [](Record& record, std::string&) { record.at(3) = " 0.25 "; },
    [](Record& record, std::string&) { record.at(4) += " /* by eye */"; },
    [](Record&, std::string& lineEnd) { lineEnd = " // retired\r\n"; },
    [](Record& record, std::string& lineEnd) {
        record.at(-7).insert(0, "+");
        lineEnd = "\n";
    },
    [](Record& record, std::string&) { record.at(5).insert(0, "\r\n  "); },
    [](Record&, std::string& lineEnd) { lineEnd = "\r\n\r\n// ---- next group ----\r\n"; },
};

} // namespace

std::string spell(std::int64_t number) {
    return digits(number);
}

std::string spell(double number) {
    return digits(number, std::chars_format::general, 6);
}

std::string idOf(std::string_view prefix, std::string_view name, int repeat) {
    std::string id(prefix);
    for (const char c : name) {
        const bool lower = c >= 'a' && c <= 'z';
        const bool kept = (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9');
        id += lower ? static_cast<char>(c - 'a' + 'A') : kept ? c : '_';
    }
    return repeat == 0 ? id : id + "_" + spell(repeat + 1);
}

std::string numbered(std::string_view name, int repeat) {
    return repeat == 0 ? std::string(name) : std::string(name) + " " + spell(repeat + 1);
}

Record& Record::zeros(int count) {
    m_values.insert(m_values.end(), static_cast<std::size_t>(count), "0");
    return *this;
}

Record& Record::append(const Record& other) {
    m_values.insert(m_values.end(), other.m_values.begin(), other.m_values.end());
    return *this;
}

std::string& Record::at(int index) {
    const int size = static_cast<int>(m_values.size());
    return m_values.at(static_cast<std::size_t>(index < 0 ? size + index : index));
}

Record framed(const Head& head, const Record& own, const Tail& tail) {
    Record record;
    record.add(head.body, head.picture, head.rotation[0], head.rotation[1], head.rotation[2],
               head.subtype, head.name);
    record.append(own);
    return record.add(tail.volume, tail.valueNpc, tail.modifier1, tail.modifier2, tail.wareClass,
                      tail.valuePlayer, tail.notoriety, tail.video, tail.skin, tail.id);
}

// The table changes its copy, which the check does not see.
// NOLINTNEXTLINE(performance-unnecessary-value-param)
void TText::add(Record record) {
    std::string lineEnd = "\r\n";
    if (m_count % 3 == 2)
        byHand[static_cast<std::size_t>(m_count / 3) % byHand.size()](record, lineEnd);
    for (const std::string& value : record.values())
        m_body.append(value).append(";");
    m_body += lineEnd;
    ++m_count;
}

std::string TText::finish() const {
    return "// Sample data, made up from end to end\r\n" + spell(m_version) + ";" + spell(m_count) +
           ";\r\n" + m_body;
}

} // namespace sample
