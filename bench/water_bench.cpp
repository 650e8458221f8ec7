// A frame of water, calm, in rain and in strong waves, against memcpy of as many bytes as it must read and write and
// against its sample-by-sample form. Names are WATER/FIELD/WHO.
#include "test_images.h"

#include "game/water.h"

#include <memory>
#include <random>
#include <string>

namespace
{
constexpr int FIELD = 480;
constexpr int SAMPLES = FIELD * FIELD;
/// Both heights read, one written; a pixel read and written: ten bytes, of which a copy reads half.
constexpr size_t COPIED_BYTES = SAMPLES * 5;

/// What falls into the water in each frame.
struct WaterCase {
    const char* name;
    int drops;      ///< as of rain
    int ringPoints; ///< as of a shock wave
};
constexpr WaterCase cases[] = { { "Calm", 0, 0 }, { "Rain", 5, 0 }, { "Waves", 10, 60 } };
constexpr int FRAMES_UNTIL_STEADY = 200;

struct Scene {
    CImage first;
    CImage second;
    CImage picture;
    CImage screen;
    std::mt19937 random{ 3 };

    void Disturb(int times, int radius, int depth)
    {
        for (int i = 0; i < times; ++i) {
            const auto place = random();
            DisturbWater(static_cast<int>(place % FIELD), static_cast<int>(place / FIELD % FIELD), radius, depth);
        }
    }
    void Frame(const WaterCase& given)
    {
        Disturb(given.drops, 4, 170);
        Disturb(given.ringPoints / 4, 4, 255); // of a ring's eight points two are wide
        Disturb(given.ringPoints - given.ringPoints / 4, 2, 255);
        WaterFrame(picture.pixels, 0, 0, FIELD, FIELD, screen.pixels, 160, 0, screen.pitch);
    }
};

Work MakeWater(const WaterCase& given)
{
    const auto scene = std::make_shared<Scene>();
    scene->first.Create(FIELD, FIELD);
    scene->second.Create(FIELD, FIELD);
    MakeTestImage(scene->picture, FIELD, FIELD, 1);
    MakeTestImage(scene->screen, 640, FIELD, 2);
    WaterInit(scene->first, scene->second, 5, 3);
    for (int i = 0; i < FRAMES_UNTIL_STEADY; ++i)
        scene->Frame(given);
    return [scene, &given] { scene->Frame(given); };
}
}

int main(int argc, char** argv)
{
    for (const WaterCase& each : cases) {
        const std::string name = std::string("Water/") + each.name;
        AddBenchmark(name + "/ours", [&each] { return MakeWater(each); });
        AddBenchmark(name + "/memcpy", [] { return CopyBytes(COPIED_BYTES); });
        AddPlainBenchmark(name + "/scalar", [&each] { return MakeWater(each); });
    }
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
