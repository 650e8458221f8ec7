#include "sound/wave.h"

#include "sound/wave_bytes.h"
#include "support/temp_folder.h"

#include <gtest/gtest.h>

namespace
{
constexpr int NOT_FOUND = MMIOERR_CHUNKNOTFOUND;

/// Reads "a.wav" as SoundLoad does and keeps what it found.
struct WaveTest : testing::Test {
    int Open(const std::string& content)
    {
        WaveClose(&file, &format);
        folder.Write("a.wav", content);
        return WaveOpen("a.wav", &file, &format, &riff);
    }
    int SeekData() { return WaveSeekData(file, &data, &riff); }
    int Read(uint32_t wanted)
    {
        bytes.assign(wanted, '?');
        const int result = WaveRead(file, wanted, reinterpret_cast<uint8_t*>(bytes.data()), &data, &copied);
        bytes.resize(copied);
        return result;
    }
    void TearDown() override
    {
        WaveClose(&file, &format);
        EXPECT_TRUE(!file && !format);
    }

    TempFolder folder;
    HMMIO file = nullptr;
    WAVEFORMATEX* format = nullptr;
    MMCKINFO riff{};
    MMCKINFO data{};
    std::string bytes;
    uint32_t copied = 0;
};

TEST_F(WaveTest, OpensOnlyWaveFilesWithAWholeFormat)
{
    const std::string samples = Chunk("data", "abcd");
    const struct {
        std::string content;
        int result;
        const char* what;
    } cases[] = {
        { "", NOT_FOUND, "empty" },
        { Chunk("RIFX", "WAVE"), WAVE_ERR_NOT_WAVE, "no RIFF" },
        { Chunk("RIFF", "AVI "), WAVE_ERR_NOT_WAVE, "no WAVE" },
        { Wave(samples), NOT_FOUND, "no format" },
        { Chunk("RIFF", "WAVE", 4) + Chunk("fmt ", Format()), NOT_FOUND, "format behind the RIFF chunk's end" },
        { Wave(Chunk("junk", "x", 0xFFFFFFFF) + Chunk("fmt ", Format())), NOT_FOUND, "endless junk" },
        { Wave(Chunk("fmt ", Format().substr(0, 15))), WAVE_ERR_NOT_WAVE, "format of 15 bytes" },
        { Wave(Chunk("fmt ", Format().substr(0, 12), 16)), WAVE_ERR_CANNOT_READ, "format cut off" },
        { Wave(Chunk("fmt ", Format(2), 18)), WAVE_ERR_CANNOT_READ, "cbSize cut off" },
        { Wave(Chunk("fmt ", Format(2) + LittleEndian<uint16_t>(32) + "x")), WAVE_ERR_NOT_WAVE, "extra bytes cut off" },
        { Wave(Chunk("fmt ", Format()) + samples), 0, "format of 16 bytes" },
        { Wave(Chunk("odd ", "x") + Chunk("LIST", "") + Chunk("fmt ", Format())), 0, "odd and empty chunks before" },
    };
    for (const auto& row : cases) {
        EXPECT_EQ(Open(row.content), row.result) << row.what;
        EXPECT_TRUE((file != nullptr) == (row.result == 0) && (format != nullptr) == (row.result == 0)) << row.what;
    }
}

TEST_F(WaveTest, KeepsTheExtraBytesOfAllFormatsButPcm)
{
    const std::string extra = LittleEndian<uint16_t>(22) + "0123456789abcdefghijkl";
    ASSERT_EQ(Open(Wave(Chunk("fmt ", Format(1, 8) + extra))), 0);
    EXPECT_TRUE(format->nSamplesPerSec == 22050 && format->wBitsPerSample == 8 && format->cbSize == 0);
    ASSERT_EQ(Open(Wave(Chunk("fmt ", Format(2) + extra))), 0);
    EXPECT_EQ(std::string(reinterpret_cast<const char*>(&format->cbSize), 24), extra);
}

TEST_F(WaveTest, ReadsSamplesBehindAndBeforeTheFormatButNoneThatTheFileDoesNotHold)
{
    const std::string formatChunk = Chunk("fmt ", Format());
    std::string samples; // more than the file's buffer takes
    for (uint32_t i = 0; i < 99999; ++i)
        samples += static_cast<char>(i * i >> 3);
    const std::string dataChunk = Chunk("data", samples);
    const std::string fact = Chunk("fact", "xyz");
    for (const std::string& chunks : { formatChunk + fact + dataChunk, fact + dataChunk + formatChunk }) {
        ASSERT_EQ(Open(Wave(chunks)), 0);
        ASSERT_EQ(SeekData(), 0);
        EXPECT_EQ(data.cksize, samples.size());
        EXPECT_TRUE(Read(60000) == 0 && bytes == samples.substr(0, 60000));
        EXPECT_TRUE(Read(60000) == 0 && bytes == samples.substr(60000)) << "neither the pad byte nor the next chunk";
    }
    for (const uint32_t claimed : { 5u, 70000u, 0xFFFFFFFFu }) {
        ASSERT_EQ(Open(Wave(formatChunk + Chunk("data", "abcd", claimed))), 0);
        ASSERT_EQ(SeekData(), 0);
        EXPECT_TRUE(Read(70000) == WAVE_ERR_CORRUPT && bytes.empty()) << claimed;
    }
    ASSERT_EQ(Open(Wave(formatChunk)), 0);
    EXPECT_EQ(SeekData(), NOT_FOUND);
}
}
