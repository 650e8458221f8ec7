#include "platform/web/page.h"
#include "platform/window.h"

/// The text stays on the page, and the program goes on at once: it cannot wait for the player here.
int MessageBoxA(HWND, LPCSTR text, LPCSTR, UINT)
{
    constexpr int IDOK = 1;
    PageShowMessage(text);
    return IDOK;
}
