#include "pictureuser.h"

#include <gtest/gtest.h>

#include <cmath>

namespace {

using namespace pictureuser;

constexpr struct {
    const char* name;
    const char* pixels;
} pictures[] = {
    {"bmp_1", "3x2 000000ff 030201ff 000000ff 030201ff 000000ff 030201ff"},
    {"bmp_24", "3x2 ff0000ff 00ff00ff 0000ffff ffffffff 102030ff 405060ff"},
    {"bmp_24top", "3x2 ffffffff 102030ff 405060ff ff0000ff 00ff00ff 0000ffff"},
    {"bmp_32m", "3x2 ff0000ff 00ff00ff 0000ffff ffffffff 102030ff 405060ff"},
    {"bmp_4", "3x2 0c0804ff 0f0a05ff 2d1e0fff 030201ff 060402ff 090603ff"},
    {"dds_a8l8", "3x2 01010102 03030304 05050506 07070708 0909090a 0b0b0b0c"},
    {"dds_a8r8g8b8", "3x2 ff0000ff 00ff00c0 0000ff80 ffffff40 10203000 405060ff"},
    {"dds_dxt1", "4x1 ffffffff 000000ff aaaaaaff 555555ff"},
    {"dds_dxt1_clear", "4x1 000000ff ffffffff 7f7f7fff aaaaaa00"},
    {"dds_dxt3", "5x1 ffffff00 00000055 aaaaaaaa 555555ff ffffff00"},
    {"dds_dxt5_mipmaps", "4x2 ffffffd2 00000000 aaaaaab4 55555596 "
                         "ffffff78 0000005a aaaaaa3c 5555551e"},
    {"dds_r5g6b5", "3x2 ff0000ff 00ff00ff 0000ffff ffffffff 102031ff 425163ff"},
    {"png_grey1", "9x2 000000ff ffffffff 000000ff ffffffff 000000ff ffffffff 000000ff ffffffff "
                  "ffffffff 000000ff ffffffff 000000ff ffffffff 000000ff ffffffff 000000ff "
                  "ffffffff ffffffff"},
    {"png_grey_alpha16", "2x1 00000002 04040406"},
    {"png_palette2", "4x1 00010200 03040580 060708ff 090a0bff"},
    {"png_rgb_clear", "2x2 ff000000 00ff00ff ff000000 00ff00ff"},
    {"png_rgba", "2x2 ff0000ff 00ff0080 ff0000ff 00ff0080"},
    {"png_text", "1x1 101010ff"}, // a gamma of 1 and a remark, which do not count
    {"tga_16", "3x2 ff0000ff 00ff00ff 0000ffff ffffff00 10213100 425263ff"},
    {"tga_24", "3x2 ff0000ff 00ff00ff 0000ffff ffffffff 102030ff 405060ff"},
    {"tga_32_right", "3x2 0000ff80 00ff00c0 ff0000ff 405060ff 10203000 ffffff40"},
    {"tga_8", "3x2 040404ff 050505ff 060606ff 010101ff 020202ff 030303ff"},
    {"tga_pal24", "3x2 131211ff 0b0a09ff 030201ff 030201ff 0b0a09ff 131211ff"},
    {"tga_palette_rle", "3x2 050403ff 050403ff 050403ff 050403ff 050403ff 050403ff"},
    {"tga_rle24", "3x2 ff0000ff 00ff00ff 0000ffff ff0000ff ff0000ff ff0000ff"},
    {"tga_rle8", "3x2 010101ff 020202ff 030303ff 090909ff 090909ff 090909ff"},
};

TEST(Pictures, EveryKindHasItsPixels) {
    const Decoder decoder;
    for (const auto& [name, pixels] : pictures)
        EXPECT_EQ(decoded(load(name), name), pixels) << name << ": " << errorText();
}

// These are 9 x 9 pixels, red at the top and blue at the bottom.
TEST(Pictures, AGradientComesOutInOrder) {
    const Decoder decoder;
    for (const auto& [name, error] : {std::pair("jpg_colour", 4), std::pair("jpg_progressive", 4),
                                      std::pair("png_interlaced", 1)}) {
        const std::int32_t bitmap = TESSIL_ConvertToHBitmap(load(name), name);
        TESSILBitmap data{};
        ASSERT_EQ(TESSIL_GetBitmap(bitmap, data), 1) << name << ": " << errorText();
        ASSERT_EQ(std::pair(data.Width, data.Height), std::pair(9, 9));
        for (int i = 0; i < 81; ++i) {
            const std::uint8_t* pixel = data.Pixels + i * 4;
            const int blue = 255 * (i / 9) / 8;
            EXPECT_NEAR(pixel[0], 255 - blue, error) << name << i;
            EXPECT_NEAR(pixel[1], 0, error) << name << i;
            EXPECT_NEAR(pixel[2], blue, error) << name << i;
            EXPECT_EQ(pixel[3], 255);
        }
        TESSIL_DeleteBitmap(bitmap);
    }
}

// Each variant differs from a picture above in a few bytes of its header.
TEST(Pictures, VariantsOfAHeader) {
    using namespace std::string_view_literals;
    const struct {
        const char* name;
        std::size_t at;
        std::string_view bytes;
        const char* pixels;
    } variants[] = {
        {"dds_r5g6b5", 80,
         "\x41\0\0\0\0\0\0\0\x10\0\0\0\0\x7c\0\0\xe0\x03\0\0\x1f\0\0\0\0\x80\0\0"sv,
         "3x2 f70000ff 08ff0000 0000ff00 ffffffff 21423100 84a56300"},
        {"dds_a8r8g8b8", 80, "\x40"sv, "3x2 ff0000ff 00ff00ff 0000ffff ffffffff 102030ff 405060ff"},
        {"dds_a8l8", 80, "\0\0\2"sv, "3x2 010101ff 030303ff 050505ff 070707ff 090909ff 0b0b0bff"},
        {"tga_16", 17, "\0"sv, "3x2 ff0000ff 00ff00ff 0000ffff ffffffff 102131ff 425263ff"},
        {"tga_24", 17, "\x20"sv, "3x2 ffffffff 102030ff 405060ff ff0000ff 00ff00ff 0000ffff"},
        {"tga_pal24", 3, "\2\0\1\0"sv, ""},
        {"bmp_32m", 30, "\0"sv, "3x2 ff0000ff 00ff00ff 0000ffff ffffffff 102030ff 405060ff"},
        {"bmp_4", 46, "\3"sv, ""},
    };
    const Decoder decoder;
    for (const auto& [name, at, bytes, pixels] : variants)
        EXPECT_EQ(decoded(patched(load(name), at, bytes), name), pixels) << name << at;
}

} // namespace
