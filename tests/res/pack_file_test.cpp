#include "res/pack_file.h"

#include "gfx/error.h"
#include "res/file_data.h"
#include "support/temp_folder.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

namespace
{
struct MemberCase {
    const char* name;
    std::string bytes;
};

std::string Le32(uint32_t value)
{
    std::string bytes;
    for (int i = 0; i < 4; ++i)
        bytes.push_back(static_cast<char>(value >> 8 * i & 0xFF));
    return bytes;
}

std::string Entry(uint32_t hash, uint32_t offset, uint32_t size)
{
    return Le32(hash) + Le32(offset) + Le32(size);
}

std::string PackOf(const std::vector<MemberCase>& members)
{
    std::string index = "FPX_" + Le32(static_cast<uint32_t>(members.size()));
    std::string data;
    for (const MemberCase& member : members) {
        index += Entry(HashName(member.name), static_cast<uint32_t>(8 + 12 * members.size() + data.size()),
                       static_cast<uint32_t>(member.bytes.size()));
        data += member.bytes;
    }
    return index + data;
}

std::string TextOf(const CFileData& file)
{
    return { reinterpret_cast<const char*>(file.data.get()), file.size };
}

/// A folder of its own as the current one, and no pack open.
class PackFile : public testing::Test
{
protected:
    void SetUp() override { lastError = ENGINE_NO_ERROR; }
    void TearDown() override
    {
        for (CPackFile& slot : packTable)
            slot.Close();
    }

    void OpenPackOf(const std::string& bytes)
    {
        folder.Write("Dat/Image.xpf", bytes);
        ASSERT_TRUE(OpenPack("Dat\\Image.xpf"));
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

TEST_F(PackFile, ServesWholeMembersAndTheEarlierOfTwoAlike)
{
    OpenPackOf(PackOf({ { "\\one.bmp", "first" }, { "\\empty", "" }, { "\\one.bmp", "second" }, { "\\two", "2" } }));
    ASSERT_TRUE(file.Load("Dat\\Image/Two"));
    EXPECT_EQ(TextOf(file), "2");
    ASSERT_TRUE(file.Load("Dat\\Image/One.BMP"));
    EXPECT_EQ(TextOf(file), "first");
    EXPECT_EQ(file.offset, 8u + 4 * 12);
    ASSERT_TRUE(file.Load("Dat\\Image/empty"));
    EXPECT_EQ(file.size, 0u);
    EXPECT_NE(file.data, nullptr);
    EXPECT_EQ(lastError, ENGINE_NO_ERROR);
    EXPECT_FALSE(file.Load("Dat\\Image/three"));
    EXPECT_EQ(lastError, ENGINE_LOAD_FILE);
}

TEST_F(PackFile, OpensOnceAndLooseFilesTakePrecedence)
{
    OpenPackOf(PackOf({ { "\\one.bmp", "packed" } }));
    EXPECT_TRUE(OpenPack("missing.xpf"));
    ASSERT_TRUE(file.Load("Dat\\Image/One.bmp"));
    EXPECT_EQ(TextOf(file), "packed");
    folder.Write("Dat/Image/One.bmp", "loose");
    ASSERT_TRUE(file.Load("Dat\\Image/One.bmp"));
    EXPECT_EQ(TextOf(file), "loose");
    EXPECT_EQ(file.offset, 0u);
}

TEST_F(PackFile, DamagedHeadersLeaveTheSlotFree)
{
    for (const std::string& bytes : { std::string(), std::string("FPX"), "FPX-" + Le32(0), "FPX_" + Le32(0xFFFFFFFF),
                                      "FPX_" + Le32(0x20000000) + std::string(100, 'x') }) {
        SCOPED_TRACE(bytes.substr(0, 8));
        folder.Write("Dat/Image.xpf", bytes);
        lastError = ENGINE_NO_ERROR;
        EXPECT_FALSE(OpenPack("Dat\\Image.xpf"));
        EXPECT_EQ(lastError, ENGINE_READ_PACK_FILE);
        EXPECT_EQ(packTable[0].handle, INVALID_HANDLE_VALUE);
    }
}

TEST_F(PackFile, WhatATruncatedPackLacksReadsAsZeros)
{
    const uint32_t hash = HashName("\\a");
    OpenPackOf("FPX_" + Le32(3) + Entry(hash, 32, 6) + Entry(HashName("\\far"), 0xFFFFFF00, 4) + "abc");
    // The third entry is cut short after its first three bytes, which are \a's too.
    ASSERT_NE(packTable[0].Find(0x00636261), nullptr);
    EXPECT_EQ(packTable[0].Find(0x00636261)->size, 0u);
    ASSERT_TRUE(file.Load("Dat\\Image/a"));
    EXPECT_EQ(TextOf(file), std::string("abc") + std::string(3, '\0'));
    ASSERT_TRUE(file.Load("Dat\\Image/far"));
    EXPECT_EQ(TextOf(file), std::string(4, '\0'));
}

TEST_F(PackFile, FindsWhatLiesBeyondTwoGigabytesAndRefusesWhatNoPictureNeeds)
{
    constexpr uint32_t FAR_OFF = 0x80000010; // most of the file is a hole
    folder.Write("Dat/Image.xpf",
                 "FPX_" + Le32(2) + Entry(HashName("\\far"), FAR_OFF, 4) + Entry(HashName("\\huge"), 32, 0xFFFFFFFF));
    std::filesystem::resize_file("Dat/Image.xpf", FAR_OFF);
    std::ofstream("Dat/Image.xpf", std::ios::binary | std::ios::app) << "here";
    ASSERT_TRUE(OpenPack("Dat\\Image.xpf"));
    ASSERT_TRUE(file.Load("Dat\\Image/far"));
    EXPECT_EQ(TextOf(file), "here");
    EXPECT_FALSE(file.Load("Dat\\Image/huge"));
    EXPECT_EQ(lastError, ENGINE_ALLOCATE_MEMORY);
    EXPECT_EQ(file.size, 0u);
}
