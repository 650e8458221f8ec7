#include "sound/sound.h"

#include "doubles/directx.h"
#include "sound/wave_bytes.h"
#include "support/temp_folder.h"

#include <gtest/gtest.h>

namespace
{
constexpr char LOAD[] = "CreateSoundBuffer 200, SetCurrentPosition 0, LockSound, UnlockSound";

struct SoundTest : testing::Test {
    void SetUp() override
    {
        directX = {};
        SoundSetMute(0);
        folder.Write("a.wav", Wave(Chunk("fmt ", Format()) + Chunk("data", "abcd")));
        folder.Write("b.wav", Wave(Chunk("fmt ", Format(1, 8)) + Chunk("data", "xyz")));
    }
    /// Sets up, the calls of which are of no interest.
    static void Init()
    {
        SoundInit(nullptr);
        directX.TakeCalls();
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
    const struct {
        const char* failing;
        int times;
        bool works;
        const char* calls;
    } cases[] = {
        { "none", 0, true, "DirectSoundCreate, SetSoundLevel 2, CreateSoundBuffer 1, SetFormat 22050" },
        { "DirectSoundCreate", 1, true, "DirectSoundCreate, DirectSoundCreate, SetSoundLevel 1" },
        { "DirectSoundCreate", 2, false, "DirectSoundCreate, DirectSoundCreate" },
        { "SetSoundLevel", 2, true, "DirectSoundCreate, SetSoundLevel 2, DirectSoundCreate, SetSoundLevel 1" },
        { "CreateSoundBuffer", 1, true,
          "DirectSoundCreate, SetSoundLevel 2, CreateSoundBuffer 1, DirectSoundCreate, SetSoundLevel 1" },
        { "SetFormat", 1, true,
          "DirectSoundCreate, SetSoundLevel 2, CreateSoundBuffer 1, SetFormat 22050, DirectSoundCreate, "
          "SetSoundLevel 1" },
    };
    for (const auto& row : cases) {
        directX.Fail(row.failing, row.times);
        SoundInit(nullptr);
        EXPECT_EQ(directX.TakeCalls(), row.calls);
        EXPECT_EQ(SoundLoad(5, "a.wav"), row.works) << row.failing;
        EXPECT_EQ(SoundPlay(5, false), row.works) << row.failing;
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
    Init();
    EXPECT_TRUE(SoundLoad(SOUND_RAIN_1, "a.wav"));
    EXPECT_EQ(directX.TakeCalls(), LOAD);
    EXPECT_TRUE(SoundLoad(SOUND_RAIN_2, "a.wav") && SoundLoad(SOUND_DROP, "a.wav") && SoundLoad(SOUND_DROP, "b.wav"));
    ASSERT_EQ(directX.buffers.size(), 3u) << "loading again replaces the buffer";
    EXPECT_EQ(directX.buffers[1]->bytes, "abcd");
    EXPECT_EQ(directX.buffers[2]->bytes, "xyz");
    EXPECT_TRUE(SoundPlay(SOUND_RAIN_2, true) && SoundPlay(SOUND_DROP, false));
    EXPECT_FALSE(directX.buffers[0]->playing);
    EXPECT_TRUE(directX.buffers[1]->playing && directX.buffers[1]->looping);
    EXPECT_TRUE(directX.buffers[2]->playing && !directX.buffers[2]->looping);
    SoundSetMute(-1);
    EXPECT_EQ(SoundGetMute(), 1);
    EXPECT_TRUE(SoundStop(SOUND_RAIN_2));
    EXPECT_TRUE(SoundPlay(99, false)) << "not even loaded";
    EXPECT_TRUE(directX.buffers[1]->playing) << "muting does not stop";
    SoundSetMute(0);
    EXPECT_TRUE(SoundStop(SOUND_RAIN_2));
    EXPECT_FALSE(directX.buffers[1]->playing);
    directX.Fail("CreateSoundBuffer");
    EXPECT_FALSE(SoundLoad(SOUND_DROP, "a.wav"));
    EXPECT_FALSE(SoundPlay(SOUND_DROP, false) || SoundStop(SOUND_DROP)) << "an entry without a buffer";
}

TEST_F(SoundTest, StaysSilentForFilesThatCannotBeLoaded)
{
    const std::string format = Chunk("fmt ", Format());
    folder.Write("no data.wav", Wave(format));
    folder.Write("text.wav", "no wave at all");
    folder.Write("cut.wav", Wave(format + Chunk("data", "ab", 100)));
    Init();
    for (const char* path : { "missing.wav", "no data.wav", "text.wav" }) {
        EXPECT_FALSE(SoundLoad(3, path)) << path;
        EXPECT_FALSE(SoundPlay(3, false) || SoundStop(3)) << path;
    }
    EXPECT_EQ(directX.TakeCalls(), "");
    EXPECT_FALSE(SoundLoad(3, "cut.wav"));
    EXPECT_EQ(directX.TakeCalls(), LOAD) << "unlocked all the same";
}

TEST_F(SoundTest, RestoresALostBufferOnce)
{
    const struct {
        HRESULT result;
        int times;
        bool loads;
        const char* locks;
    } cases[] = {
        { DSERR_BUFFERLOST, 1, true, "LockSound, RestoreSound, LockSound, UnlockSound" },
        { DSERR_BUFFERLOST, 2, false, "LockSound, RestoreSound, LockSound" },
        { DSERR_INVALIDCALL, 1, false, "LockSound" },
    };
    for (const auto& row : cases) {
        Init();
        directX.Fail("LockSound", row.times, row.result);
        EXPECT_EQ(SoundLoad(1, "a.wav"), row.loads);
        EXPECT_EQ(directX.TakeCalls(), std::string("CreateSoundBuffer 200, SetCurrentPosition 0, ") + row.locks);
        SoundRelease();
    }
}
}
