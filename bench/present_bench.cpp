// A frame scaled to screens of several sizes, against memcpy of as many bytes as it writes, its pixel-by-pixel form and
// the nearest routines of other libraries, and shown in a window of that size, by ourselves and by SDL's renderer.
// Names are Scale/SIZE/WHO and Show/SIZE/HOW. The windows are on SDL's driver without a screen unless SDL_VIDEODRIVER
// says otherwise.
#include "present_peers.h"

#include "platform/sdl/frame_fit.h"
#include "platform/sdl/frame_output.h"
#include "platform/sdl/frame_scaler.h"

#include <algorithm>
#include <cstdlib>
#include <memory>
#include <string>

namespace
{
constexpr SDL_Point screens[] = { { 640, 480 }, { 1280, 960 }, { 1920, 1080 }, { 3840, 2160 } };

Work ScaleFrame(SDL_Point picture)
{
    struct Scene {
        CImage frame;
        CFrameScaler scaler;
        std::shared_ptr<uint8_t> target;
    };
    const auto scene = std::make_shared<Scene>();
    MakeTestImage(scene->frame, FRAME_SIZE.x, FRAME_SIZE.y, 1);
    scene->scaler.SetSizes(FRAME_SIZE, picture);
    scene->target = MakeBytes(static_cast<size_t>(picture.x) * static_cast<size_t>(picture.y) * 4);
    return [scene, picture] {
        scene->scaler.ScaleRows(scene->frame.pixels,
                                { 0, static_cast<size_t>(picture.y), scene->target.get(), picture.x * 4 });
    };
}

void AddScaling(const std::string& size, SDL_Point screen)
{
    const SDL_Rect place = FitFrame(FRAME_SIZE, screen);
    const SDL_Point picture = { place.w, place.h };
    const std::string name = "Scale/" + size;
    AddBenchmark(name + "/ours", [picture] { return ScaleFrame(picture); });
    AddPlainBenchmark(name + "/scalar", [picture] { return ScaleFrame(picture); });
    AddBenchmark(name + "/memcpy", [picture] { return CopyBytes(static_cast<size_t>(picture.x * picture.y) * 4); });
    AddBenchmark(name + "/SDL2", [picture] { return ScaleWithSdl(picture); });
    AddBenchmark(name + "/pixman", [picture] { return ScaleWithPixman(picture); });
    AddBenchmark(name + "/libyuv", [picture] { return ScaleWithLibyuv(picture); });
}

using OpenOutput = std::unique_ptr<CFrameOutput> (*)(SDL_Window* window);

/// Times frames of which every row has changed.
void TimeShowing(benchmark::State& state, SDL_Point screen, OpenOutput open)
{
    SDL_Window* const window = SDL_CreateWindow("Tervalis bench", 0, 0, screen.x, screen.y, SDL_WINDOW_BORDERLESS);
    CImage picture;
    MakeTestImage(picture, FRAME_SIZE.x, FRAME_SIZE.y, 1);
    KeptFrame frame;
    frame.SetSize(FRAME_SIZE);
    frame.Update({ 0, 0, FRAME_SIZE.x, FRAME_SIZE.y }, picture.pixels, picture.pitch);
    if (const std::unique_ptr<CFrameOutput> output = open(window)) {
        output->Show(frame, true); // the window's memory is new to the first one
        for (auto _ : state) {
            std::fill(frame.changed.begin(), frame.changed.end(), true);
            output->Show(frame, false);
        }
    } else {
        state.SkipWithError(SDL_GetError());
    }
    SDL_DestroyWindow(window);
}

void AddShowing(const std::string& name, SDL_Point screen, OpenOutput open)
{
    benchmark::RegisterBenchmark(name.c_str(),
                                 [screen, open](benchmark::State& state) { TimeShowing(state, screen, open); })
        ->MeasureProcessCPUTime() // a renderer can have threads of its own
        ->Unit(benchmark::kMicrosecond);
}
}

int main(int argc, char** argv)
{
    setenv("SDL_VIDEODRIVER", "dummy", 0);
    SDL_SetHint(SDL_HINT_FRAMEBUFFER_ACCELERATION, "0");
    if (SDL_Init(SDL_INIT_VIDEO) != 0)
        return 1;
    for (const SDL_Point screen : screens) {
        const std::string size = std::to_string(screen.x) + "x" + std::to_string(screen.y);
        AddScaling(size, screen);
        AddShowing("Show/" + size + "/ours", screen, OpenSurfaceOutput);
        AddShowing("Show/" + size + "/renderer", screen, OpenRendererOutput);
    }
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    SDL_Quit();
    return 0;
}
