#include "platform/directsound.h"

#include <SDL.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <unistd.h>
#include <utility>
#include <vector>

namespace
{
constexpr WORD PCM = WAVE_FORMAT_PCM;

/// A device whose output lands in a file, at the speed of a real one.
class DirectSoundTest : public testing::Test
{
protected:
    void SetUp() override
    {
        output = std::filesystem::temp_directory_path() / ("tervalis-sound-" + std::to_string(getpid()) + ".raw");
        SDL_setenv("SDL_DISKAUDIOFILE", output.c_str(), 1);
        SDL_setenv("SDL_AUDIODRIVER", "disk", 1);
        ASSERT_EQ(DirectSoundCreate(nullptr, &device, nullptr), DS_OK);
    }
    void TearDown() override
    {
        if (device)
            device->Release();
        std::filesystem::remove(output);
    }
    HRESULT Create(WAVEFORMATEX format, DWORD bytes, IDirectSoundBuffer** buffer)
    {
        const DSBUFFERDESC description{ sizeof description, DSBCAPS_LOCSOFTWARE, bytes, 0, &format, {} };
        return device->CreateSoundBuffer(&description, buffer, nullptr);
    }
    /// A buffer of 16-bit mono samples.
    IDirectSoundBuffer* Add(const std::vector<int16_t>& samples)
    {
        IDirectSoundBuffer* buffer = nullptr;
        const auto bytes = static_cast<DWORD>(samples.size() * sizeof samples[0]);
        EXPECT_EQ(Create({ PCM, 1, 22050, 44100, 2, 16, 0 }, bytes, &buffer), DS_OK);
        LPVOID memory = nullptr;
        DWORD locked = 0;
        EXPECT_EQ(buffer->Lock(0, 0, &memory, &locked, nullptr, nullptr, DSBLOCK_ENTIREBUFFER), DS_OK);
        EXPECT_EQ(locked, bytes);
        std::copy(samples.begin(), samples.end(), static_cast<int16_t*>(memory));
        EXPECT_EQ(buffer->Unlock(memory, locked, nullptr, 0), DS_OK);
        return buffer;
    }
    /// Closes the device; the left samples of all it played, without the silence before.
    std::vector<int16_t> CloseAndRead()
    {
        std::exchange(device, nullptr)->Release();
        std::ifstream file(output, std::ios::binary);
        const std::vector<char> bytes{ std::istreambuf_iterator<char>(file), {} };
        std::vector<int16_t> left;
        for (size_t i = 0; i + 4 <= bytes.size(); i += 4) {
            const auto sample = static_cast<int16_t>(static_cast<uint8_t>(bytes[i]) | bytes[i + 1] << 8);
            if (sample != 0 || !left.empty())
                left.push_back(sample);
        }
        return left;
    }
    /// Waits until that many more frames have been put out, at most some seconds.
    void WaitForFrames(uintmax_t frames) const
    {
        const uintmax_t wanted = std::filesystem::file_size(output) + frames * 4;
        for (int i = 0; i < 1000 && std::filesystem::file_size(output) < wanted; ++i)
            SDL_Delay(5);
    }
    IDirectSound* device = nullptr;
    std::filesystem::path output;
};

TEST_F(DirectSoundTest, FailsWithoutAnAudioDeviceAndComplainsOnce)
{
    std::exchange(device, nullptr)->Release();
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
    const std::pair<WAVEFORMATEX, DWORD> cases[] = {
        { { 2, 1, 22050, 44100, 2, 16, 0 }, 4 }, // not PCM
        { { PCM, 0, 22050, 0, 0, 16, 0 }, 4 },
        { { PCM, 6, 22050, 264600, 12, 16, 0 }, 12 },
        { { PCM, 1, 22050, 66150, 3, 24, 0 }, 6 },
        { { PCM, 2, 22050, 88200, 0, 16, 0 }, 4 },
        { { PCM, 1, 0, 0, 2, 16, 0 }, 4 },
        { { PCM, 1, 0xFFFFFFFF, 0, 2, 16, 0 }, 4 },
        { { PCM, 2, 22050, 88200, 4, 16, 0 }, 3 }, // less than a frame
        { { PCM, 2, 22050, 88200, 4, 16, 0 }, 0xFFFFFFFF },
    };
    for (const auto& [format, bytes] : cases) {
        IDirectSoundBuffer* buffer = nullptr;
        EXPECT_NE(Create(format, bytes, &buffer), DS_OK) << format.nChannels << " x " << format.wBitsPerSample;
        EXPECT_EQ(buffer, nullptr);
    }
}

TEST_F(DirectSoundTest, PutsOutTheSamplesItWasGiven)
{
    std::vector<int16_t> samples;
    for (int i = 1; i <= 2000; ++i)
        samples.push_back(static_cast<int16_t>(i * 16));
    IDirectSoundBuffer* const buffer = Add(samples);
    EXPECT_EQ(buffer->Play(0, 0, 0), DS_OK);
    WaitForFrames(2 * samples.size());
    buffer->Release();
    samples.push_back(0); // and silence
    std::vector<int16_t> played = CloseAndRead();
    ASSERT_GE(played.size(), samples.size());
    played.resize(samples.size());
    EXPECT_EQ(played, samples);
}

/// A device that cannot be written to is how that driver loses it.
TEST_F(DirectSoundTest, GoesOnWithoutADeviceThatVanishesAndIsHeardAgainFromTheNext)
{
    std::exchange(device, nullptr)->Release();
    std::filesystem::remove(output);
    std::filesystem::create_symlink("/dev/full", output);
    ASSERT_EQ(DirectSoundCreate(nullptr, &device, nullptr), DS_OK);
    for (int i = 0; i < 1000 && !SDL_HasEvent(SDL_AUDIODEVICEREMOVED); ++i, SDL_PumpEvents())
        SDL_Delay(5);
    ASSERT_TRUE(SDL_HasEvent(SDL_AUDIODEVICEREMOVED));
    IDirectSoundBuffer* const buffer = Add(std::vector<int16_t>(300, 16000));
    EXPECT_EQ(buffer->Play(0, 0, DSBPLAY_LOOPING), DS_OK);
    const std::filesystem::path file = output.string() + ".next";
    std::ofstream{ file };
    std::filesystem::rename(file, output);
    WaitForFrames(2000);
    buffer->Release();
    const std::vector<int16_t> played = CloseAndRead();
    ASSERT_GT(played.size(), 1000u);
    EXPECT_EQ(played[0], 16000);
}

}
