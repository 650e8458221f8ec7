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

TEST(Files, AreNeitherFoldersNorPipes)
{
    const TempFolder folder;
    folder.Write("Dat/x", "");
    ASSERT_EQ(mkfifo("pipe", 0600), 0);
    const auto errorOf = [](const char* path) {
        EXPECT_EQ(CreateFileA(path, GENERIC_READ, 0, nullptr, OPEN_EXISTING, 0, nullptr), INVALID_HANDLE_VALUE) << path;
        return GetLastError();
    };
    EXPECT_EQ(errorOf("Dat"), ERROR_ACCESS_DENIED);
    EXPECT_EQ(errorOf("pipe"), ERROR_ACCESS_DENIED) << "opening would wait";
    EXPECT_EQ(errorOf("none"), ERROR_FILE_NOT_FOUND);
}
}
