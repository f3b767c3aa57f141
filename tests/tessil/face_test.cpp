#include "pictureuser.h"

#include <gtest/gtest.h>

#include <iterator>

namespace {

using namespace pictureuser;

TEST(Face, NothingIsDecodedBeforeInitAndAfterTerm) {
    const auto refused = [] {
        return TESSIL_ConvertToHBitmap(load("tga_24"), "early.tga") == 0 &&
               TESSIL_GetLastError() == TESSIL_E_INIT &&
               errorText().find("early.tga") != std::string::npos;
    };
    EXPECT_TRUE(refused());
    EXPECT_EQ(TESSIL_Term(), 0);
    EXPECT_EQ(TESSIL_GetLastError(), TESSIL_E_INIT);
    for (int round = 0; round < 2; ++round) {
        EXPECT_EQ(TESSIL_Init(), 1);
        EXPECT_EQ(TESSIL_Init(), 1);
        EXPECT_EQ(TESSIL_Term(), 1);
        EXPECT_NE(decoded(load("png_rgba"), "x.png"), "") << errorText();
        EXPECT_EQ(TESSIL_Term(), 1);
        EXPECT_TRUE(refused());
    }
}

TEST(Face, BitmapsLiveUntilTheyAreDeleted) {
    TESSIL_Init();
    const std::int32_t first = TESSIL_ConvertToHBitmap(load("png_rgba"), "a.png");
    const std::int32_t second = TESSIL_ConvertToHBitmap(load("tga_8"), "b.tga");
    TESSIL_Term();
    EXPECT_NE(first, second);
    EXPECT_EQ(shown(first), "2x2 ff0000ff 00ff0080 ff0000ff 00ff0080");
    EXPECT_EQ(TESSIL_DeleteBitmap(first), 1);
    EXPECT_EQ(TESSIL_DeleteBitmap(first), 0);
    EXPECT_EQ(TESSIL_GetLastError(), TESSIL_E_HANDLE);
    EXPECT_EQ(shown(first), "");
    EXPECT_EQ(shown(second).substr(0, 3), "3x2");
    EXPECT_EQ(TESSIL_DeleteBitmap(second), 1);
    EXPECT_EQ(TESSIL_GetLastError(), TESSIL_OK);
}

TEST(Face, AnErrorNamesThePictureAndTheReason) {
    const std::string jpeg = load("jpg_grey"), tga = load("tga_24"), dds = load("dds_dxt1");
    const struct {
        std::string file;
        TESSILError code;
        const char* reason;
    } cases[] = {
        {"", TESSIL_E_KIND, "none of DDS, PNG, JPEG, BMP and TGA"},
        {"GIF89a\1\1\1\1\1\1\1\1\1\1\1\1\1\1\1\1", TESSIL_E_KIND, "none of"},
        {patched(dds, 84, "DX10"), TESSIL_E_KIND, "DDS"},
        {patched(load("dds_a8r8g8b8"), 88, "\x0c"), TESSIL_E_KIND, "DDS"},
        {patched(load("bmp_24"), 30, "\1"), TESSIL_E_KIND, "BMP"},
        {patched(tga, 16, "\x0c"), TESSIL_E_KIND, "TGA"},
        {patched(jpeg, jpeg.find("\xff\xc0") + 1, "\xc9"), TESSIL_E_KIND, "JPEG"},
        {tga.substr(0, tga.size() - 1), TESSIL_E_BROKEN, "not all there"},
        {dds.substr(0, dds.size() - 1), TESSIL_E_BROKEN, "ends too early"},
        {load("png_palette_lacks"), TESSIL_E_BROKEN, "palette"},
        {patched(load("png_rgba"), 29, "?"), TESSIL_E_BROKEN, "damaged"}, // the checksum
        {std::string(TESSIL_MAX_FILE + 1, 'x'), TESSIL_E_TOO_BIG, "134217729 bytes"},
        {load("tga_huge"), TESSIL_E_TOO_BIG, "65535 x 65535"},
    };
    const Decoder decoder;
    for (const auto& wanted : cases) {
        EXPECT_EQ(TESSIL_ConvertToHBitmap(wanted.file, "icons.dds"), 0);
        EXPECT_EQ(TESSIL_GetLastError(), wanted.code) << errorText();
        EXPECT_NE(errorText().find("\"icons.dds\""), std::string::npos) << errorText();
        EXPECT_NE(errorText().find(wanted.reason), std::string::npos) << errorText();
    }
}

} // namespace
