// What a command line asks for.
#include "app/Requests.h"
#include "keshobjects/keshobjects.h"

#include <gtest/gtest.h>

namespace {

struct KindCase {
    const char* File;
    const char* Type;
    FileKind Kind;
};

TEST(Requests, TheTypeDecidesElseTheName) {
    const KindCase cases[] = {
        {"x", "-TFile", FileKind::TFile},
        {"x", "/TFILE", FileKind::TFile},
        {"x", "/map", FileKind::GalaxyMap},
        {"TShips.txt", "-xml", FileKind::Xml},
        {"\\game\\types\\TShips.txt", "", FileKind::TFile},
        {"TShips.txt", "-other", FileKind::TFile},
        {"C:\\my TShips\\readme.txt", "", FileKind::Unknown},
        {"\\game\\01.cat::TDocks.pck", "", FileKind::TFile},
        {"\\TDocks\\01.cat::types\\readme.pck", "", FileKind::Unknown},
        {"vfs://types\\Jobs", "", FileKind::TFile},
        {"", "", FileKind::Unknown},
    };
    for (const KindCase& c : cases)
        EXPECT_EQ(FileKindOf(c.File, c.Type), c.Kind) << c.File << " " << c.Type;
}

struct RequestCase {
    std::vector<std::string> Arguments;
    std::vector<std::string> Arrived;
};

TEST(Requests, ArrivesWithPlacesThatHoldElsewhere) {
    const RequestCase cases[] = {
        {{}, {}},
        {{"TShips.txt"}, {"\\home\\me\\TShips.txt"}},
        {{"../my mod/T \"x\".txt"}, {"\\home\\me\\..\\my mod\\T \"x\".txt"}},
        {{"/TFile", "a b.txt"}, {"/TFile", "\\home\\me\\a b.txt"}},
        {{"/game/01.cat::types\\TShips.pck"}, {"\\game\\01.cat::types\\TShips.pck"}},
        {{"01.cat::types/TShips.pck"}, {"\\home\\me\\01.cat::types\\TShips.pck"}},
        {{"C:\\game\\TShips.txt"}, {"C:\\game\\TShips.txt"}},
        {{"vfs://types/TShips"}, {"vfs://types\\TShips"}},
        {{"a", "b", "c"}, {"a", "b", "c"}},
        {{"-TFile", ""}, {"-TFile", ""}},
    };
    for (const RequestCase& c : cases)
        EXPECT_EQ(Kesh_CommandLineToArgV(RequestOf(c.Arguments, "/home/me")), c.Arrived);
}

} // namespace
