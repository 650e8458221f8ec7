#include "platform/kernel.h"
#include "support/temp_folder.h"

#include <csignal>
#include <cstdlib>
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

namespace
{
/// Each test has a session folder of its own.
class MutexTest : public testing::Test
{
protected:
    void SetUp() override { setenv("XDG_RUNTIME_DIR", folder.Path().c_str(), 1); }
    void TearDown() override { unsetenv("XDG_RUNTIME_DIR"); }

    /// Makes the mutex, closes it at once and gives GetLastError of its making.
    static DWORD Try()
    {
        const HANDLE mutex = CreateMutexA(nullptr, FALSE, "Test");
        const DWORD error = GetLastError();
        if (mutex)
            CloseHandle(mutex);
        return error;
    }

    TempFolder folder;
};

/// Another process that has made the mutex and lives until it is killed, and a child of it that lives some longer, as
/// the one that shows a message box. Both are under way when this returns.
pid_t StartOwner()
{
    int ready[2] = {};
    if (pipe(ready) != 0)
        return -1;
    const pid_t owner = fork();
    if (owner == 0) {
        const char made = CreateMutexA(nullptr, FALSE, "Test") ? 'y' : 'n';
        if (fork() == 0) {
            if (write(ready[1], &made, 1) == 1)
                sleep(1);
            _exit(0);
        }
        if (write(ready[1], &made, 1) == 1)
            pause();
        _exit(1);
    }
    char made[2] = {};
    const bool answered = read(ready[0], &made[0], 1) == 1 && read(ready[0], &made[1], 1) == 1;
    close(ready[0]);
    close(ready[1]);
    return answered && made[0] == 'y' && made[1] == 'y' ? owner : -1;
}
}

TEST_F(MutexTest, IsKnownToOtherProcessesUntilItsOwnerDies)
{
    EXPECT_EQ(Try(), ERROR_SUCCESS);
    const pid_t owner = StartOwner();
    ASSERT_GT(owner, 0);
    EXPECT_EQ(Try(), ERROR_ALREADY_EXISTS);
    EXPECT_EQ(Try(), ERROR_ALREADY_EXISTS) << "a copy that gave up takes nothing with it";
    kill(owner, SIGKILL);
    waitpid(owner, nullptr, 0);
    EXPECT_EQ(Try(), ERROR_SUCCESS) << "its message box may still be open";
}

TEST_F(MutexTest, FallsBackOnTheFolderForTemporaryFiles)
{
    unsetenv("XDG_RUNTIME_DIR");
    setenv("TMPDIR", folder.Path().c_str(), 1);
    const HANDLE first = CreateMutexA(nullptr, FALSE, "Test");
    EXPECT_NE(first, nullptr);
    EXPECT_EQ(Try(), ERROR_ALREADY_EXISTS);
    CloseHandle(first);
    unsetenv("TMPDIR");
}

TEST_F(MutexTest, FollowsNoLinkThatSomebodyLaid)
{
    folder.Write("victim", "kept");
    ASSERT_EQ(symlink("victim", "Test.lock"), 0);
    EXPECT_EQ(CreateMutexA(nullptr, FALSE, "Test"), nullptr);
    ASSERT_EQ(unlink("Test.lock"), 0);
    ASSERT_EQ(link("victim", "Test.lock"), 0);
    EXPECT_EQ(CreateMutexA(nullptr, FALSE, "Test"), nullptr) << "a second name of another file";
    EXPECT_EQ(folder.Read("victim"), "kept");
}
