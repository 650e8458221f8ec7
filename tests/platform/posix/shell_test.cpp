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
    for (const char* page : { "docs/index.html", "$(touch x) 'a\" & b.html" })
        folder.Write(page, "page");
    EXPECT_FALSE(Open("docs/index.html")) << "there is no opener";

    // It runs until somebody reads what it was given: whoever waited for its end would wait for ever.
    folder.Write("bin/xdg-open", "#!/bin/sh\necho \"$#:$1\" > '" + root + "/given'\n");
    std::filesystem::permissions("bin/xdg-open", std::filesystem::perms::owner_all);
    ASSERT_EQ(mkfifo("given", 0600), 0);
    EXPECT_FALSE(Open("docs/missing.html"));
    const std::pair<const char*, std::string> cases[] = {
        { "docs\\index.html", root + "/docs/index.html" },
        { "$(touch x) 'a\" & b.html", root + "/$(touch x) 'a\" & b.html" },
        { "https://example.org/?a=1&b=2", "https://example.org/?a=1&b=2" },
    };
    for (const auto& [file, expected] : cases) {
        EXPECT_TRUE(Open(file));
        EXPECT_EQ(folder.Read("given"), "1:" + expected + "\n");
        EXPECT_TRUE(waitpid(-1, nullptr, WNOHANG) < 0 && errno == ECHILD) << "no child of ours is left";
    }
    setenv("PATH", path.c_str(), 1);
}
}
