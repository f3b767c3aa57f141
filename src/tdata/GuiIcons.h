// The icons of the game's user interface: names, places and the picture that they are cut from.
#pragma once

#include "tdata/clsTXTObject.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

class clsTxtParser;

/// In pixels of the picture.
struct IconPlace {
    std::int32_t X = 0;
    std::int32_t Y = 0;
    std::int32_t Width = 0;
    std::int32_t Height = 0;
};

class GuiIcons {
public:
    /// Takes the icons from IconData of the archive; false if there are none.
    bool Load();
    void Take(const clsTxtParser& IconData);
    [[nodiscard]] const std::vector<std::string>& Names() const noexcept { return m_names; }
    /// The picture's file name without a directory; empty if there are no icons.
    [[nodiscard]] const std::string& Picture() const noexcept { return m_picture; }
    /// Place of the icon of that name, behind its border of one pixel; nothing if there is none or
    /// it has no size.
    [[nodiscard]] std::optional<IconPlace> Find(std::string_view Name) const;

private:
    std::vector<std::string> m_names;
    std::unordered_map<std::string, IconPlace> m_places; ///< the first of each name
    std::string m_picture;
};
