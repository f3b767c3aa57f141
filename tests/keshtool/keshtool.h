// Runs the real tool in a directory of its own.
#pragma once

#include "lornfd/packing.h"

#include <QProcess>
#include <QTemporaryDir>
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>

struct Result {
    int code = -1;
    std::string out;
    std::string err;
};

class Keshtool : public testing::Test {
protected:
    Keshtool() : root(m_directory.path().toStdString() + '/') {}

    /// Runs with the test's directory as working directory.
    [[nodiscard]] Result run(const QStringList& arguments) const {
        QProcess process;
        process.setWorkingDirectory(m_directory.path());
        process.start(QStringLiteral(KESHTOOL), arguments);
        Result result;
        if (!process.waitForFinished(60'000) || process.exitStatus() != QProcess::NormalExit) {
            ADD_FAILURE() << "no normal end: " << process.readAllStandardError().toStdString();
            return result;
        }
        result.code = process.exitCode();
        result.out = process.readAllStandardOutput().toStdString();
        result.err = process.readAllStandardError().toStdString();
        return result;
    }

    /// The same with the words of a line, none of which holds a blank.
    [[nodiscard]] Result run(const char* line) const {
        return run(QString::fromUtf8(line).split(QLatin1Char(' ')));
    }

    /// Runs what must succeed without a word, and gives its output.
    [[nodiscard]] std::string output(const char* line) const {
        const Result result = run(line);
        EXPECT_EQ(result.code, 0) << line;
        EXPECT_EQ(result.err, "") << line;
        return result.out;
    }
    void succeed(const char* line) const { EXPECT_EQ(output(line), "") << line; }

    void write(const std::string& name, std::string_view content) const {
        std::filesystem::create_directories(std::filesystem::path(root + name).parent_path());
        std::ofstream(root + name, std::ios::binary) << content;
    }

    [[nodiscard]] std::string read(const std::string& name) const {
        std::ostringstream content;
        content << std::ifstream(root + name, std::ios::binary).rdbuf();
        return content.str();
    }

    /// What a file or an entry's stored bytes begin with: LORNFD_PLAIN, LORNFD_GZIP or LORNFD_ZSTD.
    [[nodiscard]] std::int32_t formOf(const std::string& name) const {
        return lornfd::packedForm(read(name));
    }

    static std::string packed(std::string_view content, std::int32_t form) {
        const auto bytes = lornfd::pack(content, form, "test");
        EXPECT_TRUE(bytes);
        return std::string(bytes->view());
    }

private:
    QTemporaryDir m_directory;

protected:
    const std::string root; ///< with a final "/"
};

/// A file of two wares; its values have spellings that a number alone would not keep.
inline constexpr std::string_view Wares =
    "// wares\r\n"
    "31; 2;\r\n"
    "007;0;+5;1e3;0.50;-0;0.5;-12;12;0;text;1.25;\"q\";;100000000000000000000;9;SS_WARE_A;\r\n"
    "0;0;0;0;0;0;0;0;0;0;0;0;0;0.00005;0.0001;caf\xE9;SS_WARE_B;\r\n";
