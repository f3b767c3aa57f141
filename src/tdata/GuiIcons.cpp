#include "tdata/GuiIcons.h"

#include "core/mdlComFunctions.h"
#include "tdata/clsArchive.h"
#include "tdata/mdlRecordNumbers.h"

#include <algorithm>

namespace {

constexpr std::string_view GuiClass = "ICONTYPE_GUI";

// A group of the first record
constexpr std::int32_t GroupSize = 5;
constexpr std::int32_t PictureField = 1;
constexpr std::int32_t CountField = 4;

constexpr std::int32_t Border = 1; ///< pixels

struct Group {
    std::string Picture;
    std::int64_t First; ///< place of its first icon in the file
    std::int64_t Count;
};

std::optional<Group> FindGui(const clsTXTObject& table) {
    std::int64_t first = 1; // behind the table
    for (std::int32_t at = 0; at + GroupSize <= table.size(); at += GroupSize) {
        const std::int64_t count = std::max(IntegerAt(table, at + CountField).value_or(0), 0);
        if (table.ValueText(at) == GuiClass)
            return Group{SpellingAt(table, at + PictureField), first, count};
        first += count;
    }
    return {};
}

std::optional<IconPlace> PlaceOf(const clsTXTObject& icon) {
    const auto x = IntegerAt(icon, 0);
    const auto y = IntegerAt(icon, 1);
    const auto width = IntegerAt(icon, 2);
    const auto height = IntegerAt(icon, 3);
    constexpr std::int32_t most = 0xFFFF; ///< of any picture
    const auto fits = [](const auto& value, std::int32_t least) {
        return value && *value >= least && *value <= most;
    };
    if (!fits(x, -Border) || !fits(y, -Border) || !fits(width, 1) || !fits(height, 1))
        return {};
    return IconPlace{*x + Border, *y + Border, *width, *height};
}

/// What a directory leads to is no part of the name.
std::string WithoutDirectory(std::string name) {
    std::replace(name.begin(), name.end(), '/', '\\');
    return FileNameOf(name.insert(0, 1, '\\'));
}

} // namespace

bool GuiIcons::Load() {
    if (const auto file = GameFileOf("IconData"))
        Take(*file);
    return !m_names.empty();
}

void GuiIcons::Take(const clsTxtParser& IconData) {
    m_names.clear();
    m_places.clear();
    m_picture.clear();
    const auto& records = IconData.ByIndex();
    const auto group = records.empty() ? std::nullopt : FindGui(*records.front());
    if (!group)
        return;
    m_picture = WithoutDirectory(group->Picture);
    const std::int64_t end =
        std::min<std::int64_t>(group->First + group->Count, std::ssize(records));
    for (std::int64_t i = group->First; i < end; ++i) {
        const clsTXTObject& icon = *records[static_cast<std::size_t>(i)];
        m_names.emplace_back(icon.ObjectName());
        if (const auto place = PlaceOf(icon))
            m_places.emplace(m_names.back(), *place);
    }
}

std::optional<IconPlace> GuiIcons::Find(std::string_view Name) const {
    const auto found = m_places.find(std::string(Name));
    return found == m_places.end() ? std::nullopt : std::optional(found->second);
}
