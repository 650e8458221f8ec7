#include "platform/kernel.h"
#include "platform/posix/paths.h"
#include "support/temp_folder.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

namespace
{
struct PathCase {
    const char* written;
    const char* found;
    const char* why;
};

HANDLE OpenForReading(const char* path)
{
    return CreateFileA(path, GENERIC_READ, FILE_SHARE_READ, nullptr, OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
}

constexpr PathCase paths[] = {
    { "Dat\\Image\\Bg0.JPG", "Dat/Image/Bg0.JPG", "back slashes" },
    { "dat\\IMAGE/bg0.jpg", "Dat/Image/Bg0.JPG", "another case in every part, both slashes" },
    { "dat/image/bg1.jpg", "Dat/Image/bg1.jpg", "the name as written before any other" },
    { "Dat/Image/Bg1.Jpg", "Dat/Image/BG1.JPG", "two candidates: always the same one" },
    { "back\\slash/", "back\\slash/", "a folder with a back slash in its own name" },
    { "dat\\New.txt", "Dat/New.txt", "a file yet to be made, in a folder that exists" },
    { "none\\dat\\x", "none/dat/x", "nothing of it exists" },
    { "dat\\..\\DAT\\.\\image", "Dat/../Dat/./Image", "dots" },
};

TEST(Files, AreFoundWithEitherSlashInAnyCase)
{
    TempFolder folder;
    for (const char* file : { "Dat/Image/Bg0.JPG", "Dat/Image/bg1.jpg", "Dat/Image/BG1.JPG", "back\\slash/x" })
        folder.Write(file, "x");
    for (const PathCase& path : paths) {
        EXPECT_EQ(ResolvePath(path.written), path.found) << path.why;
        const std::string absolute = folder.Path() + "/" + path.written;
        EXPECT_EQ(ResolvePath(absolute.c_str()), folder.Path() + "/" + path.found) << path.why;
    }
}

TEST(Files, ReadsAndSeeks)
{
    TempFolder folder;
    folder.Write("Sub/Ten.bin", "0123456789");
    const HANDLE file = OpenForReading("sub\\TEN.BIN");
    ASSERT_NE(file, INVALID_HANDLE_VALUE);
    EXPECT_EQ(GetFileSize(file, nullptr), 10u);
    EXPECT_EQ(SetFilePointer(file, 6, nullptr, FILE_BEGIN), 6u);
    char buffer[8] = {};
    DWORD bytes = 99;
    EXPECT_TRUE(ReadFile(file, buffer, sizeof buffer, &bytes, nullptr));
    EXPECT_EQ(bytes, 4u) << "fewer at the file's end, and no failure";
    EXPECT_STREQ(buffer, "6789");
    EXPECT_EQ(SetFilePointer(file, -1, nullptr, FILE_BEGIN), 0xFFFFFFFFu);
    EXPECT_TRUE(CloseHandle(file));
}

TEST(Files, RefusesWhatIsNoFile)
{
    TempFolder folder;
    folder.Write("Dat/x", "");
    ASSERT_EQ(mkfifo("pipe", 0600), 0);
    EXPECT_EQ(OpenForReading("Dat"), INVALID_HANDLE_VALUE) << "a folder";
    EXPECT_EQ(GetLastError(), ERROR_ACCESS_DENIED);
    EXPECT_EQ(OpenForReading("pipe"), INVALID_HANDLE_VALUE) << "a pipe, at which opening would wait";
    EXPECT_EQ(OpenForReading("none"), INVALID_HANDLE_VALUE);
    EXPECT_EQ(GetLastError(), ERROR_FILE_NOT_FOUND);
}
}
