#include "platform/shell.h"

#include "support/temp_folder.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <cstdlib>
#include <filesystem>
#include <string>
#include <sys/stat.h>
#include <sys/wait.h>

namespace
{
bool Open(const char* file)
{
    return reinterpret_cast<intptr_t>(ShellExecuteA(nullptr, nullptr, file, nullptr, nullptr, 1)) > 32;
}

TEST(Shell, HandsTheFullPathToTheOpenerAndLeavesItAlone)
{
    const TempFolder folder;
    const std::string path = getenv("PATH");
    setenv("PATH", (folder.Path() + "/bin").c_str(), 1);
    const std::string root = std::filesystem::canonical(folder.Path()).string();
    folder.Write("docs/$(touch x) 'a\" & b.html", "page");
    EXPECT_FALSE(Open("docs")) << "there is no opener";

    // It runs until somebody reads what it was given: whoever waited for its end would wait for ever.
    folder.Write("bin/xdg-open", "#!/bin/sh\necho \"$#:$1\" > '" + root + "/given'\n");
    std::filesystem::permissions("bin/xdg-open", std::filesystem::perms::owner_all);
    ASSERT_EQ(mkfifo("given", 0600), 0);
    EXPECT_FALSE(Open("docs/missing.html"));
    EXPECT_TRUE(Open("docs\\$(touch x) 'a\" & b.html"));
    EXPECT_EQ(folder.Read("given"), "1:" + root + "/docs/$(touch x) 'a\" & b.html\n");
    EXPECT_TRUE(Open("https://example.org/?a=1&b=2"));
    EXPECT_EQ(folder.Read("given"), "1:https://example.org/?a=1&b=2\n");
    EXPECT_TRUE(waitpid(-1, nullptr, WNOHANG) < 0 && errno == ECHILD) << "no child of ours is left";
    setenv("PATH", path.c_str(), 1);
}
}
