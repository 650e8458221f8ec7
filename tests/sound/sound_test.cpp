#include "sound/sound.h"

#include "doubles/directx.h"
#include "support/file_bytes.h"
#include "support/temp_folder.h"

#include <gtest/gtest.h>

namespace
{
/// A chunk with its pad byte, that claims to be so many bytes longer than it is.
std::string Chunk(const std::string& id, const std::string& data, uint32_t missing = 0)
{
    const std::string pad(data.size() % 2, '\0');
    return id + LittleEndian(static_cast<uint32_t>(data.size()) + missing) + data + pad;
}

std::string Wave(const std::string& chunks)
{
    return Chunk("RIFF", "WAVE" + chunks);
}

/// 16 bits, mono, 22050 frames per second.
std::string Format(uint16_t tag = WAVE_FORMAT_PCM)
{
    return LittleEndian(tag) + LittleEndian<uint16_t>(1) + LittleEndian<uint32_t>(22050) +
           LittleEndian<uint32_t>(44100) + LittleEndian<uint16_t>(2) + LittleEndian<uint16_t>(16);
}

const std::string formatChunk = Chunk("fmt ", Format());
const std::string dataChunk = Chunk("data", "abcde");

struct SoundTest : testing::Test {
    void SetUp() override
    {
        directX = {};
        SoundSetMute(0);
        folder.Write("a.wav", Wave(formatChunk + dataChunk));
        folder.Write("b.wav", Wave(formatChunk + Chunk("data", "xyz")));
    }
    void TearDown() override
    {
        SoundRelease();
        EXPECT_EQ(directX.objects, 0);
    }
    TempFolder folder;
};

TEST_F(SoundTest, FallsBackToAPlainDeviceWhenAStepFails)
{
    const std::string created = "DirectSoundCreate";
    const std::string full = created + ", SetSoundLevel 2, CreateSoundBuffer 1 0";
    const std::string format = ", SetFormat 1 2 22050 88200 4 16";
    const std::string plain = ", DirectSoundCreate, SetSoundLevel 1";
    const struct {
        const char* failing;
        int times;
        bool works;
        std::string calls;
    } cases[] = {
        { "none", 0, true, full + format },
        { "DirectSoundCreate", 1, true, created + plain },
        { "DirectSoundCreate", 2, false, created + ", " + created },
        { "SetSoundLevel", 2, true, created + ", SetSoundLevel 2" + plain },
        { "CreateSoundBuffer", 1, true, full + plain },
        { "SetFormat", 1, true, full + format + plain },
    };
    for (const auto& row : cases) {
        directX.Fail(row.failing, row.times);
        SoundInit(nullptr);
        EXPECT_EQ(directX.TakeCalls(), row.calls);
        EXPECT_EQ(SoundLoad(5, "a.wav") && SoundPlay(5, false), row.works) << row.failing;
        SoundRelease();
        EXPECT_EQ(directX.objects, 0) << row.failing;
        SoundSetMute(1); // not even muted do they claim success
        EXPECT_FALSE(SoundPlay(5, true) || SoundStop(5) || SoundLoad(5, "a.wav"));
        SoundSetMute(0);
        directX.TakeCalls();
    }
}

TEST_F(SoundTest, LoadsEveryIdIntoABufferOfItsOwn)
{
    SoundInit(nullptr);
    EXPECT_TRUE(SoundLoad(SOUND_RAIN_1, "a.wav") && SoundLoad(SOUND_RAIN_2, "a.wav"));
    EXPECT_TRUE(SoundLoad(SOUND_DROP, "a.wav") && SoundLoad(SOUND_DROP, "b.wav"));
    ASSERT_EQ(directX.buffers.size(), 3u) << "loading again replaces the buffer";
    EXPECT_TRUE(*directX.buffers[1] == "abcde" && *directX.buffers[2] == "xyz");
    directX.TakeCalls();
    EXPECT_TRUE(SoundPlay(SOUND_RAIN_2, true) && SoundPlay(SOUND_DROP, false));
    SoundSetMute(-1);
    EXPECT_EQ(SoundGetMute(), 1);
    EXPECT_TRUE(SoundStop(SOUND_RAIN_2)) << "which plays on while it is muted";
    EXPECT_TRUE(SoundPlay(99, false)) << "not even loaded";
    SoundSetMute(0);
    EXPECT_TRUE(SoundStop(SOUND_RAIN_2));
    EXPECT_EQ(directX.TakeCalls(), "Play 1 1, Play 2 0, Stop 1");
}

TEST_F(SoundTest, LoadsOnlyWholeWaveFiles)
{
    std::string samples; // more than the file's buffer takes
    for (uint32_t i = 0; i < 99999; ++i)
        samples += static_cast<char>(i * i >> 3);
    const std::string data = Chunk("data", samples);
    std::string empty;
    for (int i = 0; i < 1000; ++i)
        empty += Chunk("junk", "");
    const std::string extra = LittleEndian<uint16_t>(22) + "0123456789abcdefghijkl";
    const struct {
        std::string content;
        bool loads;
        const char* what;
    } cases[] = {
        { "", false, "empty" },
        { Chunk("LIST", "WAVE" + formatChunk + data), false, "no RIFF" },
        { Chunk("RIFF", "AVI " + formatChunk + data), false, "no WAVE" },
        { Wave(data), false, "no format" },
        { Wave(formatChunk) + data, false, "data behind the RIFF chunk's end" },
        { Wave(data) + formatChunk, false, "format behind the RIFF chunk's end" },
        { Wave(Chunk("junk", "x", 0xFFFFFFFE) + formatChunk + data), false, "endless junk" },
        { Wave(data + Chunk("fmt ", Format().substr(0, 15))), false, "format of 15 bytes" },
        { Wave(data + Chunk("fmt ", Format().substr(0, 12), 4)), false, "format cut off" },
        { Wave(data + Chunk("fmt ", Format(2), 2)), false, "count of extra bytes cut off" },
        { Wave(data + Chunk("fmt ", Format(2) + LittleEndian<uint16_t>(32) + "x")), false, "extra bytes cut off" },
        { Wave(empty + formatChunk + data), false, "more chunks than any sound has" },
        { Wave(data + formatChunk), true, "data before the format" },
        { Wave(Chunk("odd ", "x") + formatChunk + Chunk("LIST", "") + data), true, "odd and empty chunks before" },
        { Wave(Chunk("fmt ", Format(2) + extra) + data), true, "a format with extra bytes" },
        { Wave(Chunk("fmt ", Format() + extra) + data), true, "which the plain format is not asked for" },
    };
    SoundInit(nullptr);
    for (const auto& row : cases) {
        folder.Write("c.wav", row.content);
        EXPECT_EQ(SoundLoad(3, "c.wav"), row.loads) << row.what;
        EXPECT_TRUE(!row.loads || *directX.buffers.at(0) == samples) << row.what;
    }
}

TEST_F(SoundTest, EachFailedLoadingStepLeavesSilence)
{
    folder.Write("cut.wav", Wave(formatChunk + Chunk("data", "ab", 98)));
    const std::string lock = ", LockSound 0 0 2";
    const std::string filling = "CreateSoundBuffer 200 22050, SetCurrentPosition 0" + lock;
    const struct {
        const char* path;
        const char* failing;
        int times;
        HRESULT result;
        bool loads;
        std::string calls;
    } cases[] = {
        { "cut.wav", "none", 0, 0, false, filling + ", UnlockSound 100 0" },
        { "a.wav", "none", 0, 0, true, filling + ", UnlockSound 5 0" },
        { "a.wav", "CreateSoundBuffer", 1, DDERR_GENERIC, false, "CreateSoundBuffer 200 22050" },
        { "a.wav", "LockSound", 1, DSERR_INVALIDCALL, false, filling },
        { "a.wav", "LockSound", 1, DSERR_BUFFERLOST, true, filling + ", RestoreSound" + lock + ", UnlockSound 5 0" },
        { "a.wav", "LockSound", 2, DSERR_BUFFERLOST, false, filling + ", RestoreSound" + lock },
    };
    for (const auto& row : cases) {
        SoundInit(nullptr);
        directX.TakeCalls();
        directX.Fail(row.failing, row.times, row.result);
        testing::internal::CaptureStderr();
        EXPECT_EQ(SoundLoad(3, row.path), row.loads) << row.path << ", " << row.failing;
        const std::string report = row.path + (": Can not load sound (in " + folder.Path() + ")\n");
        EXPECT_EQ(testing::internal::GetCapturedStderr(), row.loads ? "" : report) << row.failing;
        EXPECT_EQ(directX.TakeCalls(), row.calls) << row.path << ", " << row.failing;
        EXPECT_EQ(SoundPlay(3, false), !directX.buffers.empty()) << row.path << ", " << row.failing;
        SoundRelease();
    }
}
}
