// The real program, started twice.
#include "core/clsSettings.h"
#include "core/surroundings.h"
#include "lornfd/lornfd.h"

#include <QtTest>

namespace {

class Processes : public Surroundings {
protected:
    Processes() {
        write("config/user.ini",
              "[General]\nDataPath=" + native("data").toUtf8() + "\nLoadDesc=0\n");
        for (const char* name : {"TWareE.txt", "TWareT.txt", "my mod/TWareF.txt"})
            write(name, "48;1;0;1;2;3;4;5;6;7;8;9;10;11;12;13;14;15;WARE;");
    }

    [[nodiscard]] std::unique_ptr<QProcess> start(const QStringList& arguments) const {
        auto process = std::make_unique<QProcess>();
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
        environment.insert(QStringLiteral("TMPDIR"), native("tmp"));
        process->setProcessEnvironment(environment);
        process->setWorkingDirectory(native("."));
        process->setProcessChannelMode(QProcess::ForwardedChannels);
        process->start(QStringLiteral(KESHEDITOR), arguments);
        EXPECT_TRUE(process->waitForStarted());
        return process;
    }
    /// Waits until the running instance has opened a file: it then heads the recent list.
    [[nodiscard]] bool opened(const char* name) const {
        return QTest::qWaitFor(
            [&] {
                const auto recent = clsSettings().LoadRecentTFiles();
                return !recent.empty() && recent.front() == program(name);
            },
            30000);
    }
    /// Runs a further start until it ends; its exit code, -1 if it stays.
    [[nodiscard]] int handOver(const QStringList& arguments) const {
        const auto process = start(arguments);
        if (!process->waitForFinished(30000)) {
            stop(*process);
            return -1;
        }
        return process->exitCode();
    }
    static void stop(QProcess& process) {
        process.kill();
        process.waitForFinished();
    }
};

TEST_F(Processes, ASecondStartOpensItsFileInTheFirst) {
    const auto first = start({QStringLiteral("TWareE.txt")});
    ASSERT_TRUE(opened("TWareE.txt"));
    EXPECT_EQ(handOver({QStringLiteral("TWareT.txt")}), 0);
    EXPECT_TRUE(opened("TWareT.txt"));
    EXPECT_EQ(handOver({QStringLiteral("/TFile"), QStringLiteral("my mod/TWareF.txt")}), 0);
    EXPECT_TRUE(opened("my mod/TWareF.txt"));
    EXPECT_EQ(handOver({}), 0);
    EXPECT_EQ(first->state(), QProcess::Running);
    stop(*first);
}

TEST_F(Processes, OpensAnEntryOfACatalogAndEndsCleanly) {
    const std::string wares = read("TWareE.txt");
    write("01.cat", "KESHCAT 1 01.dat\n");
    write("01.dat", "");
    const std::int32_t file = LornFD_OpenFileConvert(program("01.cat::types\\TWareT.txt"),
                                                     LORNFD_WRITE, LORNFD_CREATE, LORNFD_ZSTD);
    LornFD_WriteFile(file, wares.data(), std::ssize(wares));
    ASSERT_EQ(LornFD_CloseFile(file), 1);
    const auto first = start({});
    ASSERT_TRUE(
        QTest::qWaitFor([&] { return QFileInfo::exists(native("tmp/Lorn Editor")); }, 30000));
    EXPECT_EQ(handOver({QStringLiteral("01.cat::types\\TWareT.txt")}), 0);
    EXPECT_TRUE(opened("01.cat::types\\TWareT.txt"));
    first->terminate();
    ASSERT_TRUE(first->waitForFinished(30000));
    EXPECT_EQ(first->exitStatus(), QProcess::NormalExit);
    EXPECT_EQ(first->exitCode(), 0);
    EXPECT_FALSE(QFileInfo::exists(native("tmp/Lorn Editor")));
    EXPECT_NE(read("config/user.ini").find("[main]"), std::string::npos);
}

TEST_F(Processes, TheSocketOfADeadInstanceIsTakenOver) {
    const auto dead = start({QStringLiteral("TWareE.txt")});
    ASSERT_TRUE(opened("TWareE.txt"));
    stop(*dead);
    const auto first = start({QStringLiteral("TWareT.txt")});
    ASSERT_TRUE(opened("TWareT.txt"));
    EXPECT_EQ(handOver({native("TWareE.txt")}), 0);
    EXPECT_TRUE(opened("TWareE.txt"));
    EXPECT_EQ(first->state(), QProcess::Running);
    stop(*first);
}

TEST_F(Processes, AnotherSettingsDirectoryIsAnotherInstance) {
    const auto first = start({QStringLiteral("TWareE.txt")});
    ASSERT_TRUE(opened("TWareE.txt"));
    write("other/user.ini", read("config/user.ini").c_str());
    qputenv("KESH_CONFIG_DIR", native("other").toUtf8());
    const auto second = start({QStringLiteral("TWareT.txt")});
    EXPECT_TRUE(opened("TWareT.txt"));
    EXPECT_EQ(second->state(), QProcess::Running);
    stop(*second);
    stop(*first);
}

} // namespace
