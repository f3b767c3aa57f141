#include "lornfd/faults.h"
#include "savingcase.h"

#include <gtest/gtest.h>

#include <csignal>
#include <functional>
#include <string>
#include <sys/wait.h>

namespace {

/// Runs `work` in a child process, which ends with it or is killed. Gives true if it was killed.
bool runInChild(const std::function<void()>& work, const std::function<void(pid_t)>& meanwhile) {
    const pid_t child = ::fork();
    if (child == 0) {
        work();
        ::_exit(0);
    }
    meanwhile(child);
    int status = 0;
    ::waitpid(child, &status, 0);
    return WIFSIGNALED(status);
}

class SavingKills : public testing::TestWithParam<saving::Target> {
protected:
    static void expectRecovery(const saving::Scene& scene) {
        EXPECT_TRUE(scene.othersStand());
        EXPECT_TRUE(scene.save(9)) << scratch::errorText();
        EXPECT_TRUE(scene.holds(9) && scene.othersStand());
        EXPECT_TRUE(scene.isTidy()) << scene.listing();
    }
};

INSTANTIATE_TEST_SUITE_P(Targets, SavingKills, testing::ValuesIn(saving::targets),
                         [](const auto& target) { return std::string(target.param.title); });

TEST_P(SavingKills, OldOrNewStandsAfterADeathAtAnyOperation) {
    for (int last = 1;; ++last) {
        SCOPED_TRACE("killed at operation " + std::to_string(last));
        const saving::Scene scene(GetParam());
        const auto dieAtOperation = [&] {
            int count = 0;
            lornfd::setFaultHook([&](lornfd::DiskOperation, std::size_t* bytes) {
                if (++count == last)
                    ::raise(SIGKILL);
                if (bytes && count + 1 == last) // the write before got no further than half
                    *bytes = (*bytes + 1) / 2;
                return 0;
            });
            scene.save(1);
        };
        const bool killed = runInChild(dieAtOperation, [](pid_t) {});
        EXPECT_TRUE(scene.holds(1) || (killed && scene.holdsOld()));
        expectRecovery(scene);
        if (!killed)
            break;
    }
}

TEST_P(SavingKills, OldOrNewStandsAfterADeathAtAnyMoment) {
    constexpr int longKills = 1000;
    constexpr unsigned versions = 5;
    const int kills =
        longKills / (saving::isLong() ? 1 : 10) / static_cast<int>(std::size(saving::targets));
    std::mt19937 random(21);
    for (int i = 0; i < kills; ++i) {
        const saving::Scene scene(GetParam());
        const auto saveOnAndOn = [&] {
            for (unsigned number = 0;; ++number)
                scene.save(number % versions);
        };
        const auto killSoon = [&](pid_t child) {
            ::usleep(static_cast<useconds_t>(random() % 60'000));
            ::kill(child, SIGKILL);
        };
        EXPECT_TRUE(runInChild(saveOnAndOn, killSoon));
        bool whole = scene.holdsOld();
        for (unsigned number = 0; number < versions && !whole; ++number)
            whole = scene.holds(number);
        EXPECT_TRUE(whole) << "kill " << i;
        expectRecovery(scene);
    }
}

} // namespace
