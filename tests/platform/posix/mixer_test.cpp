#include "platform/posix/mixer.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <atomic>
#include <cstdlib>
#include <cstring>
#include <thread>
#include <utility>
#include <vector>

namespace
{
using Samples = std::vector<int16_t>;

constexpr uint32_t RATE = 22050;
constexpr size_t FADE = Mixer::FULL_GAIN;

struct MixerTest : testing::Test {
    void TestBody() override {}
    /// A voice of 16-bit mono samples.
    Voice& Add(const Samples& samples, uint32_t rate = RATE)
    {
        Voice* voice = mixer.AddVoice({ 1, 16, rate }, static_cast<uint32_t>(samples.size() * sizeof samples[0]));
        std::memcpy(voice->bytes.get(), samples.data(), voice->byteCount);
        return *voice;
    }
    Voice& Play(const Samples& samples, bool loop = false, uint32_t rate = RATE)
    {
        Voice& voice = Add(samples, rate);
        mixer.Play(voice, loop);
        return voice;
    }
    /// The next frames' left samples, after checking that the right ones are the same.
    Samples MixMono(size_t frames, bool audible = true)
    {
        Samples both(frames * 2, 0x5555);
        mixer.Mix(both.data(), frames, audible);
        Samples left;
        for (size_t i = 0; i < both.size(); i += 2) {
            EXPECT_EQ(both[i], both[i + 1]);
            left.push_back(both[i]);
        }
        return left;
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

int WidestStep(const Samples& samples, int before)
{
    int widest = 0;
    for (const int sample : samples)
        widest = std::max(widest, std::abs(sample - std::exchange(before, sample)));
    return widest;
}

TEST_F(MixerTest, PlaysEveryFormatToItsEndAndAgain)
{
    const struct {
        PcmFormat format;
        std::vector<uint8_t> bytes;
        Samples expected; ///< left, right, ...; silence follows
    } cases[] = {
        { { 1, 8, RATE }, { 0, 128, 255 }, { -32768, -32768, 0, 0, 32512, 32512, 0, 0 } },
        { { 2, 8, RATE }, { 129, 127, 64, 192 }, { 256, -256, -16384, 16384, 0, 0 } },
        { { 1, 16, RATE }, { 0xFF, 0x7F, 0x00, 0x80 }, { 32767, 32767, -32768, -32768, 0, 0 } },
        { { 2, 16, RATE }, { 1, 0, 0xFE, 0xFF }, { 1, -2, 0, 0 } },
        { { 2, 16, RATE }, { 1, 0, 2, 0, 9, 9 }, { 1, 2, 0, 0 } }, // half a frame at the end is no frame
    };
    for (const auto& row : cases) {
        Voice* const voice = mixer.AddVoice(row.format, static_cast<uint32_t>(row.bytes.size()));
        std::copy(row.bytes.begin(), row.bytes.end(), voice->bytes.get());
        for (const char* time : { "first", "again from the start" }) {
            mixer.Play(*voice, false);
            Samples mixed(row.expected.size(), 0x5555);
            mixer.Mix(mixed.data(), mixed.size() / 2, true);
            EXPECT_EQ(mixed, row.expected) << row.format.bits << " bits x " << row.format.channels << ", " << time;
        }
    }
}

TEST_F(MixerTest, AddsVoicesAndSaturates)
{
    Play({ 30000, -30000, 20000, 100 });
    Play({ 10000, -10000, -20000, 23 });
    EXPECT_EQ(MixMono(4), (Samples{ 32767, -32768, 0, 123 }));
}

TEST(Mixer, InterpolatesAcrossALoopsSeamAndTowardSilenceAtAnEnd)
{
    const struct {
        Samples samples;
        bool loop;
        uint32_t rate;
        Samples expected;
    } cases[] = {
        { { 1, 2, 3 }, true, RATE, { 1, 2, 3, 1, 2, 3, 1 } },
        { { 1000, 3000 }, true, RATE / 2, { 1000, 2000, 3000, 2000, 1000, 2000 } },
        { { 1000, 3000 }, false, RATE / 2, { 1000, 2000, 3000, 1500, 0 } },
        { { 1000, 3000 }, true, RATE * 3 / 2, { 1000, 2000, 3000, 2000, 1000 } }, // the fraction goes on
        { { 1000, 3000 }, false, RATE * 3 / 2, { 1000, 1500, 0 } },               // and starts anew
        { { 77 }, true, 192000, { 77, 77, 77 } },
    };
    for (const auto& row : cases) {
        MixerTest test;
        Voice& voice = test.Add(row.samples, row.rate);
        for (int times = 0; times < (row.loop ? 1 : 2); ++times) {
            test.mixer.Play(voice, row.loop);
            EXPECT_EQ(test.MixMono(row.expected.size()), row.expected) << row.rate << ", " << times;
        }
    }
}

TEST_F(MixerTest, GoesOnFromTheSampleWhereItWasStopped)
{
    Voice& voice = Play(Ramp(1000, 1));
    MixMono(100);
    mixer.Stop(voice);
    MixMono(FADE + 50);
    mixer.Play(voice, false);
    MixMono(FADE);
    EXPECT_EQ(MixMono(200), Ramp(200, 1 + 100 + static_cast<int>(FADE)));
}

TEST_F(MixerTest, StopsAndGoesOnWithoutAClick)
{
    Voice& voice = Play(Samples(4000, 16000), true);
    MixMono(100);
    for (const int from : { 16000, 0 }) {
        from == 0 ? mixer.Play(voice, true) : mixer.Stop(voice);
        const Samples mixed = MixMono(FADE + 10);
        EXPECT_EQ(mixed.back(), 16000 - from);
        EXPECT_LE(WidestStep(mixed, from), 16000 / Mixer::FULL_GAIN + 1);
    }
}

TEST_F(MixerTest, PlayingWhatPlaysOnlyChangesWhetherItLoops)
{
    Voice& voice = Play({ 1, 2, 3 }, true);
    MixMono(4);
    mixer.Play(voice, false);
    EXPECT_EQ(MixMono(4), (Samples{ 2, 3, 0, 0 }));
    mixer.Play(voice, false);
    MixMono(2);
    mixer.Play(voice, true);
    EXPECT_EQ(MixMono(4), (Samples{ 3, 1, 2, 3 }));
}

TEST_F(MixerTest, GoesOnSilentlyWhileNotAudible)
{
    Play(Ramp(3000));
    MixMono(100);
    const Samples fading = MixMono(FADE + 100, false);
    EXPECT_LE(WidestStep(fading, 1000), 20);
    EXPECT_EQ(fading.back(), 0);
    MixMono(FADE);
    EXPECT_EQ(MixMono(100), Ramp(100, 200 + 2 * static_cast<int>(FADE)));
}

TEST_F(MixerTest, MixesWhileVoicesComeAndGo)
{
    std::atomic<bool> isMixing = true;
    std::thread device([&] {
        while (isMixing)
            MixMono(64, false);
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
