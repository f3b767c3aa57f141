#include "keshobjects/textobjects.h"

namespace keshobjects {
namespace {

// A handle holds a row of the table and how often the row was given out before, so that the handle
// of an object that is gone is not soon that of another.
constexpr unsigned rowBits = 24;
constexpr std::uint32_t maxRows = 1U << rowBits;
constexpr std::uint32_t behindObjects = storeStringBase - objectBase;
constexpr std::uint32_t rounds = behindObjects / maxRows;

struct Row {
    TextObject* object = nullptr;
    std::uint32_t round = 0;
    std::uint32_t nextFree = 0; ///< row + 1
};

struct Table {
    std::vector<Row> rows;
    std::uint32_t firstFree = 0; ///< row + 1
    std::uint32_t lastFree = 0;
};

Table& table() {
    static Table rows;
    return rows;
}

std::uint32_t takeRow() {
    Table& all = table();
    if (all.firstFree == 0) {
        if (all.rows.size() == maxRows)
            throw std::bad_alloc();
        all.rows.emplace_back();
        return static_cast<std::uint32_t>(all.rows.size() - 1);
    }
    const std::uint32_t row = all.firstFree - 1;
    all.firstFree = all.rows[row].nextFree;
    return row;
}

/// The row freed first is given out first.
void freeRow(std::uint32_t row) noexcept {
    Table& all = table();
    all.rows[row] = {nullptr, (all.rows[row].round + 1) % rounds, 0};
    if (all.firstFree == 0)
        all.firstFree = row + 1;
    else
        all.rows[all.lastFree - 1].nextFree = row + 1;
    all.lastFree = row + 1;
}

std::uint32_t rowOf(std::int32_t handle) noexcept {
    return (static_cast<std::uint32_t>(handle) - objectBase) % maxRows;
}

} // namespace

TextObject::TextObject(std::int32_t kind) : m_kind(kind) {
    const std::uint32_t row = takeRow();
    Row& mine = table().rows[row];
    mine.object = this;
    m_handle = static_cast<std::int32_t>(objectBase + (mine.round << rowBits) + row);
}

TextObject::~TextObject() {
    freeRow(rowOf(m_handle));
}

TextObject* TextObject::find(std::int32_t handle) noexcept {
    const std::uint32_t place = static_cast<std::uint32_t>(handle) - objectBase;
    if (place >= behindObjects || rowOf(handle) >= table().rows.size())
        return nullptr;
    const Row& row = table().rows[rowOf(handle)];
    return row.round == place >> rowBits ? row.object : nullptr;
}

} // namespace keshobjects
