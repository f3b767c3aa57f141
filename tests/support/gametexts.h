// A store of texts for the time of a test.
#pragma once

#include "keshobjects/keshtexts.h"
#include "textres/clsDescServer.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>

namespace support {

class GameTexts {
public:
    /// `pages` as they stand in a language file.
    explicit GameTexts(const std::string& pages) {
        Kesh_TREDescServerUnload();
        EXPECT_NE(Kesh_TREDescServerLoadMemory("<texts language=\"44\">" + pages + "</texts>",
                                               "test.xml"),
                  0);
        Kesh_TREDescServerTranslateStrings();
        DescServer = std::make_unique<clsDescServer>();
    }
    ~GameTexts() {
        DescServer.reset();
        Kesh_TREDescServerUnload();
    }
    GameTexts(const GameTexts&) = delete;
    GameTexts& operator=(const GameTexts&) = delete;
};

} // namespace support
