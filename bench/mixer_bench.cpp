// A second of sound from as many voices as the game has, all playing at once. Names are Mix/VOICES.
#include "test_images.h"

#include "platform/posix/mixer.h"

#include <algorithm>
#include <memory>
#include <random>
#include <string>
#include <vector>

namespace
{
constexpr uint32_t RATE = 22050; ///< frames in a second of output
constexpr int VOICES = 30;

struct MixCase {
    const char* name;
    PcmFormat format;
};
constexpr MixCase cases[] = {
    { "30 mono", { 1, 16, RATE } },
    { "30 stereo", { 2, 16, RATE } },
    { "30 stereo from 32000 Hz", { 2, 16, 32000 } },
};

struct Output {
    Mixer mixer{ RATE };
    std::vector<int16_t> samples = std::vector<int16_t>(RATE * 2);
};

/// Every voice loops over noise of its own; all are of different lengths, so that they end at different times.
Work MakeMix(const PcmFormat& format)
{
    const auto output = std::make_shared<Output>();
    std::mt19937 random(1);
    for (uint32_t i = 0; i < VOICES; ++i) {
        Voice* voice = output->mixer.AddVoice(format, format.FrameBytes() * (RATE / 2 + 100 * i));
        std::generate_n(voice->bytes.get(), voice->byteCount, [&random] { return static_cast<uint8_t>(random()); });
        output->mixer.Play(*voice, true);
    }
    return [output] { output->mixer.Mix(output->samples.data(), RATE, true); };
}
}

int main(int argc, char** argv)
{
    for (const MixCase& each : cases)
        AddBenchmark(std::string("Mix/") + each.name, [&each] { return MakeMix(each.format); });
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
