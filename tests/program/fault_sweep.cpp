// Runs a whole session of the program again and again (start, menu, options, a game, ranking, end), each time with
// another request for memory that finds none, or another call of the system or of SDL that fails, once alone and once
// with all that follow. Every run must end by itself with code 0, either at the session's end or having said why, leave
// as many settings as it found, and no file open.
//
//     fault_sweep [MEMORY_STEP [CALL_STEP]]     every STEP-th of them; by default all

#include "app/game.h"
#include "app/scenes.h"
#include "platform/kernel.h"
#include "platform/multimedia.h"
#include "platform/sdl/messages.h"
#include "support/faults.h"
#include "support/settings_store.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <iterator>
#include <string>

#include <fcntl.h>
#include <sys/mman.h>
#include <sys/wait.h>
#include <unistd.h>

namespace
{
constexpr unsigned RUN_SECONDS = 300; ///< of a run that hangs
constexpr int LAST_FRAME = 90;
constexpr int CALLS_AT_THE_END = 20; ///< behind the last frame, where settings are stored

constexpr Calls KINDS[] = { Calls::MEMORY, Calls::FILES, Calls::SDL };
constexpr const char* KIND_NAMES[] = { "request for memory", "file call", "SDL call" };

/// A call that fails.
struct Fault {
    Calls kind;
    int number;
    bool andAllBehind;
};

/// What a run tells of itself.
struct Progress {
    int frame;
    int calls[std::size(KINDS)];
    int openFiles; ///< at the end
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

int CountOpenFiles()
{
    int count = 0;
    for (int file = 0; file < 256; ++file)
        count += fcntl(file, F_GETFD) != -1;
    return count;
}

/// Plays the session in a process of its own. Its exit code, or minus the signal that ended it.
int Run(const TempFolder& folder, const Fault& fault)
{
    *progress = {};
    const pid_t child = fork();
    if (child == 0) {
        alarm(RUN_SECONDS);
        if (!std::freopen((folder.Path() + "/said").c_str(), "w", stderr))
            _exit(100);
        FailCall(fault.kind, fault.number, fault.andAllBehind);
        const int code = RunGame(nullptr);
        std::atexit([] { progress->openFiles = CountOpenFiles(); });
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
bool IsGood(const TempFolder& folder, const Fault& fault, const std::string& settings, int openFiles)
{
    folder.Write(SETTINGS_FILE, settings);
    const int code = Run(folder, fault);
    const std::string said = folder.Read("said");
    const std::string left = folder.Read(SETTINGS_FILE);
    const bool hasEnded = progress->frame >= LAST_FRAME || !said.empty();
    const bool areWhole = LineCount(left) == LineCount(settings);
    if (code == 0 && hasEnded && areWhole && progress->openFiles <= openFiles)
        return true;
    std::printf("%s %d%s: code %d at frame %d, %d files open, said: %s\n%s", KIND_NAMES[static_cast<int>(fault.kind)],
                fault.number, fault.andAllBehind ? " and all behind" : "", code, progress->frame, progress->openFiles,
                said.c_str(), left.c_str());
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
    for (size_t i = 0; i < std::size(KINDS); ++i)
        progress->calls[i] = CallCount(KINDS[i]);
    return static_cast<DWORD>(progress->frame) * 40;
}

void Sleep(DWORD) {}

int main(int argc, char** argv)
{
    const int memoryStep = argc > 1 ? std::max(1, std::atoi(argv[1])) : 1;
    const int callStep = argc > 2 ? std::max(1, std::atoi(argv[2])) : 1;
    std::setvbuf(stdout, nullptr, _IONBF, 0); // or every child would say it again
    const TempFolder folder;
    setenv("SDL_VIDEODRIVER", "dummy", 1);
    setenv("SDL_AUDIODRIVER", "dummy", 1);
    UseFreshSettings(folder);
    setenv("XDG_RUNTIME_DIR", folder.Path().c_str(), 1);
    progress = static_cast<Progress*>(
        mmap(nullptr, sizeof(Progress), PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0));
    int failures = Run(folder, {}) != 0 || progress->frame != LAST_FRAME;
    const Progress whole = *progress;
    std::string settings = folder.Read(SETTINGS_FILE);
    failures += settings.find("\"T\"") == std::string::npos;             // the session no longer comes to the ranking
    settings.replace(settings.find("Windowed = 0"), 12, "Windowed = 1"); // clicks are meant for a window
    for (const Calls kind : KINDS) {
        const int calls = whole.calls[static_cast<int>(kind)] + CALLS_AT_THE_END;
        const int step = kind == Calls::MEMORY ? memoryStep : callStep;
        const int before = failures;
        for (int number = 1; number <= calls; number += step)
            for (const bool andAllBehind : { false, true })
                failures += !IsGood(folder, { kind, number, andAllBehind }, settings, whole.openFiles);
        std::printf("every %d. %s of %d: %d failures\n", step, KIND_NAMES[static_cast<int>(kind)], calls,
                    failures - before);
    }
    return failures != 0;
}
