#include "platform/window.h"

int main()
{
    char commandLine[] = ""; // the game takes none
    return WinMain(nullptr, nullptr, commandLine, SW_SHOWNORMAL);
}
