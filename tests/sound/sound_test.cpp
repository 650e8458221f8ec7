#include "sound/sound.h"

#include "doubles/directx.h"
#include "sound/wave_bytes.h"
#include "support/temp_folder.h"

#include <gtest/gtest.h>

namespace
{
struct SoundTest : testing::Test {
    void SetUp() override
    {
        directX = {};
        SoundSetMute(0);
        folder.Write("a.wav", Wave(Chunk("fmt ", Format()) + Chunk("data", "abcd")));
        folder.Write("b.wav", Wave(Chunk("fmt ", Format()) + Chunk("data", "xyz")));
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
    const std::string full = created + ", SetSoundLevel 2, CreateSoundBuffer 1";
    const std::string plain = ", DirectSoundCreate, SetSoundLevel 1";
    const struct {
        const char* failing;
        int times;
        bool works;
        std::string calls;
    } cases[] = {
        { "none", 0, true, full + ", SetFormat 22050" },
        { "DirectSoundCreate", 1, true, created + plain },
        { "DirectSoundCreate", 2, false, created + ", " + created },
        { "SetSoundLevel", 2, true, created + ", SetSoundLevel 2" + plain },
        { "CreateSoundBuffer", 1, true, full + plain },
        { "SetFormat", 1, true, full + ", SetFormat 22050" + plain },
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
    EXPECT_TRUE(*directX.buffers[1] == "abcd" && *directX.buffers[2] == "xyz");
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

TEST_F(SoundTest, EachFailedLoadingStepLeavesSilence)
{
    folder.Write("no data.wav", Wave(Chunk("fmt ", Format())));
    folder.Write("cut.wav", Wave(Chunk("fmt ", Format()) + Chunk("data", "ab", 100)));
    const std::string filling = "CreateSoundBuffer 200, SetCurrentPosition 0, LockSound";
    const struct {
        const char* path;
        const char* failing;
        int times;
        HRESULT result;
        bool loads;
        std::string calls;
    } cases[] = {
        { "missing.wav", "none", 0, 0, false, "" },
        { "no data.wav", "none", 0, 0, false, "" },
        { "cut.wav", "none", 0, 0, false, filling + ", UnlockSound" },
        { "a.wav", "none", 0, 0, true, filling + ", UnlockSound" },
        { "a.wav", "CreateSoundBuffer", 1, DDERR_GENERIC, false, "CreateSoundBuffer 200" },
        { "a.wav", "LockSound", 1, DSERR_INVALIDCALL, false, filling },
        { "a.wav", "LockSound", 1, DSERR_BUFFERLOST, true, filling + ", RestoreSound, LockSound, UnlockSound" },
        { "a.wav", "LockSound", 2, DSERR_BUFFERLOST, false, filling + ", RestoreSound, LockSound" },
    };
    for (const auto& row : cases) {
        SoundInit(nullptr);
        directX.TakeCalls();
        directX.Fail(row.failing, row.times, row.result);
        EXPECT_EQ(SoundLoad(3, row.path), row.loads) << row.path << ", " << row.failing;
        EXPECT_EQ(directX.TakeCalls(), row.calls) << row.path << ", " << row.failing;
        EXPECT_EQ(SoundPlay(3, false), !directX.buffers.empty()) << row.path << ", " << row.failing;
        SoundRelease();
    }
}
}
