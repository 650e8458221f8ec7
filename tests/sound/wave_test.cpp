#include "sound/wave.h"

#include "sound/wave_bytes.h"
#include "support/temp_folder.h"

#include <gtest/gtest.h>

namespace
{
constexpr int NOT_FOUND = MMIOERR_CHUNKNOTFOUND;

/// Reads "a.wav" as SoundLoad does and keeps what it found.
struct WaveTest : testing::Test {
    void Write(const std::string& content) { folder.Write("a.wav", content); }
    int Open() { return WaveOpen("a.wav", &file, &format, &riff); }
    int SeekData() { return WaveSeekData(file, &data, &riff); }
    int Read(uint32_t wanted)
    {
        bytes.assign(wanted, '?');
        return WaveRead(file, wanted, reinterpret_cast<uint8_t*>(bytes.data()), &data, &copied);
    }
    void TearDown() override
    {
        WaveClose(&file, &format);
        EXPECT_EQ(file, nullptr);
        EXPECT_EQ(format, nullptr);
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
        { "RIFF\x04", NOT_FOUND, "half a header" },
        { Chunk("RIFX", "WAVE"), WAVE_ERR_NOT_WAVE, "no RIFF" },
        { Chunk("RIFF", "AVI "), WAVE_ERR_NOT_WAVE, "no WAVE" },
        { Chunk("LIST", "WAVE" + Chunk("fmt ", Format())), WAVE_ERR_NOT_WAVE, "a list" },
        { Wave(samples), NOT_FOUND, "no format" },
        { Chunk("RIFF", "WAVE", 4) + Chunk("fmt ", Format()), NOT_FOUND, "format behind the RIFF chunk's end" },
        { Wave(Chunk("junk", "x", 0xFFFFFFFF) + Chunk("fmt ", Format())), NOT_FOUND, "endless junk" },
        { Wave(Chunk("fmt ", Format().substr(0, 14))), WAVE_ERR_NOT_WAVE, "format of 14 bytes" },
        { Wave(Chunk("fmt ", Format().substr(0, 15))), WAVE_ERR_NOT_WAVE, "format of 15 bytes" },
        { Wave(Chunk("fmt ", Format().substr(0, 12), 16)), WAVE_ERR_CANNOT_READ, "format cut off" },
        { Wave(Chunk("fmt ", Format(2), 18)), WAVE_ERR_CANNOT_READ, "cbSize cut off" },
        { Wave(Chunk("fmt ", Format(2) + Bytes<uint16_t>(32) + "x")), WAVE_ERR_NOT_WAVE, "extra bytes cut off" },
        { Wave(Chunk("fmt ", Format()) + samples), 0, "format of 16 bytes" },
        { Wave(Chunk("fmt ", Format() + "pad") + samples), 0, "format of 19 bytes" },
        { Wave(Chunk("odd ", "x") + Chunk("LIST", "") + Chunk("fmt ", Format())), 0, "odd and empty chunks before" },
    };
    for (const auto& row : cases) {
        Write(row.content);
        EXPECT_EQ(Open(), row.result) << row.what;
        EXPECT_EQ(file != nullptr, row.result == 0) << row.what;
        EXPECT_EQ(format != nullptr, row.result == 0) << row.what;
        WaveClose(&file, &format);
    }
}

TEST_F(WaveTest, DropsWhatFollowsThePcmHeader)
{
    Write(Wave(Chunk("fmt ", Format(1, 8) + Bytes<uint16_t>(22) + std::string(22, 'x')) + Chunk("data", "ab")));
    ASSERT_EQ(Open(), 0);
    EXPECT_EQ(format->nSamplesPerSec, 22050u);
    EXPECT_EQ(format->wBitsPerSample, 8);
    EXPECT_EQ(format->cbSize, 0);
}

TEST_F(WaveTest, KeepsTheExtraBytesOfOtherFormats)
{
    const std::string extra = "0123456789abcdefghijklmnopqrstuv";
    Write(Wave(Chunk("fmt ", Format(2) + Bytes<uint16_t>(32) + extra)));
    ASSERT_EQ(Open(), 0);
    EXPECT_EQ(format->cbSize, 32);
    EXPECT_EQ(std::string(reinterpret_cast<const char*>(format + 1), 32), extra);
}

TEST_F(WaveTest, FindsSamplesBehindAndBeforeTheFormat)
{
    const std::string formatChunk = Chunk("fmt ", Format());
    const std::string samples = Chunk("data", "abcde");
    for (const std::string& chunks : { formatChunk + Chunk("fact", "xyz") + samples, samples + formatChunk }) {
        Write(Wave(chunks));
        ASSERT_EQ(Open(), 0);
        ASSERT_EQ(SeekData(), 0);
        EXPECT_EQ(data.cksize, 5u);
        EXPECT_EQ(Read(3), 0);
        EXPECT_EQ(bytes, "abc");
        EXPECT_EQ(Read(100), 0) << "more than there is";
        EXPECT_EQ(copied, 2u);
        EXPECT_EQ(bytes.substr(0, 3), "de?") << "neither the pad byte nor the next chunk";
        WaveClose(&file, &format);
    }
    Write(Wave(formatChunk));
    ASSERT_EQ(Open(), 0);
    EXPECT_EQ(SeekData(), NOT_FOUND);
}

TEST_F(WaveTest, ReportsSamplesThatTheFileDoesNotHold)
{
    for (const uint32_t claimed : { 5u, 70000u, 0xFFFFFFFFu }) {
        Write(Wave(Chunk("fmt ", Format()) + Chunk("data", "abcd", claimed)));
        ASSERT_EQ(Open(), 0);
        ASSERT_EQ(SeekData(), 0);
        EXPECT_EQ(Read(70000), WAVE_ERR_CORRUPT) << claimed;
        EXPECT_EQ(copied, 0u);
        EXPECT_EQ(bytes.substr(0, 5), "abcd?");
        WaveClose(&file, &format);
    }
}

TEST_F(WaveTest, ReadsAcrossTheFileBuffer)
{
    std::string samples;
    for (uint32_t i = 0; i < 100000; ++i)
        samples += static_cast<char>(i * i >> 3);
    Write(Wave(Chunk("data", samples) + Chunk("fmt ", Format())));
    ASSERT_EQ(Open(), 0);
    ASSERT_EQ(SeekData(), 0) << "back to before the buffered stretch";
    EXPECT_EQ(Read(60000), 0);
    EXPECT_EQ(bytes, samples.substr(0, 60000));
    EXPECT_EQ(Read(60000), 0);
    EXPECT_EQ(bytes.substr(0, 40000), samples.substr(60000));
}
}
