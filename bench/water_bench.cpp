// A frame of water, calm and with every sample steep, against memcpy of as many bytes as it must read and write and
// against its sample-by-sample form. Names are WATER/FIELD/WHO.
#include "test_images.h"

#include "game/water.h"

#include <algorithm>
#include <cstring>
#include <memory>
#include <random>
#include <string>
#include <vector>

namespace
{
constexpr int FIELD = 480;
constexpr int SAMPLES = FIELD * FIELD;
/// Both heights read, one written; a pixel read and written: ten bytes, of which a copy reads half.
constexpr size_t COPIED_BYTES = SAMPLES * 5;

struct WaterCase {
    const char* name;
    int depth; ///< heights are random up to it
};
constexpr WaterCase cases[] = { { "Calm", 0 }, { "Disturbed", 300 } };

struct Scene {
    CImage first;
    CImage second;
    CImage picture;
    CImage screen;
    std::vector<int16_t> heights;
};

/// One frame from the same heights each time; putting them back, in memory that the frame reads anyway, is part of
/// the time where they are not 0.
Work MakeWater(int depth)
{
    const auto scene = std::make_shared<Scene>();
    scene->first.Create(FIELD, FIELD);
    scene->second.Create(FIELD, FIELD);
    MakeTestImage(scene->picture, FIELD, FIELD, 1);
    MakeTestImage(scene->screen, 640, FIELD, 2);
    std::mt19937 random(3);
    scene->heights.resize(SAMPLES);
    for (int16_t& height : scene->heights)
        height = static_cast<int16_t>(std::uniform_int_distribution(-depth, depth)(random));
    WaterInit(scene->first, scene->second, 5, 3);
    return [scene, depth] {
        if (depth != 0)
            std::ranges::copy(scene->heights, water.current);
        WaterFrame(scene->picture.pixels, 0, 0, FIELD, FIELD, scene->screen.pixels, 160, 0, scene->screen.pitch);
    };
}
}

int main(int argc, char** argv)
{
    for (const WaterCase& each : cases) {
        const std::string name = std::string("Water/") + each.name;
        const int depth = each.depth;
        AddBenchmark(name + "/ours", [depth] { return MakeWater(depth); });
        AddBenchmark(name + "/memcpy", [] { return CopyBytes(COPIED_BYTES); });
        AddPlainBenchmark(name + "/scalar", [depth] { return MakeWater(depth); });
    }
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
