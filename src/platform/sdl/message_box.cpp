#include "platform/sdl/screen.h"
#include "platform/sdl/signals.h"
#include "platform/window.h"

#include <SDL.h>
#include <atomic>
#include <csignal>
#include <cstdio>
#include <iterator>
#include <new>
#include <pthread.h>
#include <sys/mman.h>
#include <sys/prctl.h>
#include <unistd.h>

namespace
{
constexpr int IDOK = 1;
constexpr int ENDING_SIGNALS[] = { SIGTERM, SIGINT, SIGHUP };

/// SDL shows a box in a process of its own and waits for it. Both see this record.
struct BoxProcess {
    std::atomic<pid_t> id = 0; ///< 0 until it has begun
    std::atomic<bool> mustEnd = false;
};

BoxProcess* boxProcess = nullptr; ///< null while no box is open

/// In the new process. Whatever ends the program ends it too.
void BeginBoxProcess()
{
    if (!boxProcess)
        return;
    for (const int signal : ENDING_SIGNALS)
        SetSignalHandler(signal, SIG_DFL);
    prctl(PR_SET_PDEATHSIG, SIGTERM);
    boxProcess->id = getpid();
    if (boxProcess->mustEnd)
        _exit(128 + SIGTERM); // as a shell would say it; SDL takes small codes for answers
}

const int boxProcessesBegin = pthread_atfork(nullptr, nullptr, BeginBoxProcess);

void EndBoxProcess(int)
{
    boxProcess->mustEnd = true;
    if (const pid_t id = boxProcess->id)
        kill(id, SIGTERM);
}

/// While it lives the signals that ask the program to end close the box, and the program then ends as usual. Nobody
/// would handle the events that SDL makes of them otherwise.
class BoxSignals
{
public:
    BoxSignals()
    {
        void* memory = mmap(nullptr, sizeof(BoxProcess), PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0);
        if (memory == MAP_FAILED)
            return;
        boxProcess = new (memory) BoxProcess;
        for (size_t i = 0; i < std::size(ENDING_SIGNALS); ++i)
            before[i] = SetSignalHandler(ENDING_SIGNALS[i], EndBoxProcess);
    }
    ~BoxSignals()
    {
        if (!boxProcess)
            return;
        for (size_t i = 0; i < std::size(ENDING_SIGNALS); ++i)
            SetSignalHandler(ENDING_SIGNALS[i], before[i]);
        munmap(boxProcess, sizeof *boxProcess);
        boxProcess = nullptr;
    }
    BoxSignals(const BoxSignals&) = delete;
    BoxSignals& operator=(const BoxSignals&) = delete;

private:
    SignalHandler before[std::size(ENDING_SIGNALS)] = {};
};
}

int MessageBoxA(HWND, LPCSTR text, LPCSTR title, UINT type)
{
    const Uint32 flags = type & MB_ICONERROR ? SDL_MESSAGEBOX_ERROR : SDL_MESSAGEBOX_INFORMATION;
    const BoxSignals signals;
    if (!HasScreen() || SDL_ShowSimpleMessageBox(flags, title, text, nullptr) != 0)
        std::fprintf(stderr, "%s: %s\n", title, text);
    return IDOK;
}
