#include "core/mdlCommon.h"
#include "files/mdlPaths.h"
#include "keshtool/keshtool.h"
#include "lornfd/catalog.h"
#include "lornfd/lornfd.h"
#include "sample/samplegame.h"
#include "tdata/clsTxtParser.h"
#include "tdata/mdlKeshConst.h"

#include <set>

namespace fs = std::filesystem;

namespace {

bool isWrittenInAnotherLayout(std::int32_t type) {
    return type == otype::JobWings || type == otype::WareLists || type == otype::IconData;
}

/// What the writer makes of a file's records.
std::string writtenForm(const clsTxtParser& file) {
    std::string text = "// Created with " + ProgramID() + "\r\n" + std::to_string(file.Version()) +
                       ';' + std::to_string(file.ByIndex().size()) + ";\r\n";
    for (const RecordPtr& record : file.ByIndex())
        text += record->GetObjectTData() + "\r\n";
    return text;
}

void expectSameRecords(const clsTxtParser& before, const clsTxtParser& after) {
    EXPECT_EQ(before.Version(), after.Version());
    ASSERT_EQ(before.ByIndex().size(), after.ByIndex().size());
    for (std::size_t i = 0; i < before.ByIndex().size(); ++i)
        EXPECT_TRUE(before.ByIndex()[i]->Values().SameAs(after.ByIndex()[i]->Values()))
            << before.ByIndex()[i]->GetObjectTData() << '\n'
            << after.ByIndex()[i]->GetObjectTData();
}

class KeshtoolConvert : public Keshtool {
protected:
    /// All files below "types" and "versions", loose and in catalogs, as seen from the test's
    /// directory.
    [[nodiscard]] std::vector<std::string> tFilesOf(const std::string& game) const {
        std::vector<std::string> files;
        for (const auto& file : fs::recursive_directory_iterator(root + game)) {
            const std::string path = file.path().lexically_relative(root);
            const fs::path directory = file.path().parent_path().filename();
            if (directory == "types" || directory == "versions")
                files.push_back(path);
            if (file.path().extension() != ".cat")
                continue;
            const auto index = lornfd::CatalogIndex::open(FromPlatform(root + path));
            for (std::size_t i = 0; i < index->size(); ++i)
                if (const std::string entry(index->entry(i).name); entry.starts_with("types\\"))
                    files.push_back(path + "::" + entry);
        }
        return files;
    }

    void load(clsTxtParser& parser, const std::string& path, std::int32_t type) const {
        const std::int32_t file = LornFD_OpenFile(FromPlatform(root + path), LORNFD_READ,
                                                  LORNFD_OPEN_EXISTING, LORNFD_AS_IS);
        EXPECT_TRUE(parser.Load(file, type)) << path << ": " << parser.GetLastError();
        EXPECT_EQ(parser.LeftOut(), "");
        LornFD_CloseFile(file);
    }
};

TEST_F(KeshtoolConvert, EveryFileOfTheSampleKeepsItsValuesAndTheirSpelling) {
    std::string error;
    ASSERT_TRUE(sample::writeSampleGame(root + "game", 1, error)) << error;
    std::set<std::pair<std::int32_t, std::int32_t>> seen; // type and version
    std::set<std::int32_t> types;
    for (const std::string& path : tFilesOf("game")) {
        SCOPED_TRACE(path);
        const std::int32_t type = ObjectTypeFromFile(FromPlatform(path));
        clsTxtParser before;
        load(before, path, type);
        seen.emplace(type, before.Version());
        types.insert(type);
        const Result result =
            run({QStringLiteral("convert"), QString::fromStdString(path), QStringLiteral("out")});
        ASSERT_EQ(result.code, 0) << result.err;
        if (type != otype::Jobs) {
            EXPECT_EQ(read("out"), writtenForm(before));
        }
        if (isWrittenInAnotherLayout(type))
            continue;
        clsTxtParser after;
        load(after, "out", type);
        expectSameRecords(before, after);
    }
    EXPECT_EQ(types.size(), 22U);
    EXPECT_EQ(seen.size(), 34U) << "a version of a type is missing";
}

TEST_F(KeshtoolConvert, LayoutsOfTheirOwnAreWrittenAsExpected) {
    for (const char* name : {"JobWings", "WareLists", "IconData"}) {
        fs::copy_file(fs::path(GOLDEN) / name / "input.txt", root + name + ".txt");
        fs::copy_file(fs::path(GOLDEN) / name / "expected.txt", root + "expected",
                      fs::copy_options::overwrite_existing);
        std::string expected = read("expected");
        const std::string_view program = "{program}";
        expected.replace(expected.find(program), program.size(), ProgramID());
        succeed((std::string("convert ") + name + ".txt out").c_str());
        EXPECT_EQ(read("out"), expected);
    }
}

TEST_F(KeshtoolConvert, ARecordOfNoValuesIsRefusedByItsKey) {
    write("WareLists.txt", "3;1;A;0;1;B;");
    const Result result = run("convert WareLists.txt out");
    EXPECT_EQ(result.code, 3);
    EXPECT_EQ(result.err, "keshtool: out: Record 1 (key k1) has no values, so it cannot be "
                          "written.\n");
    EXPECT_FALSE(fs::exists(root + "out"));
}

TEST_F(KeshtoolConvert, WhatTheCountLeavesOutIsAFinding) {
    std::string counted(Wares);
    counted.replace(counted.find("31; 2;"), 6, "31; 1;");
    write("TWareT.txt", counted);
    const std::string finding = "The count of records (1) ends before line 4 of TWareT.txt; the "
                                "rest is not read, and saving drops it.\n";
    const Result converted = run("convert TWareT.txt TWareB.txt");
    EXPECT_EQ(converted.code, 1);
    EXPECT_EQ(converted.err, "keshtool: " + finding);
    EXPECT_EQ(output("dump TWareB.txt"), output("dump TWareT.txt"));
    const Result verified = run("verify TWareB.txt TWareT.txt");
    EXPECT_EQ(verified.code, 1);
    EXPECT_EQ(verified.out, "TWareT.txt\t" + finding);
}

} // namespace
