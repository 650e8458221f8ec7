#include "app/input.h"

#include <algorithm>

bool InputState::TakeKey(std::initializer_list<int> wanted)
{
    if (std::find(wanted.begin(), wanted.end(), lastKeyDown) == wanted.end())
        return false;
    lastKeyDown = 0;
    return true;
}

void InputState::DropPresses()
{
    mouseLeftDown = false;
    lastKeyDown = 0;
    lastChar = 0;
}
