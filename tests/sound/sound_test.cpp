#include "sound/sound.h"

#include "doubles/fake_platform.h"
#include "sound/wave_bytes.h"
#include "support/temp_folder.h"

#include <gtest/gtest.h>

namespace
{
struct SoundTest : testing::Test {
    void SetUp() override
    {
        fake.Reset();
        SoundSetMute(0);
        folder.Write("a.wav", Wave(Chunk("fmt ", Format()) + Chunk("data", "abcd")));
        folder.Write("b.wav", Wave(Chunk("fmt ", Format(1, 8)) + Chunk("data", "xyz")));
    }
    void TearDown() override
    {
        SoundRelease();
        EXPECT_EQ(fake.soundObjects, 0);
    }
    static std::string Content(size_t buffer)
    {
        const std::vector<uint8_t>& bytes = fake.soundBuffers.at(buffer)->bytes;
        return { bytes.begin(), bytes.end() };
    }
    TempFolder folder;
};

TEST_F(SoundTest, FallsBackToAPlainDeviceWhenAStepFails)
{
    const struct {
        const char* failing;
        int times;
        bool works;
        int objects; ///< device and primary buffer
    } cases[] = {
        { "none", 0, true, 2 },
        { "DirectSoundCreate", 1, true, 1 },
        { "DirectSoundCreate", 2, false, 0 },
        { "SetPriorityLevel", -1, true, 1 },
        { "CreatePrimaryBuffer", -1, true, 1 },
        { "SoundBuffer.SetFormat", -1, true, 1 },
    };
    for (const auto& row : cases) {
        fake.Reset();
        fake.Fail(row.failing, row.times);
        fake.Fail("SetNormalLevel"); // makes no difference
        SoundInit(FAKE_WINDOW);
        EXPECT_EQ(fake.soundObjects, row.objects) << row.failing;
        EXPECT_EQ(fake.Calls("SetNormalLevel"), row.objects == 1) << row.failing;
        EXPECT_EQ(SoundLoad(5, "a.wav"), row.works) << row.failing;
        EXPECT_EQ(SoundPlay(5, false), row.works) << row.failing;
        SoundRelease();
        EXPECT_EQ(fake.soundObjects, 0) << row.failing;
    }
}

TEST_F(SoundTest, IsSilentWithoutSetUpAndAfterRelease)
{
    const WAVEFORMATEX format{ 1, 1, 22050, 44100, 2, 16, 0 };
    EXPECT_FALSE(SoundLoad(0, "a.wav"));
    SoundInit(FAKE_WINDOW);
    ASSERT_TRUE(SoundLoad(0, "a.wav"));
    SoundRelease();
    SoundSetMute(1); // not even muted do they claim success
    EXPECT_FALSE(SoundCreate(0, &format, 4));
    EXPECT_FALSE(SoundPlay(0, true));
    EXPECT_FALSE(SoundStop(0));
}

TEST_F(SoundTest, LoadsEveryIdIntoABufferOfItsOwn)
{
    SoundInit(FAKE_WINDOW);
    EXPECT_TRUE(SoundLoad(SOUND_RAIN_1, "a.wav"));
    EXPECT_TRUE(SoundLoad(SOUND_RAIN_2, "a.wav"));
    EXPECT_TRUE(SoundLoad(SOUND_DROP, "b.wav"));
    EXPECT_EQ(Content(0), "abcd");
    EXPECT_EQ(Content(1), "abcd");
    EXPECT_EQ(Content(2), "xyz");
    EXPECT_TRUE(SoundPlay(SOUND_RAIN_2, true));
    EXPECT_TRUE(SoundPlay(SOUND_DROP, false));
    EXPECT_FALSE(fake.soundBuffers[0]->playing);
    EXPECT_TRUE(fake.soundBuffers[1]->playing && fake.soundBuffers[1]->looping);
    EXPECT_TRUE(fake.soundBuffers[2]->playing && !fake.soundBuffers[2]->looping);
    EXPECT_TRUE(SoundStop(SOUND_RAIN_2));
    EXPECT_FALSE(fake.soundBuffers[1]->playing);
}

TEST_F(SoundTest, LoadingAgainReplacesTheBuffer)
{
    SoundInit(FAKE_WINDOW);
    ASSERT_TRUE(SoundLoad(7, "a.wav"));
    ASSERT_TRUE(SoundLoad(7, "b.wav"));
    ASSERT_EQ(fake.soundBuffers.size(), 1u);
    EXPECT_EQ(Content(0), "xyz");
    fake.Fail("CreateSoundBuffer");
    EXPECT_FALSE(SoundLoad(7, "a.wav"));
    EXPECT_TRUE(fake.soundBuffers.empty());
    EXPECT_FALSE(SoundPlay(7, false)) << "an entry without a buffer";
    EXPECT_FALSE(SoundStop(7));
}

TEST_F(SoundTest, StaysSilentForFilesThatCannotBeLoaded)
{
    const std::string format = Chunk("fmt ", Format());
    folder.Write("no data.wav", Wave(format));
    folder.Write("empty.wav", Wave(format + Chunk("data", "")));
    folder.Write("text.wav", "no wave at all");
    SoundInit(FAKE_WINDOW);
    for (const char* path : { "missing.wav", "no data.wav", "empty.wav", "text.wav" }) {
        EXPECT_FALSE(SoundLoad(3, path)) << path;
        EXPECT_FALSE(SoundPlay(3, false)) << path;
        EXPECT_FALSE(SoundStop(3)) << path;
    }
    EXPECT_FALSE(SoundPlay(8, false)) << "never loaded";
}

TEST_F(SoundTest, UnlocksABufferThatCannotBeFilled)
{
    folder.Write("cut.wav", Wave(Chunk("fmt ", Format()) + Chunk("data", "ab", 100)));
    SoundInit(FAKE_WINDOW);
    EXPECT_FALSE(SoundLoad(3, "cut.wav"));
    EXPECT_EQ(fake.Calls("SoundBuffer.Lock"), 1);
    EXPECT_EQ(fake.Calls("SoundBuffer.Unlock"), 1);
    EXPECT_TRUE(SoundPlay(3, false)) << "the buffer stays";
}

TEST_F(SoundTest, RestoresALostBufferOnce)
{
    for (const int losses : { 0, 1, 2 }) {
        fake.Reset();
        fake.Fail("SoundBuffer.Lock", losses);
        SoundInit(FAKE_WINDOW);
        EXPECT_EQ(SoundLoad(1, "a.wav"), losses < 2);
        EXPECT_EQ(fake.Calls("SoundBuffer.Lock"), losses == 0 ? 1 : 2);
        EXPECT_EQ(fake.Calls("SoundBuffer.Restore"), losses == 0 ? 0 : 1);
        SoundRelease();
    }
}

TEST_F(SoundTest, MutedCallsSucceedAndChangeNothing)
{
    SoundInit(FAKE_WINDOW);
    ASSERT_TRUE(SoundLoad(2, "a.wav"));
    ASSERT_TRUE(SoundPlay(2, true));
    SoundSetMute(-1);
    EXPECT_EQ(SoundGetMute(), 1);
    EXPECT_TRUE(SoundStop(2));
    EXPECT_TRUE(SoundPlay(8, false)) << "not even loaded";
    EXPECT_TRUE(fake.soundBuffers[0]->playing) << "muting does not stop";
    SoundSetMute(0);
    EXPECT_EQ(fake.soundBuffers[0]->plays, 1);
    EXPECT_EQ(fake.soundBuffers[0]->stops, 0);
}
}
