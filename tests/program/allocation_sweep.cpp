// Runs a whole session of the program again and again (start, menu, options, a game, ranking, end), each time with
// another request for memory that finds none, once alone and once with all that follow. Every run must end by itself
// with code 0, either at the session's end or having said why, and leave as many settings as it found.
//
//     allocation_sweep [STEP]     every STEP-th request; by default all of them

#include "app/game.h"
#include "app/scenes.h"
#include "platform/kernel.h"
#include "platform/multimedia.h"
#include "platform/sdl/messages.h"
#include "support/allocations.h"
#include "support/temp_folder.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <string>

#include <sys/mman.h>
#include <sys/wait.h>
#include <unistd.h>

namespace
{
constexpr unsigned RUN_SECONDS = 300; ///< of a run that hangs
constexpr int LAST_FRAME = 90;
constexpr char SETTINGS[] = "config/Tervalis/settings.toml";

/// What a run tells of itself.
struct Progress {
    int frame;
    int requests;
};
Progress* progress = nullptr;

/// What the window hears before a frame.
struct Message {
    int frame;
    UINT message;
    WPARAM wParam;
    LPARAM lParam;
};
const Message session[] = {
    { 16, WM_LBUTTONDOWN, 0, MAKELPARAM(500, 285) }, // options
    { 17, WM_LBUTTONUP, 0, MAKELPARAM(500, 285) },
    { 20, WM_KEYDOWN, VK_RETURN, 0 },
    { 26, WM_LBUTTONDOWN, 0, MAKELPARAM(200, 170) }, // a game
    { 27, WM_LBUTTONUP, 0, MAKELPARAM(200, 170) },
    { 30, WM_KEYDOWN, VK_UP, 0 },
    { 40, WM_SYSCOMMAND, SC_MAXIMIZE, 0 }, // to full screen
    { 70, WM_CHAR, 'T', 0 },
    { 76, WM_KEYDOWN, VK_RETURN, 0 },
    { LAST_FRAME, WM_CLOSE, 0, 0 },
};
constexpr int GAME_ENDS = 60;

/// Plays the session in a process of its own, whose request number `request` finds no memory. Its exit code, or minus
/// the signal that ended it.
int Run(const TempFolder& folder, int request, bool andAllBehind)
{
    *progress = {};
    const pid_t child = fork();
    if (child == 0) {
        alarm(RUN_SECONDS);
        if (!std::freopen((folder.Path() + "/said").c_str(), "w", stderr))
            _exit(100);
        FailAllocation(request, andAllBehind);
        const int code = RunGame(nullptr);
        std::exit(code); // with the destructors, which store the settings
    }
    int status = 0;
    waitpid(child, &status, 0);
    return WIFSIGNALED(status) ? -WTERMSIG(status) : WEXITSTATUS(status);
}

auto LineCount(const std::string& text)
{
    return std::count(text.begin(), text.end(), '\n');
}

/// False, with a line that says so, when the run did not end as it should.
bool IsGood(const TempFolder& folder, int request, bool andAllBehind, const std::string& settings)
{
    folder.Write(SETTINGS, settings);
    const int code = Run(folder, request, andAllBehind);
    const std::string said = folder.Read("said");
    const bool hasEnded = progress->frame >= LAST_FRAME || !said.empty();
    const bool areWhole = LineCount(folder.Read(SETTINGS)) == LineCount(settings);
    if (code == 0 && hasEnded && areWhole)
        return true;
    std::printf("request %d%s: code %d at frame %d, said: %s\n%s", request, andAllBehind ? " and all behind" : "", code,
                progress->frame, said.c_str(), folder.Read(SETTINGS).c_str());
    std::fflush(stdout); // or the next child would say it again
    return false;
}
}

/// The program's clock: a frame is due at each reading.
DWORD timeGetTime()
{
    ++progress->frame;
    for (const Message& row : session)
        if (row.frame == progress->frame)
            PostToWindow(row.message, row.wParam, row.lParam);
    if (progress->frame == GAME_ENDS) {
        EnterRanking(700);
        RequestMenu();
    }
    progress->requests = AllocationCount();
    return static_cast<DWORD>(progress->frame) * 40;
}

void Sleep(DWORD) {}

int main(int argc, char** argv)
{
    const int step = argc > 1 ? std::max(1, std::atoi(argv[1])) : 1;
    const TempFolder folder;
    setenv("SDL_VIDEODRIVER", "dummy", 1);
    setenv("SDL_AUDIODRIVER", "dummy", 1);
    setenv("XDG_CONFIG_HOME", (folder.Path() + "/config").c_str(), 1);
    setenv("XDG_RUNTIME_DIR", folder.Path().c_str(), 1);
    progress = static_cast<Progress*>(
        mmap(nullptr, sizeof(Progress), PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0));
    const int before = AllocationCount();
    int failures = Run(folder, 0, false) != 0 || progress->frame != LAST_FRAME;
    const int requests = progress->requests - before;
    std::string settings = folder.Read(SETTINGS);
    failures += settings.find("\"T\"") == std::string::npos;             // the session no longer comes to the ranking
    settings.replace(settings.find("Windowed = 0"), 12, "Windowed = 1"); // clicks are meant for a window
    for (int request = 1; request <= requests + step; request += step)
        for (const bool andAllBehind : { false, true })
            failures += !IsGood(folder, request, andAllBehind, settings);
    std::printf("%d requests: %d failures\n", requests, failures);
    return failures != 0;
}
