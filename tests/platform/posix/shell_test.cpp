#include "platform/shell.h"

#include "support/temp_folder.h"

#include <cerrno>
#include <cstdlib>
#include <gtest/gtest.h>
#include <sys/wait.h>

/// What an opener is given, the test of the whole program shows.
TEST(Shell, SaysThatThereIsNoOpenerAndLeavesNoChild)
{
    const TempFolder folder;
    const std::string path = getenv("PATH");
    setenv("PATH", folder.Path().c_str(), 1);
    folder.Write("page.html", "");
    EXPECT_LE(reinterpret_cast<intptr_t>(ShellExecuteA(nullptr, nullptr, "page.html", nullptr, nullptr, 1)), 32);
    EXPECT_TRUE(waitpid(-1, nullptr, WNOHANG) < 0 && errno == ECHILD);
    setenv("PATH", path.c_str(), 1);
}
