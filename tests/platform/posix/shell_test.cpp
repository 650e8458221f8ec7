#include "platform/shell.h"

#include "support/temp_folder.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <string>
#include <sys/wait.h>
#include <unistd.h>

namespace
{
/// Only the programs of the test's own folder are found.
class ShellTest : public testing::Test
{
protected:
    void SetUp() override { setenv("PATH", (folder.Path() + "/bin").c_str(), 1); }
    void TearDown() override { setenv("PATH", path.c_str(), 1); }

    /// The opener notes what it is given, then goes on running as a browser does.
    void InstallOpener() const
    {
        folder.Write("bin/xdg-open", "#!/bin/sh\necho \"$#:$1\" > \"" + folder.Path() + "/new\"\n/bin/mv \"" +
                                         folder.Path() + "/new\" \"" + folder.Path() +
                                         "/opened\"\nexec /bin/sleep 5 > /dev/null 2>&1\n");
        std::filesystem::permissions(folder.Path() + "/bin/xdg-open", std::filesystem::perms::owner_all);
    }
    std::string Opened() const
    {
        for (int i = 0; i < 200 && folder.Read("opened").empty(); ++i)
            usleep(10000);
        const std::string opened = folder.Read("opened");
        std::filesystem::remove(folder.Path() + "/opened");
        return opened;
    }
    static bool Open(const char* file)
    {
        return reinterpret_cast<intptr_t>(ShellExecuteA(nullptr, nullptr, file, nullptr, nullptr, 1)) > 32;
    }

    TempFolder folder;
    const std::string path = getenv("PATH");
};
}

TEST_F(ShellTest, HandsTheFullPathToTheOpenerAndLeavesItAlone)
{
    InstallOpener();
    folder.Write("docs/index.html", "page");
    folder.Write("$(touch x) 'a\" & b.html", "page");
    const std::string root = std::filesystem::canonical(folder.Path()).string();
    const std::pair<const char*, std::string> cases[] = {
        { "docs\\index.html", root + "/docs/index.html" },
        { "$(touch x) 'a\" & b.html", root + "/$(touch x) 'a\" & b.html" },
        { "https://example.org/?a=1&b=2", "https://example.org/?a=1&b=2" },
    };
    for (const auto& [file, expected] : cases) {
        const auto start = std::chrono::steady_clock::now();
        EXPECT_TRUE(Open(file));
        EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(4)) << "does not wait for the browser";
        EXPECT_EQ(Opened(), "1:" + expected + "\n");
        EXPECT_TRUE(waitpid(-1, nullptr, WNOHANG) < 0 && errno == ECHILD) << "no child of ours is left";
    }
}

TEST_F(ShellTest, FailsWithoutAnOpenerOrAFile)
{
    folder.Write("docs/index.html", "page");
    EXPECT_FALSE(Open("docs/index.html"));
    InstallOpener();
    EXPECT_FALSE(Open("docs/missing.html"));
}
