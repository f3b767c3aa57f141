#include "lornfd/packing.h"
#include "scratch.h"

#include <gtest/gtest.h>

#include <libdeflate.h>
#include <string>
#include <zstd.h>

namespace {

using namespace lornfd;

const std::string sampleText = [] {
    std::string text;
    for (int i = 0; i < 400; ++i)
        text += std::to_string(i * 7919 % 1000) + ";";
    return text;
}();

/// What comes out in memory of the size that the bytes claim, as a reader does it that wants all.
std::optional<std::string> unpackedAsClaimed(std::string_view stored) {
    const auto size = claimedSize(stored);
    std::string room(static_cast<std::size_t>(size.value_or(0)), '\0');
    return size && unpackTo(room.data(), room.size(), stored) ? std::optional(room) : std::nullopt;
}

class Packing : public testing::TestWithParam<std::int32_t> {
protected:
    static std::string packed(std::string_view content) {
        return std::string(pack(content, GetParam(), "sample")->view());
    }
};

INSTANTIATE_TEST_SUITE_P(Forms, Packing, testing::Values(LORNFD_GZIP, LORNFD_ZSTD));

TEST_P(Packing, ComesBackAsItWas) {
    for (const std::string& content : {std::string(), std::string("x"), sampleText,
                                       std::string(3'000'000, 'a'), scratch::noise(200'000, 1)}) {
        const std::string stored = packed(content);
        EXPECT_EQ(packedForm(stored), GetParam());
        const auto unpacked = unpack(stored, "sample");
        ASSERT_TRUE(unpacked) << scratch::errorText();
        EXPECT_TRUE(unpacked->view() == content) << content.size();
        EXPECT_TRUE(unpackedAsClaimed(stored) == content) << content.size();
    }
}

TEST_P(Packing, EveryCutIsRefused) {
    const std::string stored = packed(sampleText);
    for (std::size_t length = 4; length < stored.size(); ++length) {
        ASSERT_FALSE(unpack(std::string_view(stored).substr(0, length), "cut.pck")) << length;
        ASSERT_NE(scratch::errorText().find("cut.pck"), std::string::npos);
        ASSERT_EQ(LornFD_GetLastError(), LORNFD_E_PACKED);
        ASSERT_FALSE(unpackedAsClaimed(std::string_view(stored).substr(0, length))) << length;
    }
}

TEST_P(Packing, EveryDamagedByteIsRefusedOrHarmless) {
    const std::string stored = packed(sampleText);
    for (std::size_t i = 0; i < stored.size(); ++i) {
        std::string damaged = stored;
        damaged[i] = static_cast<char>(damaged[i] ^ 0x11);
        if (packedForm(damaged) != GetParam())
            continue;
        const auto unpacked = unpack(damaged, "sample");
        // Some bits of a header say nothing about the content.
        ASSERT_TRUE(!unpacked || unpacked->view() == sampleText) << i;
        ASSERT_EQ(unpackedAsClaimed(damaged).has_value(), unpacked.has_value()) << i;
    }
}

TEST_P(Packing, NothingMayFollow) {
    const std::string stored = packed(sampleText);
    for (const std::string& tail : {std::string(1, '\0'), std::string("garbage"), stored}) {
        EXPECT_FALSE(unpack(stored + tail, "sample"));
        EXPECT_FALSE(unpackedAsClaimed(stored + tail));
        EXPECT_EQ(LornFD_GetLastError(), LORNFD_E_PACKED);
        EXPECT_NE(scratch::errorText().find("offset " + std::to_string(stored.size())),
                  std::string::npos)
            << scratch::errorText();
    }
}

TEST_P(Packing, LimitIsExact) {
    const std::string content(100'000, 'a');
    const std::string stored = packed(content);
    EXPECT_TRUE(unpack(stored, "sample", 100'000));
    EXPECT_FALSE(unpack(stored, "sample", 99'999));
    EXPECT_EQ(LornFD_GetLastError(), LORNFD_E_TOO_BIG);
    EXPECT_NE(scratch::errorText().find("99999"), std::string::npos);
}

TEST(PackingBombs, SizeIsBelievedOnlyAsFarAsBytesAllow) {
    std::string gzip(pack("short", LORNFD_GZIP, "")->view());
    gzip.replace(gzip.size() - 4, 4, "\xff\xff\xff\xff"); // claims 4 GB
    EXPECT_FALSE(unpack(gzip, "bomb.pck"));
    EXPECT_FALSE(claimedSize(gzip));
    EXPECT_EQ(LornFD_GetLastError(), LORNFD_E_PACKED);

    // Signature, a single segment with 8 bytes of content size (10 GB), then blocks of one repeated
    // byte.
    std::string zstd("\x28\xb5\x2f\xfd\xe0\x00\x00\x00\x80\x02\x00\x00\x00", 13);
    for (int block = 0; block < 250; ++block)
        zstd += std::string("\x02\x00\x10\x61", 4);
    ASSERT_LT(zstd.size(), 1100U);
    EXPECT_FALSE(unpack(zstd, "bomb.pck"));
    EXPECT_FALSE(claimedSize(zstd));
    EXPECT_EQ(LornFD_GetLastError(), LORNFD_E_TOO_BIG);
    EXPECT_NE(scratch::errorText().find("bomb.pck"), std::string::npos);
}

TEST(PackingForeign, FrameWithoutSizeOrChecksumIsRead) {
    ZSTD_CCtx* context = ZSTD_createCCtx();
    ZSTD_CCtx_setParameter(context, ZSTD_c_contentSizeFlag, 0);
    std::string stored(ZSTD_compressBound(3'000'000), '\0');
    const std::string content(3'000'000, 'z');
    stored.resize(
        ZSTD_compress2(context, stored.data(), stored.size(), content.data(), content.size()));
    ZSTD_freeCCtx(context);
    const auto unpacked = unpack(stored, "sample");
    ASSERT_TRUE(unpacked) << scratch::errorText();
    EXPECT_TRUE(unpacked->view() == content);
    EXPECT_FALSE(unpack(stored, "sample", 2'999'999));
    EXPECT_EQ(LornFD_GetLastError(), LORNFD_E_TOO_BIG);
}

TEST(PackingForeign, PlainBytesAreTheirOwnContent) {
    for (const std::string& content : {std::string(), std::string("\x1f\x8b"), std::string("a;b;"),
                                       std::string("\x28\xb5\x2f")}) {
        EXPECT_EQ(packedForm(content), LORNFD_PLAIN);
        EXPECT_EQ(unpack(content, "")->view(), content);
    }
}

} // namespace
