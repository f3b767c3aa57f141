// The real program, killed at random moments while it edits and saves. Each run goes on from what
// the one before it left.
#include "app/apptest.h"
#include "app/killdriver.h"
#include "core/mdlComFunctions.h"
#include "lornfd/lornfd.h"

#include <iostream>
#include <map>
#include <random>
#include <sstream>

namespace {

constexpr int records = 40;
constexpr int shortestDrive = 100; ///< milliseconds
constexpr int longestDrive = 2000;
constexpr std::int64_t mostLost = 1000; ///< milliseconds
constexpr std::int64_t slack = 200;     ///< for a machine under load

struct Line {
    std::int64_t Time = 0; ///< milliseconds
    std::string What;
    std::string File; ///< saved to
    std::string Digest;
};

std::vector<Line> linesOf(const std::string& log) {
    std::istringstream in(log.substr(0, log.rfind('\n') + 1)); // the last may be half a line
    std::vector<Line> lines;
    for (Line line; in >> line.Time >> line.What >> line.File >> line.Digest;)
        lines.push_back(line);
    return lines;
}

/// For how long a state had been left for another at the end of the log; none if the log does not
/// name it.
std::optional<std::int64_t> lost(const std::vector<Line>& log, const std::string& digest) {
    const auto last = std::find_if(log.rbegin(), log.rend(),
                                   [&](const Line& line) { return line.Digest == digest; });
    if (last == log.rend())
        return {};
    return last == log.rbegin() ? 0 : log.back().Time - std::prev(last)->Time;
}

class Killed : public AppTest {
protected:
    Killed() {
        write("config/user.ini",
              "[General]\nDataPath=" + native("data").toUtf8() + "\nLoadDesc=0\n");
        QByteArray text = "48;" + QByteArray::number(records) + ";\r\n";
        for (int i = 0; i < records; ++i)
            text += "0;100;0;0.50;007;5;1e3;7;8;9;10;11;12;13;14;15;WARE_" + QByteArray::number(i) +
                    ";\r\n";
        write("TWareT.txt", text);
        m_state = m_onDisk["TWareT.txt"] = DigestOf(text.toStdString());
    }

    /// Runs the program until it is killed, in the middle of something; its log.
    std::vector<Line> drive(unsigned seed, int milliseconds) {
        QFile::remove(native("log"));
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QString::fromLatin1(driveLog), native("log"));
        environment.insert(QString::fromLatin1(driveSeed), QString::number(seed));
        environment.insert(QStringLiteral("QT_LOGGING_RULES"),
                           QStringLiteral("default.warning=false"));
        QProcess program;
        program.setProcessEnvironment(environment);
        program.setProcessChannelMode(QProcess::ForwardedChannels);
        program.start(QCoreApplication::applicationFilePath(),
                      m_recovers ? QStringList() : QStringList{native(m_document.c_str())});
        const auto started = [&] {
            return program.state() == QProcess::NotRunning || QFileInfo(native("log")).size() > 0;
        };
        EXPECT_TRUE(QTest::qWaitFor(started, 30000));
        EXPECT_FALSE(program.waitForFinished(milliseconds)) << "it ended of itself";
        program.kill();
        EXPECT_TRUE(program.waitForFinished());
        return linesOf(read("log"));
    }

    /// The unpacked content of a file, as the log names it; empty if there is no such file.
    [[nodiscard]] std::string digestOnDisk(const std::string& name) const {
        const std::int32_t file =
            LornFD_OpenFile(program(name.c_str()), LORNFD_READ, LORNFD_OPEN_EXISTING, LORNFD_AS_IS);
        if (file == 0)
            return LornFD_FileExists(program(name.c_str())) ? "torn" : "";
        std::string text(LornFD_ViewFile(file));
        LornFD_CloseFile(file);
        if (text.starts_with("//"))
            text.erase(0, text.find('\n') + 1);
        return DigestOf(text);
    }

    /// Each file holds what was saved to it last, or what was just being saved.
    void checkFiles(const std::vector<Line>& log) {
        for (const Line& line : log)
            if (line.What == "saved")
                m_onDisk[line.File] = line.Digest;
        for (const char* name : {"TWareT.txt", "TWareT.pck"}) {
            const std::string digest = digestOnDisk(name);
            const bool pending = log.back().What == "saving" && log.back().File == name;
            EXPECT_TRUE(digest == m_onDisk[name] || (pending && digest == log.back().Digest))
                << name << (pending ? " while it was saved" : "");
            m_onDisk[name] = digest;
        }
    }
    /// What the next start can bring back, and from where it will go on.
    std::string recovered(const std::vector<Line>& log) {
        auto left = FindLeftJournals(RecoveryDirectory());
        EXPECT_LE(left.size(), 1U);
        if (left.empty())
            return saved(log);
        ++m_journals;
        EXPECT_NE(log.back().What, "saved") << "nothing but saved work was left";
        EXPECT_TRUE(left[0].Fits);
        clsTFile file;
        EXPECT_EQ(file.Open(left[0].Base.Document).Kind, clsTFile::Outcome::Done);
        EXPECT_EQ(file.Base(), left[0].Base);
        RecordUndo undo(file.Parser);
        EXPECT_TRUE(undo.Replay(left[0].Commands, {}));
        m_recovers = true;
        m_document = BaseName(left[0].Base.Document, false);
        return DigestOf(TextOf(file.Parser));
    }
    /// Without a journal: the document, which may just have been saved.
    std::string saved(const std::vector<Line>& log) {
        m_recovers = false;
        for (const Line& line : log)
            if (line.What == "saved")
                m_document = line.File;
        const Line& last = log.back();
        if (last.What == "saving" && m_onDisk[last.File] == last.Digest)
            m_document = last.File;
        return m_onDisk[m_document];
    }
    void check(const std::vector<Line>& log) {
        ASSERT_FALSE(log.empty());
        EXPECT_EQ(log.front().Digest, m_state) << "what the start before left";
        checkFiles(log);
        m_inSaves += log.back().What == "saving" ? 1 : 0;
        m_steps += log.size();
        m_state = recovered(log);
        const auto time = lost(log, m_state);
        ASSERT_TRUE(time) << "a state that never was";
        EXPECT_LE(*time, mostLost + slack) << "milliseconds of work are lost";
        m_mostLost = std::max(m_mostLost, *time);
    }

    std::string m_document = "TWareT.txt";       ///< for the next start
    bool m_recovers = false;                     ///< a journal leads it there
    std::map<std::string, std::string> m_onDisk; ///< digests by file
    std::string m_state;                         ///< to go on from
    int m_journals = 0;
    int m_inSaves = 0;
    std::size_t m_steps = 0;
    std::int64_t m_mostLost = 0;
};

TEST_F(Killed, LosesAtMostTheLastSecondAndTearsNoFile) {
    const int runs = qEnvironmentVariableIsSet("KESH_LONG") ? 200 : 20;
    const unsigned seed = qEnvironmentVariableIsSet("KESH_SEED")
                              ? qEnvironmentVariable("KESH_SEED").toUInt()
                              : std::random_device()();
    std::cout << "kills of seed " << seed << ": " << std::flush;
    std::mt19937 random(seed);
    for (int run = 0; run < runs && !HasFailure(); ++run) {
        SCOPED_TRACE("run " + std::to_string(run) + " of KESH_SEED=" + std::to_string(seed));
        const auto own = static_cast<unsigned>(random());
        check(drive(own, std::uniform_int_distribution(shortestDrive, longestDrive)(random)));
    }
    std::cout << m_steps << " steps, " << m_inSaves << " killed in saves, " << m_journals
              << " journals, at most " << m_mostLost << " ms lost\n";
}

} // namespace
