#pragma once

#include "platform/window.h"

extern HWND gameWindow;
extern HINSTANCE gameInstance;
