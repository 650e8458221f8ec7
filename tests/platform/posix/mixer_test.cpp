#include "platform/posix/mixer.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <atomic>
#include <cstring>
#include <thread>
#include <vector>

namespace
{
using Samples = std::vector<int16_t>;

constexpr uint32_t RATE = 22050;
constexpr int FADE = Mixer::FULL_GAIN;

struct MixerTest : testing::Test {
    /// A voice of 16-bit mono samples, playing.
    Voice& Play(const Samples& samples, bool loop = false)
    {
        Voice& voice = *mixer.AddVoice({ 1, 16, RATE }, static_cast<uint32_t>(samples.size() * sizeof samples[0]));
        std::memcpy(voice.bytes.get(), samples.data(), voice.byteCount);
        mixer.Play(voice, loop);
        return voice;
    }
    /// The next frames' left samples.
    Samples Mix(size_t frames, bool audible = true)
    {
        Samples both(frames * 2, 0x5555);
        mixer.Mix(both.data(), frames, audible);
        for (size_t i = 0; i < frames; ++i)
            both[i] = both[2 * i];
        both.resize(frames);
        return both;
    }
    Mixer mixer{ RATE };
};

/// `count` samples 10 apart: each says where it was taken from.
Samples Ramp(int count, int first = 0)
{
    Samples samples;
    for (int i = 0; i < count; ++i)
        samples.push_back(static_cast<int16_t>((first + i) * 10));
    return samples;
}

TEST_F(MixerTest, PlaysEveryFormatAndRate)
{
    const std::vector<uint8_t> pair = { 132, 128, 136, 64 };
    const struct {
        PcmFormat format;
        bool loop;
        std::vector<uint8_t> bytes;
        Samples expected; ///< left, right, ...
    } cases[] = {
        { { 1, 8, RATE }, false, { 0, 128, 255 }, { -32768, -32768, 0, 0, 32512, 32512, 0, 0 } },
        { { 2, 8, RATE }, false, { 129, 127, 64, 192 }, { 256, -256, -16384, 16384, 0, 0 } },
        { { 1, 16, RATE }, false, { 0xFF, 0x7F, 0x00, 0x80 }, { 32767, 32767, -32768, -32768, 0, 0 } },
        { { 2, 16, RATE }, false, { 1, 0, 2, 0, 9, 9 }, { 1, 2, 0, 0 } }, // half a frame at the end is no frame
        { { 2, 16, RATE }, true, { 1, 0, 2, 0 }, { 1, 2, 1, 2 } },
        // Between two samples, and from the last one to silence or to the first one.
        { { 2, 8, RATE / 2 }, false, pair, { 1024, 0, 1536, -8192, 2048, -16384, 1024, -8192, 0, 0 } },
        { { 2, 8, RATE / 2 }, true, pair, { 1024, 0, 1536, -8192, 2048, -16384, 1536, -8192, 1024, 0 } },
        { { 2, 8, RATE * 3 / 2 }, false, pair, { 1024, 0, 1024, -8192, 0, 0 } },
        { { 2, 8, RATE * 3 / 2 }, true, pair, { 1024, 0, 1536, -8192, 2048, -16384, 1536, -8192 } },
    };
    for (const auto& row : cases) {
        Voice* const voice = mixer.AddVoice(row.format, static_cast<uint32_t>(row.bytes.size()));
        std::copy(row.bytes.begin(), row.bytes.end(), voice->bytes.get());
        for (int times = row.loop ? 1 : 2; times > 0; --times) { // what has ended starts anew
            mixer.Play(*voice, row.loop);
            Samples mixed(row.expected.size(), 0x5555);
            for (size_t i = 0; i < mixed.size(); i += 2)
                mixer.Mix(&mixed[i], 1, true);
            EXPECT_EQ(mixed, row.expected) << row.format.bits << " bits, rate " << row.format.rate << ", " << times;
        }
        mixer.RemoveVoice(voice);
        Mix(FADE);
    }
}

TEST_F(MixerTest, FadesWhatStopsOrIsNoLongerHeardAndGoesOn)
{
    Voice& voice = Play(Ramp(3000));
    Mix(100);
    mixer.Stop(voice);
    EXPECT_EQ(Mix(3), (Samples{ 1000 * 127 / 128, 1010 * 126 / 128, 1020 * 125 / 128 }));
    EXPECT_FALSE(mixer.IsSilent()) << "it fades";
    EXPECT_EQ(Mix(FADE).back(), 0);
    mixer.Play(voice, false);
    EXPECT_EQ(Mix(3), (Samples{ 1000 * 1 / 128, 1010 * 2 / 128, 1020 * 3 / 128 })) << "from where it was stopped";
    Mix(FADE);
    EXPECT_EQ(Mix(69), Ramp(69, 103 + FADE));
    EXPECT_EQ(Mix(2, false), (Samples{ 3000 * 127 / 128, 3010 * 126 / 128 }));
    EXPECT_EQ(Mix(FADE, false).back(), 0);
    Mix(FADE);
    EXPECT_EQ(Mix(100), Ramp(100, 302 + 2 * FADE)) << "it went on without being heard";
}

TEST_F(MixerTest, AddsSaturatesAndChangesOnlyTheLoopOfWhatPlays)
{
    Voice& voice = Play({ 30000, -30000, 123 });
    Play({ 10000, -10000 });
    EXPECT_EQ(Mix(2), (Samples{ 32767, -32768 }));
    mixer.Play(voice, true);
    EXPECT_EQ(Mix(3), (Samples{ 123, 30000, -30000 }));
    mixer.Play(voice, false);
    EXPECT_EQ(Mix(2), (Samples{ 123, 0 }));
}

TEST_F(MixerTest, MixesWhileVoicesComeAndGo)
{
    std::atomic<bool> isMixing = true;
    std::thread device([&] {
        while (isMixing)
            Mix(64, false);
    });
    Voice& lasting = Play(Ramp(50), true);
    for (int i = 0; i < 300; ++i) {
        Voice& voice = Play(Ramp(1000), i % 2 == 0);
        mixer.Stop(lasting);
        mixer.SetPosition(lasting, 2);
        mixer.Play(lasting, true);
        mixer.RemoveVoice(&voice);
    }
    isMixing = false;
    device.join();
    EXPECT_FALSE(mixer.IsSilent());
}
}
