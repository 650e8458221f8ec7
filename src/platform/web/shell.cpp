#include "platform/shell.h"

#include "platform/web/page.h"

/// The game runs in the one document it ever opens: its home page.
HINSTANCE ShellExecuteA(HWND, LPCSTR, LPCSTR, LPCSTR, LPCSTR, int)
{
    constexpr intptr_t STARTED = 33;
    PageStepBack();
    return reinterpret_cast<HINSTANCE>(STARTED);
}
