#include "lornfd/faults.h"
#include "savingcase.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <string>
#include <sys/mount.h>

namespace {

using lornfd::DiskOperation;

/// Makes disk operations fail while it lives.
class Fault {
public:
    /// The `first`th operation fails with `code`, and with `forEver` all behind it.
    Fault(int first, int code, bool forEver) {
        lornfd::setFaultHook([this, first, code, forEver](DiskOperation, std::size_t*) {
            const int now = ++m_count;
            return now == first || (forEver && now > first) ? code : 0;
        });
    }
    /// Every write takes one byte.
    Fault() {
        lornfd::setFaultHook([this](DiskOperation operation, std::size_t* bytes) {
            ++m_count;
            if (operation == DiskOperation::Write)
                *bytes = 1;
            return 0;
        });
    }
    ~Fault() { lornfd::setFaultHook({}); }
    Fault(const Fault&) = delete;
    Fault& operator=(const Fault&) = delete;
    [[nodiscard]] int count() const { return m_count; }

private:
    int m_count = 0;
};

class SavingFaults : public testing::TestWithParam<saving::Target> {
protected:
    static int operations() {
        const saving::Scene scene(GetParam());
        const Fault none(0, 0, false);
        EXPECT_TRUE(scene.save(1));
        return none.count();
    }
    static void runCase(int first, int code, bool forEver) {
        SCOPED_TRACE("operation " + std::to_string(first) + ", error " + std::to_string(code) +
                     (forEver ? " for ever" : " once"));
        const saving::Scene scene(GetParam());
        bool saved = false;
        {
            const Fault fault(first, code, forEver);
            saved = scene.save(1);
            EXPECT_EQ(LornFD_GetLastError() == 0, saved);
            EXPECT_EQ(scratch::errorText() == "No error.", saved);
        }
        EXPECT_TRUE(saved || code != EINTR || forEver) << "an interrupted call is repeated";
        EXPECT_TRUE(scene.holds(1) || (!saved && scene.holdsOld()));
        EXPECT_TRUE(scene.othersStand());
        // Until the new index is certain to last, the data file of the old one stays.
        EXPECT_TRUE(scene.isTidy() || (!saved && scene.holds(1))) << scene.listing();
        EXPECT_TRUE(scene.save(2)) << scratch::errorText();
        EXPECT_TRUE(scene.holds(2) && scene.othersStand());
        EXPECT_TRUE(scene.isTidy()) << scene.listing();
    }
};

INSTANTIATE_TEST_SUITE_P(Targets, SavingFaults, testing::ValuesIn(saving::targets),
                         [](const auto& target) { return std::string(target.param.title); });

TEST_P(SavingFaults, OldOrNewStandsWhateverFails) {
    const int count = operations();
    ASSERT_GE(count, 5) << "open, write, flush, rename, flush of the directory";
    std::mt19937 random(20);
    for (int first = 1; first <= count; ++first)
        for (const int code : {EIO, ENOSPC, EINTR, EACCES, EROFS})
            for (const bool forEver : {false, true})
                if (saving::isLong() || random() % 10 == 0)
                    runCase(first, code, forEver);
}

TEST_P(SavingFaults, EachFileIsFlushedBeforeTheNextStep) {
    const saving::Scene scene(GetParam());
    std::string operations;
    lornfd::setFaultHook([&](DiskOperation operation, std::size_t*) {
        operations += "OWFRD"[static_cast<int>(operation)];
        return 0;
    });
    EXPECT_TRUE(scene.save(1));
    lornfd::setFaultHook({});
    for (const char* unflushed : {"WO", "WR", "WD"})
        EXPECT_EQ(operations.find(unflushed), std::string::npos) << operations;
    EXPECT_TRUE(operations.ends_with("WFRD")) << operations;
}

TEST_P(SavingFaults, ShortWritesAreContinued) {
    const saving::Scene scene(GetParam(), 4000);
    const Fault oneByteEach;
    EXPECT_TRUE(scene.save(1)) << scratch::errorText();
    EXPECT_TRUE(scene.holds(1) && scene.othersStand() && scene.isTidy()) << scene.listing();
    EXPECT_GT(oneByteEach.count(), 2000);
}

/// A file system of 1 MB, where the user may make one.
class SmallDisk {
public:
    SmallDisk() : mounted(::mount("none", (m_under / "").c_str(), "tmpfs", 0, "size=1m") == 0) {
        if (mounted)
            ::setenv("TMPDIR", (m_under / "").c_str(), 1);
    }
    ~SmallDisk() {
        if (!mounted)
            return;
        ::unsetenv("TMPDIR");
        ::umount2((m_under / "").c_str(), MNT_DETACH);
    }
    SmallDisk(const SmallDisk&) = delete;
    SmallDisk& operator=(const SmallDisk&) = delete;

private:
    const scratch::Directory m_under;

public:
    const bool mounted;
};

TEST_P(SavingFaults, FullDiskLeavesTheOld) {
    const SmallDisk disk;
    if (!disk.mounted)
        GTEST_SKIP() << "this user cannot mount a small disk";
    const saving::Target& target = GetParam();
    saving::Target withoutSpare = target;
    withoutSpare.spare = 0;
    const saving::Scene scene(withoutSpare, 200'000);
    for (const std::size_t size : {std::size_t{1'100'000}, std::size_t{5'000'000}}) {
        EXPECT_FALSE(scratch::save(scene.name, scratch::noise(size, 9), target.form));
        EXPECT_EQ(LornFD_GetLastError(), LORNFD_E_WRITE);
        EXPECT_TRUE(scene.holdsOld() && scene.othersStand());
        EXPECT_TRUE(scene.isTidy()) << scene.listing();
    }
    EXPECT_TRUE(scene.save(2)) << scratch::errorText();
    EXPECT_TRUE(scene.holds(2) && scene.othersStand() && scene.isTidy()) << scene.listing();
}

} // namespace
