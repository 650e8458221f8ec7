#include "platform/kernel.h"
#include "support/temp_folder.h"

#include <cstdlib>
#include <filesystem>
#include <gtest/gtest.h>
#include <unistd.h>

namespace fs = std::filesystem;

namespace
{
struct MutexTest : testing::Test {
    void SetUp() override { fs::create_directory("run"); }
    void TearDown() override { unsetenv("TMPDIR"); }
    void UseFolder(const char* variable, const std::string& name) const
    {
        setenv(variable, (folder.Path() + "/" + name).c_str(), 1);
    }
    TempFolder folder;
};
}

TEST_F(MutexTest, GoesWhereALockCanBeMade)
{
    const std::string temporary = "tmp/Test-" + std::to_string(getuid()) + ".lock";
    const struct {
        const char* config;
        std::string lock;
        const char* why;
    } cases[] = {
        { "config", "config/Test/instance.lock", "beside the settings" },
        { "victim/none", temporary, "settings cannot be stored" },
        { "linked", temporary, "a link that somebody laid" },
        { "named", temporary, "a second name of another file" },
    };
    UseFolder("TMPDIR", "tmp");
    fs::create_directory("tmp");
    folder.Write("config/Test/instance.lock", ""); // left by a copy that was killed
    folder.Write("victim", "kept");
    fs::create_directories("linked/Test");
    fs::create_symlink("../../victim", "linked/Test/instance.lock");
    fs::create_directories("named/Test");
    fs::create_hard_link("victim", "named/Test/instance.lock");
    for (const auto& row : cases) {
        UseFolder("XDG_CONFIG_HOME", row.config);
        UseFolder("XDG_RUNTIME_DIR", "run");
        const HANDLE mutex = CreateMutexA(nullptr, FALSE, "Test");
        EXPECT_EQ(GetLastError(), ERROR_SUCCESS) << row.why;
        EXPECT_TRUE(fs::exists(row.lock)) << row.why;
        UseFolder("XDG_RUNTIME_DIR", "run2");
        for (const char* copy : { "another session", "one that gave up takes nothing with it" }) {
            CloseHandle(CreateMutexA(nullptr, FALSE, "Test"));
            EXPECT_EQ(GetLastError(), ERROR_ALREADY_EXISTS) << copy << ": " << row.why;
        }
        ASSERT_TRUE(CloseHandle(mutex)) << row.why;
        EXPECT_FALSE(fs::exists(row.lock)) << "locks pile up: " << row.why;
    }
    EXPECT_EQ(folder.Read("victim"), "kept");
}

TEST_F(MutexTest, SaysSoWhereNoneCanBeMade)
{
    folder.Write("file", "");
    for (const char* variable : { "XDG_CONFIG_HOME", "TMPDIR" })
        UseFolder(variable, "file/none");
    const std::string name = "Test" + std::to_string(getpid());
    const fs::path last = "/tmp/" + name + "-" + std::to_string(getuid()) + ".lock";
    fs::create_directory(last); // in the way
    UseFolder("XDG_RUNTIME_DIR", "run");
    CloseHandle(CreateMutexA(nullptr, FALSE, name.c_str()));
    EXPECT_EQ(GetLastError(), ERROR_SUCCESS) << "in the session's own folder";
    UseFolder("XDG_RUNTIME_DIR", "file/none");
    testing::internal::CaptureStderr();
    EXPECT_EQ(CreateMutexA(nullptr, FALSE, name.c_str()), nullptr);
    const std::string said = testing::internal::GetCapturedStderr();
    fs::remove(last);
    EXPECT_EQ(said.find('\n'), said.size() - 1) << "one line: " << said;
    EXPECT_NE(said.find(last.string() + ": Is a directory"), std::string::npos) << said;
}
