#include "pictureuser.h"
#include "tessil/decodermemory.h"

#include <gtest/gtest.h>

#include <libdeflate.h>

namespace {

using namespace pictureuser;
using namespace std::string_view_literals;

std::string big32(std::size_t value) {
    std::string bytes;
    for (int shift = 24; shift >= 0; shift -= 8)
        bytes += static_cast<char>(value >> shift & 0xff);
    return bytes;
}

std::string pngChunk(std::string_view name, std::string_view data) {
    const std::string counted = std::string(name).append(data);
    return big32(data.size())
        .append(counted)
        .append(big32(libdeflate_crc32(0, counted.data(), counted.size())));
}

/// All zero, of 8 bytes a pixel.
std::string blackPng(std::size_t side) {
    const std::string rows((side * 8 + 1) * side, '\0');
    libdeflate_compressor* compressor = libdeflate_alloc_compressor(1);
    std::string packed(rows.size() / 100 + 1000, '\0');
    packed.resize(libdeflate_zlib_compress(compressor, rows.data(), rows.size(), packed.data(),
                                           packed.size()));
    libdeflate_free_compressor(compressor);
    return std::string("\x89PNG\r\n\x1a\n")
        .append(pngChunk("IHDR", big32(side).append(big32(side)).append("\x10\6\0\0\0"sv)))
        .append(pngChunk("IDAT", packed))
        .append(pngChunk("IEND", ""));
}

// A cut file may still be a picture where only what stands behind it is cut.
TEST(HostilePictures, EveryCutIsRefusedOrTheWholePicture) {
    const Decoder decoder;
    for (const std::string& name : names()) {
        const std::string file = load(name), whole = decoded(file, name);
        for (std::size_t length = 0; length < file.size(); ++length) {
            const std::string cut = decoded(std::string_view(file).substr(0, length), "cut.dds");
            ASSERT_TRUE(cut.empty() || cut == whole) << name << length;
        }
    }
}

TEST(HostilePictures, EveryDamagedByteIsRefusedOrGivesAPicture) {
    const Decoder decoder;
    for (const std::string& name : names()) {
        const std::string file = load(name);
        for (std::size_t i = 0; i < file.size(); ++i) {
            for (const char value : {'\0', '\1', '\x7f', '\xff'}) {
                const std::int32_t bitmap =
                    TESSIL_ConvertToHBitmap(patched(file, i, {&value, 1}), name);
                ASSERT_TRUE(bitmap != 0 || TESSIL_GetLastError() != 0) << name << i;
                TESSIL_DeleteBitmap(bitmap);
            }
        }
    }
}

TEST(HostilePictures, AHugeClaimCostsNoMemory) {
    constexpr struct {
        const char* name;
        std::size_t at;
        std::string_view size;
        TESSILError code;
    } claims[] = {
        {"dds_dxt1", 12, "\xff\xff\xff\xff\xff\xff\xff\xff"sv, TESSIL_E_TOO_BIG},
        {"dds_a8r8g8b8", 12, "\xff\xff\0\0\xff\xff\0\0"sv, TESSIL_E_TOO_BIG},
        {"png_rgba", 16, "\x7f\xff\xff\xff\x7f\xff\xff\xff"sv, TESSIL_E_TOO_BIG},
        {"png_rgba", 16, "\0\0\x40\1\0\0\0\1"sv, TESSIL_E_TOO_BIG}, // one more than the side
        {"jpg_huge", 0, "\xff"sv, TESSIL_E_TOO_BIG},
        {"tga_huge", 0, "\0"sv, TESSIL_E_TOO_BIG},
        {"bmp_24", 18, "\xff\xff\xff\x7f\0\0\0\x80"sv, TESSIL_E_TOO_BIG},
        // Within the limits, but the data is not there.
        {"dds_dxt1", 12, "\0\x10\0\0\0\x10\0\0"sv, TESSIL_E_BROKEN},
        {"dds_a8r8g8b8", 12, "\0\x10\0\0\0\x10\0\0"sv, TESSIL_E_BROKEN},
        {"tga_24", 12, "\0\x10\0\x10"sv, TESSIL_E_BROKEN},
        {"bmp_24", 18, "\0\x10\0\0\0\x10\0\0"sv, TESSIL_E_BROKEN},
    };
    const Decoder decoder;
    for (const auto& [name, at, size, code] : claims) {
        const std::string file = patched(load(name), at, size);
        tessil::takeMemoryPeak();
        EXPECT_EQ(TESSIL_ConvertToHBitmap(file, "huge.dds"), 0);
        EXPECT_EQ(TESSIL_GetLastError(), code) << name << at;
        EXPECT_NE(errorText().find("huge.dds"), std::string::npos);
        EXPECT_LT(tessil::takeMemoryPeak(), 100'000U) << name << at;
    }
}

TEST(HostilePictures, TheLargestFitsTheMemoryOfTheDecoder) {
    const Decoder decoder;
    const std::int32_t bitmap = TESSIL_ConvertToHBitmap(blackPng(4096), "largest.png");
    EXPECT_NE(bitmap, 0) << errorText();
    TESSIL_DeleteBitmap(bitmap);
    EXPECT_GT(tessil::takeMemoryPeak(), tessil::MaxDecoderMemory / 2);
}

// DevIL itself forgets the rows of this one.
TEST(HostilePictures, BrokenOnesLeaveNoMemoryTaken) {
    const Decoder decoder;
    const std::string whole = load("png_rgba"), broken = patched(whole, whole.size() - 20, "?");
    const auto taken = [&] {
        EXPECT_EQ(TESSIL_ConvertToHBitmap(broken, "broken.png"), 0);
        tessil::takeMemoryPeak();
        return tessil::takeMemoryPeak();
    };
    const std::size_t first = taken();
    EXPECT_EQ(taken(), first);
}

// A progressive picture may have any number of scans, each as slow as all of its pixels.
TEST(HostilePictures, ManyScansAreRefused) {
    const Decoder decoder;
    const std::string file = load("jpg_progressive");
    const std::string_view scan = std::string_view(file).substr(file.rfind("\xff\xda"));
    std::string many = file.substr(0, file.size() - 2);
    for (int i = 0; i < 64; ++i)
        many.append(scan.substr(0, scan.size() - 2));
    EXPECT_EQ(TESSIL_ConvertToHBitmap(many.append("\xff\xd9"), "slow.jpg"), 0);
    EXPECT_NE(errorText().find("scans"), std::string::npos);
}

TEST(HostilePictures, MemoryIsBoundedAndGivenBack) {
    EXPECT_EQ(tessil::takeMemory(tessil::MaxDecoderMemory + 1), nullptr);
    EXPECT_EQ(tessil::takeMemory(~std::size_t{}), nullptr);
    void* half = tessil::takeMemory(tessil::MaxDecoderMemory / 2);
    EXPECT_NE(half, nullptr);
    EXPECT_EQ(tessil::takeMemory(tessil::MaxDecoderMemory / 2 + 1), nullptr);
    void* small = tessil::takeMemory(1);
    EXPECT_EQ(*static_cast<char*>(small), 0);
    tessil::giveMemory(half);
    tessil::giveMemory(nullptr);
    tessil::giveAllMemory();
    tessil::takeMemoryPeak();
    EXPECT_EQ(tessil::takeMemoryPeak(), 0U);
}

} // namespace
