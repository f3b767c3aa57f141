#include "lornfd/errors.h"
#include "scratch.h"

#include <gtest/gtest.h>

#include <string>

namespace {

using namespace lornfd;

TEST(Errors, EveryCodeTellsFileAndReason) {
    for (std::int32_t code = LORNFD_E_NOT_FOUND; code <= LORNFD_E_ARGUMENT; ++code) {
        fail(static_cast<LornFDError>(code), {.file = "<f>", .place = "<p>", .reason = "<r>"});
        const std::string text = scratch::errorText();
        EXPECT_EQ(LornFD_GetLastError(), code);
        EXPECT_EQ(text.find('{'), std::string::npos) << text;
        EXPECT_NE(text.find(code == LORNFD_E_HANDLE ? "<p>" : "<f>"), std::string::npos) << text;
        EXPECT_EQ(text.find("<r>") != std::string::npos, code != LORNFD_E_NOT_FOUND) << text;
    }
}

TEST(Errors, FilledTextIsNotFilledAgain) {
    EXPECT_EQ(fillErrorText("{file}|{place}|{reason}|{other}",
                            {.file = "{place}", .place = "{reason}", .reason = "%s{"}),
              "{place}|{reason}|%s{|{other}");
}

TEST(Errors, TranslateFitsItsBuffer) {
    LastError error(std::span<const ErrorText>{});
    error.set(7, {.file = {}, .place = {}, .reason = "abc"});
    std::int32_t needed = 0;
    EXPECT_EQ(error.translate(7, nullptr, 0, &needed), 0);
    EXPECT_EQ(needed, 4);
    const struct {
        std::int32_t size;
        std::int32_t fitted;
        std::string written;
    } cases[] = {{0, 0, "####"},
                 {-1, 0, "####"},
                 {1, 0, std::string("\0###", 4)},
                 {3, 0, std::string("ab\0#", 4)},
                 {4, 1, std::string("abc\0", 4)}};
    for (const auto& wanted : cases) {
        std::string buffer = "####";
        EXPECT_EQ(error.translate(7, buffer.data(), wanted.size, nullptr), wanted.fitted);
        EXPECT_EQ(buffer, wanted.written) << wanted.size;
    }
    EXPECT_EQ(error.text(0), "No error.");
    EXPECT_NE(error.text(99).find("99"), std::string::npos);
}

TEST(Errors, SuccessClearsTheFormerOne) {
    const scratch::Directory directory;
    EXPECT_EQ(LornFD_OpenFile(directory / "none", LORNFD_READ, LORNFD_OPEN_EXISTING, LORNFD_AS_IS),
              0);
    EXPECT_EQ(LornFD_GetLastError(), LORNFD_E_NOT_FOUND);
    EXPECT_TRUE(scratch::save(directory / "there", "x"));
    EXPECT_EQ(LornFD_GetLastError(), LORNFD_OK);
}

} // namespace
