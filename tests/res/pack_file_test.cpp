#include "res/pack_file.h"

#include "gfx/error.h"
#include "res/file_data.h"
#include "support/file_bytes.h"
#include "support/temp_folder.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <string>

namespace
{
std::string Entry(const char* name, uint32_t offset, uint32_t size)
{
    return LittleEndian(HashName(name)) + LittleEndian(offset) + LittleEndian(size);
}

/// A folder of its own as the current one, and no pack open.
struct PackFile : testing::Test {
    void TearDown() override { packTable[0].Close(); }

    bool Open(const std::string& bytes)
    {
        folder.Write("Dat/Image.xpf", bytes);
        lastError = ENGINE_NO_ERROR;
        return OpenPack("Dat\\Image.xpf");
    }
    /// The member's or file's content; a failure's code where there is none.
    std::string Load(const char* path)
    {
        lastError = ENGINE_NO_ERROR;
        if (!file.Load(path))
            return "failed: " + std::to_string(lastError);
        return { reinterpret_cast<const char*>(file.data.get()), file.size };
    }

    TempFolder folder;
    CFileData file;
};
}

TEST_F(PackFile, HashesOfNamesAreThoseOfTheFilesInUse)
{
    EXPECT_EQ(HashName(""), 0x514FF88Fu);
    EXPECT_EQ(HashName("abc"), 0x10E668B5u);
    EXPECT_EQ(HashName("abcd"), 0xBFDBDC66u);
    EXPECT_EQ(HashName("\\moon1.jpg"), 0x07B15A52u);
    for (const char* path : { "Dat\\Image/Moon1.jpg", "Dat\\image/MOON1.JPG", "/moon1.jpg" })
        EXPECT_EQ(HashMember(path), 0x07B15A52u) << path;
    EXPECT_EQ(HashMember("Dat\\Image\\Moon1.jpg"), 0u);
    EXPECT_EQ(MemberName("a/B\xC4/c[@Z"), "\\b\xC4\\c[@z") << "only A to Z have lower case";
}

TEST_F(PackFile, ServesLooseFilesBeforeMembersAndTheEarlierOfTwoAlike)
{
    constexpr uint32_t DATA = 8 + 4 * 12; // behind the header and four entries
    ASSERT_TRUE(Open("FPX_" + LittleEndian<uint32_t>(4) + Entry("\\one.bmp", DATA, 5) + Entry("\\empty", DATA + 5, 0) +
                     Entry("\\one.bmp", DATA + 5, 6) + Entry("\\two", DATA + 11, 1) + "firstsecond2"));
    EXPECT_TRUE(OpenPack("missing.xpf")) << "one pack is enough";
    EXPECT_TRUE(packTable[0].Open("Dat\\Image.xpf")) << "which closes what was open";
    EXPECT_EQ(Load("Dat\\Image/Two"), "2");
    EXPECT_EQ(Load("Dat\\Image/One.BMP"), "first");
    EXPECT_EQ(file.offset, DATA);
    EXPECT_EQ(Load("Dat\\Image/empty"), "");
    EXPECT_NE(file.data, nullptr);
    EXPECT_EQ(Load("Dat\\Image/three"), "failed: " + std::to_string(ENGINE_LOAD_FILE));
    folder.Write("Dat/Image/One.bmp", "loose");
    EXPECT_EQ(Load("Dat\\Image/One.bmp"), "loose");
    EXPECT_EQ(file.offset, 0u);
}

TEST_F(PackFile, DamagedHeadersLeaveTheSlotFree)
{
    for (const std::string& bytes : { std::string(), std::string("FPX"), "FPX-" + LittleEndian<uint32_t>(0),
                                      "FPX_" + LittleEndian<uint32_t>(0xFFFFFFFF),
                                      "FPX_" + LittleEndian<uint32_t>(0x20000000) + std::string(100, 'x') }) {
        EXPECT_FALSE(Open(bytes)) << bytes.substr(0, 8);
        EXPECT_EQ(lastError, ENGINE_READ_PACK_FILE);
        EXPECT_EQ(packTable[0].handle, INVALID_HANDLE_VALUE);
    }
}

TEST_F(PackFile, WhatATruncatedPackLacksReadsAsZeros)
{
    // The third entry is cut short after its first three bytes, which are \a's too.
    ASSERT_TRUE(Open("FPX_" + LittleEndian<uint32_t>(3) + Entry("\\a", 32, 6) + Entry("\\far", 0xFFFFFF00, 4) + "abc"));
    ASSERT_NE(packTable[0].Find(0x00636261), nullptr);
    EXPECT_EQ(packTable[0].Find(0x00636261)->size, 0u);
    EXPECT_EQ(Load("Dat\\Image/a"), std::string("abc") + std::string(3, '\0'));
    EXPECT_EQ(Load("Dat\\Image/far"), std::string(4, '\0'));
}

TEST_F(PackFile, FindsWhatLiesBeyondTwoGigabytesAndRefusesWhatNoPictureNeeds)
{
    constexpr uint32_t FAR_OFF = 0x80000010; // most of the file is a hole
    folder.Write("Dat/Image.xpf",
                 "FPX_" + LittleEndian<uint32_t>(2) + Entry("\\far", FAR_OFF, 4) + Entry("\\huge", 32, 0xFFFFFFFF));
    std::filesystem::resize_file("Dat/Image.xpf", FAR_OFF);
    std::ofstream("Dat/Image.xpf", std::ios::binary | std::ios::app) << "here";
    ASSERT_TRUE(OpenPack("Dat\\Image.xpf"));
    EXPECT_EQ(Load("Dat\\Image/far"), "here");
    EXPECT_EQ(Load("Dat\\Image/huge"), "failed: " + std::to_string(ENGINE_ALLOCATE_MEMORY));
    EXPECT_EQ(file.size, 0u);
}
