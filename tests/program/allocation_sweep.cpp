// Runs a whole session of the program again and again (start, menu, options, a game, ranking, end), each time with
// another request for memory that finds none, once alone and once with all that follow. Every run must end by itself
// with code 0, either at the session's end or having said why, and leave settings made of whole values.
//
//     allocation_sweep [STEP [FIRST]]     every STEP-th request from FIRST on; by default all of them

#include "app/game.h"
#include "app/scenes.h"
#include "platform/kernel.h"
#include "platform/multimedia.h"
#include "support/allocations.h"
#include "support/temp_folder.h"

#include <SDL.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <sstream>
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

void Push(SDL_EventType type, SDL_Keycode key, int x, int y)
{
    SDL_Event event = {};
    event.type = type;
    if (type == SDL_KEYDOWN || type == SDL_KEYUP) {
        event.key.state = type == SDL_KEYDOWN ? SDL_PRESSED : SDL_RELEASED;
        event.key.keysym.scancode = SDL_GetScancodeFromKey(key);
        event.key.keysym.sym = key;
    } else if (type == SDL_MOUSEBUTTONDOWN || type == SDL_MOUSEBUTTONUP) {
        event.button.state = type == SDL_MOUSEBUTTONDOWN ? SDL_PRESSED : SDL_RELEASED;
        event.button.button = SDL_BUTTON_LEFT;
        event.button.x = x;
        event.button.y = y;
    } else if (type == SDL_WINDOWEVENT) {
        event.window.event = SDL_WINDOWEVENT_MAXIMIZED;
    } else if (type == SDL_TEXTINPUT) {
        event.text.text[0] = static_cast<char>(key);
    }
    SDL_PushEvent(&event);
}

void Press(SDL_Keycode key)
{
    Push(SDL_KEYDOWN, key, 0, 0);
    Push(SDL_KEYUP, key, 0, 0);
}

void Click(int x, int y)
{
    Push(SDL_MOUSEBUTTONDOWN, 0, x, y);
    Push(SDL_MOUSEBUTTONUP, 0, x, y);
}

/// What the player does before a frame.
void Act(int frame)
{
    switch (frame) {
    case 16:
        return Click(500, 285); // options
    case 20:
        return Press(SDLK_RETURN);
    case 26:
        return Click(200, 170); // a game
    case 30:
        return Press(SDLK_UP);
    case 40:
        return Push(SDL_WINDOWEVENT, 0, 0, 0); // to full screen
    case 60:                                   // as the end of a game does
        EnterRanking(700);
        return RequestMenu();
    case 70:
        Push(SDL_KEYDOWN, SDLK_t, 0, 0);
        Push(SDL_TEXTINPUT, 'T', 0, 0);
        return Push(SDL_KEYUP, SDLK_t, 0, 0);
    case 76:
        return Press(SDLK_RETURN);
    case LAST_FRAME:
        return Push(SDL_QUIT, 0, 0, 0);
    default:
        break;
    }
}

/// Whether the settings have all their lines, each of them as before or after the session, or with a name yet untyped.
bool AreWhole(const std::string& settings, const std::string& before, const std::string& after)
{
    const std::string known = before + after + "\"Name 2\" = \"\"\n";
    std::istringstream lines(settings);
    int count = 0;
    for (std::string line; std::getline(lines, line); ++count)
        if (known.find(line + "\n") == std::string::npos)
            return false;
    return count == std::ranges::count(before, '\n');
}

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

/// False, with a line that says so, when the run did not end as it should.
bool IsGood(const TempFolder& folder, int request, bool andAllBehind, const std::string& before,
            const std::string& after)
{
    folder.Write(SETTINGS, before);
    const int code = Run(folder, request, andAllBehind);
    const std::string said = folder.Read("said");
    const bool hasEnded = progress->frame >= LAST_FRAME || !said.empty();
    if (code == 0 && hasEnded && AreWhole(folder.Read(SETTINGS), before, after))
        return true;
    std::printf("request %d%s: code %d at frame %d, said: %s\n%s", request, andAllBehind ? " and all behind" : "", code,
                progress->frame, said.c_str(), code == 0 && hasEnded ? folder.Read(SETTINGS).c_str() : "");
    std::fflush(stdout);
    return false;
}
}

/// The program's clock: a frame is due at each reading.
DWORD timeGetTime()
{
    Act(++progress->frame);
    progress->requests = AllocationCount();
    return static_cast<DWORD>(progress->frame) * 40;
}

void Sleep(DWORD) {}

int main(int argc, char** argv)
{
    const int step = argc > 1 ? std::max(1, std::atoi(argv[1])) : 1;
    const int first = argc > 2 ? std::max(1, std::atoi(argv[2])) : 1;
    const TempFolder folder;
    setenv("SDL_VIDEODRIVER", "dummy", 1);
    setenv("SDL_AUDIODRIVER", "dummy", 1);
    setenv("XDG_CONFIG_HOME", (folder.Path() + "/config").c_str(), 1);
    setenv("XDG_RUNTIME_DIR", folder.Path().c_str(), 1);
    progress = static_cast<Progress*>(
        mmap(nullptr, sizeof(Progress), PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0));
    const int before = AllocationCount();
    // The first makes the settings, the second changes them. Clicks are meant for a window.
    int failures = Run(folder, 0, false) != 0;
    std::string old = folder.Read(SETTINGS);
    old.replace(old.find("Windowed = 0"), 12, "Windowed = 1");
    folder.Write(SETTINGS, old);
    failures += Run(folder, 0, false) != 0 || progress->frame != LAST_FRAME;
    const std::string changed = folder.Read(SETTINGS);
    const int requests = progress->requests - before;
    int runs = 0;
    for (int request = first; request <= requests + step; request += step) {
        for (const bool andAllBehind : { false, true }) {
            failures += !IsGood(folder, request, andAllBehind, old, changed);
            ++runs;
        }
    }
    std::printf("%d runs over %d requests: %d failures\n", runs, requests, failures);
    return failures != 0 || requests < 100 || old == changed;
}
