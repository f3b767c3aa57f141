#include "sample/gamefiles.h"
#include "sample/ttext.h"

#include <array>
#include <cmath>

namespace sample {

namespace {

constexpr int cell = 32; ///< an icon with its border, pixels
constexpr int columns = 8;
constexpr int iconSize = cell - 2;

constexpr std::array<std::string_view, 4> mapIcons = {"MAP_STATION", "MAP_SHIP", "MAP_GATE",
                                                      "MAP_ROCK"};

struct Pixel {
    int red;
    int green;
    int blue;
    int alpha;
};

constexpr Pixel clear = {0, 0, 0, 0};

/// A star with as many rays as the icon's number tells, in a colour of its own.
Pixel starPixel(int icon, double x, double y) {
    const double distance = std::sqrt(x * x + y * y);
    const double edge = 0.55 + 0.4 * std::cos((3 + icon % 7) * std::atan2(y, x));
    if (distance > edge)
        return clear;
    return {120 + icon * 37 % 136, 100 + icon * 71 % 156, 90 + icon * 113 % 166, 255};
}

Pixel atlasPixel(int icons, int x, int y) {
    const int icon = y / cell * columns + x / cell;
    const double middle = cell / 2.0;
    return icon < icons
               ? starPixel(icon, (x % cell - middle) / middle, (y % cell - middle) / middle)
               : clear;
}

int rowsFor(int icons) {
    return (icons + columns - 1) / columns;
}

void add16(std::string& out, int value) {
    out += static_cast<char>(value & 0xFF);
    out += static_cast<char>(value >> 8 & 0xFF);
}

void add32(std::string& out, int value) {
    add16(out, value & 0xFFFF);
    add16(out, value >> 16 & 0xFFFF);
}

void addBgr(std::string& out, const Pixel& pixel) {
    for (const int part : {pixel.blue, pixel.green, pixel.red})
        out += static_cast<char>(part);
}

/// One section of the icon file: its head, then name, a value that the game ignores, and rectangle.
void addSection(std::string& out, std::string_view kind, std::string_view picture,
                const std::vector<std::string>& names) {
    const int count = static_cast<int>(names.size());
    out.append(kind).append(";").append(picture).append(";");
    out +=
        spell(columns * cell) + ";" + spell(rowsFor(count) * cell) + ";" + spell(count) + ";\r\n";
    for (int i = 0; i < count; ++i) {
        out += names[static_cast<std::size_t>(i)] + ";0;";
        for (const int value : {i % columns * cell, i / columns * cell, iconSize, iconSize})
            out += spell(value) + ";";
        out += i % 8 == 7 ? " // end of a row\r\n" : "\r\n";
    }
}

} // namespace

std::string iconDataFile() {
    std::string text = "// Where each icon stands in its picture\r\n";
    addSection(text, "ICONTYPE_MAP", mapPicture, {mapIcons.begin(), mapIcons.end()});
    addSection(text, "ICONTYPE_GUI", guiPicture, iconNames());
    return text;
}

std::string guiPictureFile() {
    const int icons = static_cast<int>(iconNames().size());
    std::string out;
    for (const int part : {0, 0, 2, 0, 0, 0, 0, 0, 0, 0, 0, 0}) // true colour, no palette
        out += static_cast<char>(part);
    add16(out, columns * cell);
    add16(out, rowsFor(icons) * cell);
    add16(out, 24 | 0x2000); // bits a pixel, first row on top
    for (int y = 0; y < rowsFor(icons) * cell; ++y)
        for (int x = 0; x < columns * cell; ++x)
            addBgr(out, atlasPixel(icons, x, y));
    return out;
}

std::string mapPictureFile() {
    const int icons = static_cast<int>(mapIcons.size());
    const int width = columns * cell;
    const int height = rowsFor(icons) * cell;
    std::string out = "DDS ";
    for (const int value : {124, 0x100F, height, width, width * 4, 0, 0})
        add32(out, value);
    out.append(44, '\0');
    for (const int value : {32, 0x41, 0, 32, 0xFF0000, 0xFF00, 0xFF, static_cast<int>(0xFF000000),
                            0x1000, 0, 0, 0, 0})
        add32(out, value);
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x) {
            const Pixel pixel = atlasPixel(icons, x, y);
            addBgr(out, pixel);
            out += static_cast<char>(pixel.alpha);
        }
    return out;
}

std::string skyPictureFile() {
    constexpr int size = 64;
    constexpr int headers = 54;
    std::string out = "BM";
    for (const int value : {headers + size * size * 3, 0, headers, 40, size, size})
        add32(out, value);
    add16(out, 1);
    add16(out, 24);
    for (const int value : {0, size * size * 3, 2835, 2835, 0, 0})
        add32(out, value);
    for (int y = 0; y < size; ++y)
        for (int x = 0; x < size; ++x)
            addBgr(out, {40 + x, 20 + y, 90 + (x * y) % 60, 255});
    return out;
}

} // namespace sample
