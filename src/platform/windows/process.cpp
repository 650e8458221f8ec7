#include <windows.h>

#include <mmsystem.h>
#include <shobjidl.h>

namespace
{
constexpr UINT CLOCK_MS = 1; ///< else the clock steps by up to 16 ms, and frames of 40 ms would take 47

/// What the program asks of the system while it runs.
struct ProcessRequests {
    ProcessRequests()
    {
        timeBeginPeriod(CLOCK_MS);
        SetCurrentProcessExplicitAppUserModelID(TERVALIS_ID); // the task bar's name for it, as its shortcut has it
    }
    ~ProcessRequests() { timeEndPeriod(CLOCK_MS); }
    ProcessRequests(const ProcessRequests&) = delete;
    ProcessRequests& operator=(const ProcessRequests&) = delete;
};

const ProcessRequests processRequests;
}
