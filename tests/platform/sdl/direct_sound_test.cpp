#include "platform/directsound.h"
#include "support/temp_folder.h"

#include <SDL.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <string>

namespace
{
constexpr WORD PCM = WAVE_FORMAT_PCM;
constexpr char OUTPUT[] = "output.raw";

/// A device whose output lands in a file, at the speed of a real one.
struct DirectSoundTest : testing::Test {
    void SetUp() override
    {
        SDL_setenv("SDL_DISKAUDIOFILE", OUTPUT, 1);
        SDL_setenv("SDL_AUDIODRIVER", "disk", 1);
    }
    void TearDown() override
    {
        if (device)
            device->Release();
    }
    /// Null if it is refused.
    IDirectSoundBuffer* Create(WAVEFORMATEX format, DWORD bytes)
    {
        const DSBUFFERDESC description{ sizeof description, DSBCAPS_LOCSOFTWARE, bytes, 0, &format, {} };
        IDirectSoundBuffer* buffer = nullptr;
        const HRESULT result = device->CreateSoundBuffer(&description, &buffer, nullptr);
        EXPECT_EQ(result == DS_OK, buffer != nullptr);
        return buffer;
    }
    /// Waits until those bytes have been put out, at most some seconds.
    bool IsPutOut(const std::string& bytes) const
    {
        for (int i = 0; i < 1000; ++i, SDL_Delay(5))
            if (folder.Read(OUTPUT).find(bytes) != std::string::npos)
                return true;
        return false;
    }
    const TempFolder folder;
    IDirectSound* device = nullptr;
};

TEST_F(DirectSoundTest, FailsWithoutAnAudioDeviceAndComplainsOnce)
{
    SDL_setenv("SDL_AUDIODRIVER", "alsa", 1);
    SDL_setenv("ALSA_CONFIG_PATH", "/dev/null", 1); // which names no device
    testing::internal::CaptureStderr();
    EXPECT_EQ(DirectSoundCreate(nullptr, &device, nullptr), DSERR_NODRIVER);
    EXPECT_EQ(DirectSoundCreate(nullptr, &device, nullptr), DSERR_NODRIVER);
    EXPECT_EQ(device, nullptr);
    const std::string said = testing::internal::GetCapturedStderr();
    EXPECT_EQ(said.find("Unknown PCM"), said.rfind("Unknown PCM")) << said;
}

TEST_F(DirectSoundTest, RefusesBuffersThatItCannotPlay)
{
    const struct {
        WAVEFORMATEX format;
        DWORD bytes;
        bool isPlayable = false;
    } cases[] = {
        { { 2, 1, 22050, 44100, 2, 16, 0 }, 4 }, // not PCM
        { { PCM, 0, 22050, 0, 0, 16, 0 }, 4 },
        { { PCM, 6, 22050, 264600, 12, 16, 0 }, 12 },
        { { PCM, 1, 3999, 7998, 2, 16, 0 }, 4 },
        { { PCM, 1, 4000, 8000, 2, 16, 0 }, 4, true },
        { { PCM, 1, 192000, 384000, 2, 16, 0 }, 4, true },
        { { PCM, 1, 192001, 384002, 2, 16, 0 }, 4 },
        { { PCM, 2, 22050, 88200, 4, 16, 0 }, 3 }, // less than a frame
        { { PCM, 2, 22050, 88200, 4, 16, 0 }, 4, true },
        { { PCM, 2, 22050, 88200, 4, 16, 0 }, 0xFFFFFFFF },
    };
    ASSERT_EQ(DirectSoundCreate(nullptr, &device, nullptr), DS_OK);
    for (const auto& row : cases) {
        IDirectSoundBuffer* const buffer = Create(row.format, row.bytes);
        EXPECT_EQ(buffer != nullptr, row.isPlayable) << row.format.nSamplesPerSec;
        if (buffer)
            buffer->Release();
    }
}

/// A device that cannot be written to is how that driver loses it.
TEST_F(DirectSoundTest, PutsTheSamplesOutOnTheDeviceThatFollowsALostOne)
{
    std::filesystem::create_symlink("/dev/full", OUTPUT);
    ASSERT_EQ(DirectSoundCreate(nullptr, &device, nullptr), DS_OK);
    for (int i = 0; i < 1000 && !SDL_HasEvent(SDL_AUDIODEVICEREMOVED); ++i, SDL_PumpEvents())
        SDL_Delay(5);
    ASSERT_TRUE(SDL_HasEvent(SDL_AUDIODEVICEREMOVED));

    std::string samples;
    std::string expected;
    for (int i = 1; i <= 4000; ++i) {
        const std::string sample = { static_cast<char>(i), static_cast<char>(i >> 8) }; // a ramp
        samples += sample;
        expected += sample + sample; // left and right
    }
    IDirectSoundBuffer* const buffer = Create({ PCM, 1, 22050, 44100, 2, 16, 0 }, static_cast<DWORD>(samples.size()));
    LPVOID memory = nullptr;
    DWORD bytes = 0;
    ASSERT_EQ(buffer->Lock(0, 0, &memory, &bytes, nullptr, nullptr, DSBLOCK_ENTIREBUFFER), DS_OK);
    ASSERT_EQ(bytes, samples.size());
    samples.copy(static_cast<char*>(memory), bytes);
    EXPECT_NE(buffer->SetCurrentPosition(bytes), DS_OK) << "behind the end";
    EXPECT_EQ(buffer->Play(0, 0, DSBPLAY_LOOPING), DS_OK);
    folder.Write("next", "");
    std::filesystem::rename("next", OUTPUT);
    EXPECT_TRUE(IsPutOut(expected));
    EXPECT_EQ(buffer->Stop(), DS_OK);
    EXPECT_TRUE(IsPutOut(std::string(expected.size(), 0))) << "silence";
    buffer->Release();
}
}
