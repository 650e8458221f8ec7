#include "app/mode_switch.h"

#include "app/log.h"
#include "gfx/display.h"

void ApplyDisplayMode(bool windowed)
{
    if (windowed != isWindowed)
        SwitchDisplayMode(displayWindow, displayWidth, displayHeight, windowed);
}

void SwitchDisplayMode(HWND window, int width, int height, bool windowed)
{
    WriteLog(windowed ? "Full Screen -> Windowed" : "Windowed -> Full Screen");
    if (!DisplaySetMode(window, width, height, windowed))
        DisplaySetMode(window, width, height, !windowed);
}
