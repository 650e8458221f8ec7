// Plays a number of frames (1000 unless told otherwise) of the game scene in the real window and message loop, in rain
// and in full screen if told so, and reports how far apart the frames were and what one cost.
//
//     frame_times [FRAMES] [rain] [full]

#include "app/game.h"
#include "app/game_window.h"
#include "app/scenes.h"
#include "app/section_load.h"
#include "game/section_main.h"
#include "menu/section_menu.h"

#include <algorithm>
#include <chrono>
#include <cstdlib>
#include <ctime>
#include <iostream>
#include <string_view>
#include <vector>

namespace
{
/// Loads as the program does, then plays, keeping the clock readings of the frames of play.
class ProbeScene : public CSection
{
public:
    ProbeScene(size_t frameCount, bool inRain) : wanted(frameCount), rains(inRain) {}
    bool SectionBegin() override { return sectionLoad.SectionBegin(); }
    bool SectionEnd() override { return true; }
    bool SectionProcess() override
    {
        if (!statusBarLoaded) {
            const bool loaded = sectionLoad.SectionProcess();
            return statusBarLoaded ? loaded && sectionMain.SectionBegin() : loaded;
        }
        if (times.empty())
            firstClock = std::clock();
        times.push_back(frameTime);
        if (rains)
            sectionMain.pond.snake[0].rainTimer = RAIN_FALLING;
        const auto start = std::chrono::steady_clock::now();
        sectionMain.SectionProcess();
        work += std::chrono::steady_clock::now() - start;
        if (times.size() > wanted) {
            lastClock = std::clock();
            DestroyWindow(gameWindow);
        }
        return true;
    }

    void Report() const
    {
        std::vector<uint32_t> gaps;
        for (size_t i = 1; i < times.size(); ++i)
            gaps.push_back(times[i] - times[i - 1]);
        if (gaps.empty())
            return;
        const auto [least, most] = std::minmax_element(gaps.begin(), gaps.end());
        const double mean = static_cast<double>(times.back() - times.front()) / static_cast<double>(gaps.size());
        const double workMs =
            std::chrono::duration<double, std::milli>(work).count() / static_cast<double>(times.size());
        const double processorMs = 1e3 * static_cast<double>(lastClock - firstClock) / CLOCKS_PER_SEC;
        std::cout << gaps.size() << " frames: mean " << mean << " ms apart, least " << *least << ", most " << *most
                  << "; composing one took " << workMs << " ms, all about it "
                  << processorMs / static_cast<double>(gaps.size()) << " ms of the processor\n";
    }

private:
    static constexpr int RAIN_FALLING = 200; ///< frames of rain left

    size_t wanted;
    bool rains;
    std::clock_t firstClock = 0;
    std::clock_t lastClock = 0;
    std::vector<uint32_t> times;
    std::chrono::steady_clock::duration work{};
};
}

int main(int argc, char** argv)
{
    const auto isGiven = [&](std::string_view word) { return std::find(argv + 1, argv + argc, word) != argv + argc; };
    const int frames = argc > 1 ? std::atoi(argv[1]) : 0;
    ProbeScene probe(frames > 0 ? static_cast<size_t>(frames) : 1000, isGiven("rain"));
    game.windowed = !isGiven("full");
    setenv("XDG_CONFIG_HOME", "/dev/null", 1); // neither read nor change the player's settings
    requestedSection = &probe;
    if (!CreateGameWindow(nullptr))
        return 1;
    const int code = RunMessageLoop();
    probe.Report();
    return code;
}
