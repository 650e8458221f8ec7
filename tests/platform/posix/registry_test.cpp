#include "platform/registry.h"

#include "support/settings_store.h"

#include <gtest/gtest.h>

#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <iterator>
#include <optional>
#include <random>
#include <string>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

namespace fs = std::filesystem;
using namespace std::string_literals;

namespace
{
using Stored = std::pair<DWORD, std::string>; ///< type, bytes

LONG Open(HKEY& key)
{
    return RegCreateKeyExA(HKEY_CURRENT_USER, "Software\\Tervalis", 0, nullptr, REG_OPTION_NON_VOLATILE, KEY_ALL_ACCESS,
                           nullptr, &key, nullptr);
}

/// One save that sets all these names to one value; the code of the step that failed.
LONG Save(const std::vector<const char*>& names, const Stored& value)
{
    HKEY key = nullptr;
    if (const LONG result = Open(key); result != 0)
        return result;
    for (const char* name : names)
        RegSetValueExA(key, name, 0, value.first, reinterpret_cast<const BYTE*>(value.second.data()),
                       static_cast<DWORD>(value.second.size()));
    return RegCloseKey(key);
}

/// One value of a key opened for it.
std::optional<Stored> Load(const char* name)
{
    HKEY key = nullptr;
    Stored value = { 0, std::string(4096, '?') };
    DWORD size = 4096;
    BYTE* const data = reinterpret_cast<BYTE*>(value.second.data());
    const bool isThere = Open(key) == 0 && RegQueryValueExA(key, name, nullptr, &value.first, data, &size) == 0;
    RegCloseKey(key);
    value.second.resize(size);
    return isThere ? std::optional(value) : std::nullopt;
}

/// Ends the process with the code of a save by a user without special rights, where no file may be larger than that.
void SaveAndExit(rlim_t mostBytes)
{
    const rlimit limit = { mostBytes, mostBytes };
    signal(SIGXFSZ, SIG_IGN);
    const bool isReady = setrlimit(RLIMIT_FSIZE, &limit) == 0 && (getuid() != 0 || setuid(65534) == 0);
    _exit(isReady ? static_cast<int>(Save({ "v" }, { REG_SZ, "new" })) : 254);
}

struct RegistryTest : testing::Test {
    static auto FileCount() { return std::distance(fs::directory_iterator("config/Tervalis"), {}); }

    const SettingsFolder folder;
};
}

TEST_F(RegistryTest, EveryValueComesBackByteForByte)
{
    std::string allBytes;
    for (int byte = 0; byte < 256; ++byte)
        allBytes += static_cast<char>(byte);
    const Stored values[] = {
        { REG_DWORD, "\xFF\xFF\xFF\xFF" },
        { REG_DWORD, "abc" }, // no number of four bytes
        { REG_SZ, "" },
        { REG_SZ, "\nstarts with a line break" },
        { REG_SZ, "\ttab, \"quotes\", '''three''', \"\"\"three\"\"\" and \\" },
        { REG_SZ, "ends with a zero\0"s },
        { REG_SZ, "\xEF\xBB\xBF" }, // a byte order mark
        { REG_SZ, "\xC3\xA9 \xE6\xB0\xB4 \xF0\x9F\x90\x8D" },
        { REG_SZ, "\xE9t\xE9, not UTF-8 \x7F\x1B[0m" },
        { REG_SZ, "{ hex = \"41\" }" },
        { REG_SZ, std::string(100, '.') }, // with those below more dots than a file may have
        { 3, allBytes },                   // a type the game does not use
    };
    const std::string dots(2950, '.');
    folder.Write(SETTINGS_FILE, "w = \"" + dots + '"');
    for (const Stored& value : values) {
        ASSERT_EQ(Save({ "v" }, value), 0);
        EXPECT_EQ(Load("v"), value);
    }
    EXPECT_EQ(Load("w"), (Stored{ REG_SZ, dots }));
    EXPECT_TRUE(folder.Read(SETTINGS_FILE).starts_with("v = { ")) << "on a line of its own";
    EXPECT_EQ(fs::status(SETTINGS_FILE).permissions(), fs::perms{ 0600 }) << "for nobody else";
}

TEST_F(RegistryTest, ReadsWhatAHandMayHaveWrittenAndKeepsIt)
{
    const std::pair<const char*, std::optional<Stored>> lines[] = {
        { "v = 4294967295", Stored{ REG_DWORD, "\xFF\xFF\xFF\xFF" } },
        { "v = 4294967296", std::nullopt },
        { "v = -1", std::nullopt },
        { "v = [ 1, 2 ]", std::nullopt },
        { "v = { hex = \"0a4\", type = 1 }", std::nullopt },
        { "v = { hex = \"zz\", type = 1 }", std::nullopt },
        { "v = { hex = \"0a41\" }", std::nullopt },
        { "v = { hex = \"0a41\", type = 1 }", Stored{ REG_SZ, "\nA" } },
    };
    for (const auto& [line, value] : lines) {
        folder.Write(SETTINGS_FILE, line);
        EXPECT_EQ(Load("v"), value) << line;
        EXPECT_EQ(Save({ "other" }, { REG_SZ, "new" }), 0);
        EXPECT_NE(folder.Read(SETTINGS_FILE).find(line), std::string::npos) << folder.Read(SETTINGS_FILE);
    }
}

TEST_F(RegistryTest, SetsADamagedFileAsideUnderANewName)
{
    std::string deep = "a";
    for (int i = 0; i < 30000; ++i)
        deep += ".a";    // more calls within each other than the stack holds
    std::string numbers; // which are written with a dot each
    for (int i = 0; i < 3001; ++i)
        numbers += "n" + std::to_string(i) + " = 1e3\n";
    const std::vector<std::string> damages = {
        "v = = 1",       "v = \"\xFF\"",          "v = 1\0"s, "v = 1\nv = 2", "[\\u00 = 1",
        "v\xC5\xBF = 1", std::string(70000, '#'), deep,       numbers
    };
    for (const std::string& damage : damages) {
        folder.Write(SETTINGS_FILE, damage);
        EXPECT_EQ(Load("v"), std::nullopt) << damage.substr(0, 20);
        EXPECT_EQ(Save({ "v" }, { REG_SZ, "new" }), 0);
    }
    EXPECT_EQ(FileCount(), 1 + std::ssize(damages));
    EXPECT_EQ(folder.Read(SETTINGS_FILE + ".damaged"s), damages[0]);
    EXPECT_EQ(folder.Read(SETTINGS_FILE + ".damaged.2"s), damages[1]);
}

TEST_F(RegistryTest, LeavesWhatItMayNotReadOrReplace)
{
    const struct {
        mode_t folderMode, fileMode;
        const char* content;
        rlim_t mostBytes;
        int code;
        const char* reason;
    } cases[] = {
        { 0777, 0000, "v = 1\n", RLIM_INFINITY, ERROR_ACCESS_DENIED, "unreadable" },
        { 0555, 0666, "v = 1\n", RLIM_INFINITY, ERROR_ACCESS_DENIED, "in a read-only folder" },
        { 0777, 0444, "v = 1\n", RLIM_INFINITY, ERROR_ACCESS_DENIED, "write-protected" },
        { 0555, 0666, "v = =\n", RLIM_INFINITY, ERROR_ACCESS_DENIED, "damaged and cannot be moved" },
        { 0777, 0666, "v = 1\n", 4, ERROR_WRITE_FAULT, "on a full disk" },
    };
    chmod(folder.Path().c_str(), 0777);
    for (const auto& row : cases) {
        folder.Write(SETTINGS_FILE, row.content);
        chmod(SETTINGS_FILE, row.fileMode);
        chmod("config/Tervalis", row.folderMode);
        EXPECT_EXIT(SaveAndExit(row.mostBytes), testing::ExitedWithCode(row.code), "") << row.reason;
        chmod("config/Tervalis", 0777);
        chmod(SETTINGS_FILE, 0666);
        EXPECT_EQ(folder.Read(SETTINGS_FILE), row.content) << row.reason;
        EXPECT_EQ(FileCount(), 1) << row.reason;
    }
}

TEST_F(RegistryTest, KilledAtAnyMomentLeavesOldOrNewValues)
{
    // Two values that every save sets alike, large enough that a save takes a while.
    const auto saveBoth = [](char letter) { return Save({ "first", "last" }, { REG_SZ, std::string(3000, letter) }); };
    saveBoth('a');
    std::mt19937 random(7);
    for (int round = 0; round < 100; ++round) {
        const pid_t child = fork();
        if (child == 0)
            for (char letter = 'a';; letter = letter == 'z' ? 'a' : static_cast<char>(letter + 1))
                saveBoth(letter);
        usleep(static_cast<useconds_t>(random() % 6000));
        kill(child, SIGKILL);
        waitpid(child, nullptr, 0);
        const auto first = Load("first");
        ASSERT_TRUE(first && first->second.size() == 3000) << "round " << round;
        ASSERT_EQ(first, Load("last")) << "round " << round;
    }
    saveBoth('a');
    EXPECT_EQ(FileCount(), 1) << "drafts pile up, or a file was taken for damaged";
}

TEST_F(RegistryTest, KeepsALinkToTheFileInTheHomeFolder)
{
    setenv("HOME", folder.Path().c_str(), 1);
    folder.Write("dotfiles/own.toml", "v = 1\n");
    fs::create_directories(".config/Tervalis");
    fs::create_symlink("../../dotfiles/own.toml", ".config/Tervalis/settings.toml");
    setenv("XDG_CONFIG_HOME", "relative/is/ignored", 1);
    EXPECT_EQ(Save({ "v" }, { REG_SZ, "new" }), 0);
    EXPECT_TRUE(fs::is_symlink(".config/Tervalis/settings.toml"));
    EXPECT_EQ(folder.Read("dotfiles/own.toml"), "v = \"new\"\n");
}
