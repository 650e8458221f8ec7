// Plays a number of frames (1000 unless told otherwise) of the game scene in the real window and message loop, and
// reports how far apart the frames were and what one cost.
//
//     frame_times [FRAMES]

#include "app/game.h"
#include "app/game_window.h"
#include "app/scenes.h"
#include "app/section_load.h"
#include "game/section_main.h"
#include "menu/section_menu.h"

#include <algorithm>
#include <chrono>
#include <cstdlib>
#include <iostream>
#include <vector>

namespace
{
/// Loads as the program does, then plays, keeping the clock readings of the frames of play.
class ProbeScene : public CSection
{
public:
    explicit ProbeScene(size_t frameCount) : wanted(frameCount) {}
    bool SectionBegin() override { return sectionLoad.SectionBegin(); }
    bool SectionEnd() override { return true; }
    bool SectionProcess() override
    {
        if (!statusBarLoaded) {
            const bool loaded = sectionLoad.SectionProcess();
            return statusBarLoaded ? loaded && sectionMain.SectionBegin() : loaded;
        }
        times.push_back(frameTime);
        const auto start = std::chrono::steady_clock::now();
        sectionMain.SectionProcess();
        work += std::chrono::steady_clock::now() - start;
        if (times.size() > wanted)
            DestroyWindow(gameWindow);
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
        std::cout << gaps.size() << " frames: mean " << mean << " ms apart, least " << *least << ", most " << *most
                  << "; composing one took " << workMs << " ms\n";
    }

private:
    size_t wanted;
    std::vector<uint32_t> times;
    std::chrono::steady_clock::duration work{};
};
}

int main(int argc, char** argv)
{
    ProbeScene probe(argc > 1 ? static_cast<size_t>(std::atoi(argv[1])) : 1000);
    setenv("XDG_CONFIG_HOME", "/dev/null", 1); // neither read nor change the player's settings
    requestedSection = &probe;
    if (!CreateGameWindow(nullptr))
        return 1;
    const int code = RunMessageLoop();
    probe.Report();
    return code;
}
