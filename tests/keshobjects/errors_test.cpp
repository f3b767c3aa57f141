#include "keshobjects/errors.h"
#include "loadedtext.h"

namespace {

TEST(Errors, EveryCodeHasATextOfItsOwn) {
    std::vector<std::string> texts;
    for (std::int32_t code = KESH_E_READ; code <= KESH_E_CHARACTER; ++code) {
        keshobjects::lastError().set(code, {"FILE", "PLACE", "REASON"});
        const std::string text = support::lastErrorText();
        EXPECT_TRUE(text.find("FILE") != text.npos || text.find("REASON") != text.npos) << text;
        EXPECT_EQ(text.find('{'), text.npos) << text;
        EXPECT_EQ(text.back(), code == KESH_E_READ || code == KESH_E_WRITE ? 'N' : '.') << text;
        EXPECT_EQ(std::count(texts.begin(), texts.end(), text), 0);
        texts.push_back(text);
    }
}

} // namespace
