#include "platform/kernel.h"
#include "platform/posix/paths.h"
#include "support/temp_folder.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

namespace
{
TEST(Files, AreFoundWithEitherSlashInAnyCase)
{
    const struct {
        const char* written;
        const char* found;
        const char* why;
    } paths[] = {
        { "dat\\IMAGE/bg0.jpg", "Dat/Image/Bg0.JPG", "another case in every part, both slashes" },
        { "dat/image/bg1.jpg", "Dat/Image/bg1.jpg", "the name as written before any other" },
        { "Dat/Image/Bg1.Jpg", "Dat/Image/BG1.JPG", "two candidates: always the same one" },
        { "back\\slash/", "back\\slash/", "a folder with a back slash in its own name" },
        { "dat\\New.txt", "Dat/New.txt", "a file yet to be made, in a folder that exists" },
        { "none\\dat\\x", "none/dat/x", "nothing of it exists" },
        { "dat\\..\\DAT\\.\\image", "Dat/../Dat/./Image", "dots" },
    };
    const TempFolder folder;
    for (const char* file : { "Dat/Image/Bg0.JPG", "Dat/Image/bg1.jpg", "Dat/Image/BG1.JPG", "back\\slash/x" })
        folder.Write(file, "x");
    for (const auto& path : paths) {
        EXPECT_EQ(ResolvePath(path.written), path.found) << path.why;
        const std::string absolute = folder.Path() + "/" + path.written;
        EXPECT_EQ(ResolvePath(absolute.c_str()), folder.Path() + "/" + path.found) << path.why;
    }
}

TEST(Files, AreReadToTheirEndAndAreNeitherFoldersNorPipes)
{
    const auto open = [](const char* path) {
        return CreateFileA(path, GENERIC_READ, 0, nullptr, OPEN_EXISTING, 0, nullptr);
    };
    const TempFolder folder;
    folder.Write("Dat/x", "ab");
    ASSERT_EQ(mkfifo("pipe", 0600), 0);
    for (const char* path : { "Dat", "pipe", "none" })
        EXPECT_EQ(open(path), INVALID_HANDLE_VALUE) << path;
    const struct {
        const char* path;
        BOOL isRead;
        DWORD bytes;
    } files[] = { { "Dat/x", TRUE, 2 }, { "/proc/self/mem", FALSE, 0 } }; // there is no memory at 0
    for (const auto& row : files) {
        const HANDLE file = open(row.path);
        char bytes[3];
        DWORD bytesRead = 0;
        EXPECT_EQ(ReadFile(file, bytes, sizeof bytes, &bytesRead, nullptr), row.isRead) << row.path;
        EXPECT_EQ(bytesRead, row.bytes) << row.path;
        CloseHandle(file);
    }
}
}
