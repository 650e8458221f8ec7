#include "platform/sdl/window_fixture.h"

#include "gfx/display.h"
#include "platform/gdi.h"
#include "platform/sdl/messages.h"

#include <SDL.h>
#include <algorithm>
#include <cctype>
#include <cstdio>
#include <cstdlib>
#include <map>
#include <sstream>
#include <utility>

namespace
{
const std::map<std::string, Uint16> modifierBits = {
    { "Alt", KMOD_LALT },    { "AltGr", KMOD_RALT }, { "Ctrl", KMOD_LCTRL },
    { "RCtrl", KMOD_RCTRL }, { "Mode", KMOD_MODE },  { "Num", KMOD_NUM },
};
const std::map<char, Uint8> buttons = { { 'L', SDL_BUTTON_LEFT }, { 'R', SDL_BUTTON_RIGHT }, { 'X', SDL_BUTTON_X1 } };
const std::map<std::string, Uint8> windowEvents = {
    { "focus", SDL_WINDOWEVENT_FOCUS_GAINED },  { "blur", SDL_WINDOWEVENT_FOCUS_LOST },
    { "minimised", SDL_WINDOWEVENT_MINIMIZED }, { "maximised", SDL_WINDOWEVENT_MAXIMIZED },
    { "resized", SDL_WINDOWEVENT_RESIZED },     { "exposed", SDL_WINDOWEVENT_EXPOSED },
    { "closeButton", SDL_WINDOWEVENT_CLOSE },
};
const std::map<UINT, std::string> signs = {
    { WM_KEYDOWN, "+" },      { WM_SYSKEYDOWN, "s+" },      { WM_CHAR, "'" },          { WM_KEYUP, "-" },
    { WM_SYSKEYUP, "s-" },    { WM_MOUSEMOVE, "to" },       { WM_LBUTTONDOWN, "L+" },  { WM_LBUTTONUP, "L-" },
    { WM_RBUTTONDOWN, "R+" }, { WM_RBUTTONUP, "R-" },       { WM_SETFOCUS, "focus" },  { WM_KILLFOCUS, "blur" },
    { WM_CLOSE, "close" },    { WM_SYSCOMMAND, "command" }, { WM_DESTROY, "destroy" },
};
/// Bits of a key's or character's word: once, with Alt, held before.
const std::map<uint32_t, const char*> keyWords = {
    { 1, "" }, { 0x20000001, ":Alt" }, { 0x40000001, "*" }, { 0x60000001, ":Alt*" }
};

std::string received; ///< in the frame in the making

std::string Describe(UINT message, WPARAM wParam, LPARAM lParam)
{
    const std::string code = "<" + std::to_string(wParam) + ">";
    const std::string& sign = signs.at(message);
    if (message >= WM_KEYDOWN && message <= WM_SYSKEYUP) {
        const int c = static_cast<int>(wParam);
        const bool isReadable = std::isdigit(c) || std::isupper(c) || (sign == "'" && std::islower(c));
        const uint32_t releaseBits = sign.back() == '-' ? 0xC0000000 : 0;
        return sign + (isReadable ? std::string(1, static_cast<char>(wParam)) : code) +
               keyWords.at(static_cast<uint32_t>(lParam) ^ releaseBits);
    }
    const auto place = [](WORD word) { return std::to_string(static_cast<int16_t>(word)); };
    if (message >= WM_MOUSEMOVE && message <= WM_RBUTTONUP)
        return sign + place(LOWORD(lParam)) + "," + place(HIWORD(lParam)) + (wParam != 0 ? "?" : "");
    return sign + (wParam != 0 ? code : "") + (lParam != 0 ? "?" : "");
}

LRESULT Procedure(HWND target, UINT message, WPARAM wParam, LPARAM lParam)
{
    received += (received.empty() ? "" : " ") + Describe(message, wParam, lParam);
    if (message != WM_DESTROY)
        return DefWindowProcA(target, message, wParam, lParam);
    PostQuitMessage(0);
    return 0;
}

SDL_Event KeyEvent(const std::string& word)
{
    std::istringstream parts(word.substr(1));
    std::string part;
    std::getline(parts, part, ':');
    std::replace(part.begin(), part.end(), '_', ' ');
    SDL_Event event = {};
    event.type = word[0] == '-' ? SDL_KEYUP : SDL_KEYDOWN;
    event.key.repeat = word[0] == '*';
    SDL_Keysym& key = event.key.keysym;
    key.scancode = SDL_GetScancodeFromName(part.c_str());
    key.sym = SDL_GetKeyFromScancode(key.scancode);
    while (std::getline(parts, part, ':'))
        if (part[0] == '=')
            key.sym = SDL_GetKeyFromName(part.c_str() + 1);
        else
            key.mod |= modifierBits.at(part);
    return event;
}

SDL_Event MouseEvent(const std::string& word)
{
    int x = 0;
    int y = 0;
    std::sscanf(word.c_str() + 2, "%d,%d", &x, &y);
    const bool down = word[1] == '+';
    SDL_Event event = {};
    if (word.starts_with("to"))
        event.motion = { SDL_MOUSEMOTION, 0, 0, 0, 0, x, y, 0, 0 };
    else
        event.button = {
            down ? SDL_MOUSEBUTTONDOWN : SDL_MOUSEBUTTONUP, 0, 0, 0, buttons.at(word[0]), down, 1, 0, x, y
        };
    return event;
}

SDL_Event MakeEvent(const std::string& word)
{
    SDL_Event event = {};
    if (std::string("+-*").find(word[0]) != std::string::npos)
        return KeyEvent(word);
    if (word[0] != '"' && !windowEvents.contains(word))
        return MouseEvent(word);
    event.type = SDL_TEXTINPUT;
    SDL_strlcpy(event.text.text, word.c_str() + 1, sizeof event.text.text);
    if (word[0] != '"')
        event.window = { SDL_WINDOWEVENT, 0, 0, windowEvents.at(word), 0, 0, 0, 0, 0 };
    return event;
}
}

void WindowFixture::SetUp()
{
    setenv("SDL_VIDEODRIVER", "dummy", 1);
    setenv("SDL_RENDER_DRIVER", "software", 1);
    WNDCLASSA windowClass = {};
    windowClass.lpfnWndProc = Procedure;
    RegisterClassA(&windowClass);
    window = CreateWindowExA(0, "Test", "Test", WS_THICKFRAME, 0, 0, 640, 480, nullptr, nullptr, nullptr, nullptr);
    ASSERT_TRUE(DisplaySetMode(window, 640, 480, true));
    RunFrames();
}

void WindowFixture::TearDown()
{
    DisplayRelease();
    DestroyWindow(window);
    EXPECT_EQ(GetDC(window), nullptr);
    RunFrames();
}

void WindowFixture::Push(const std::string& word)
{
    SDL_Event event = MakeEvent(word);
    SDL_PushEvent(&event);
}

void WindowFixture::RunMessages()
{
    MSG message = {};
    while (PeekMessageA(&message, nullptr, 0, 0, PM_NOREMOVE))
        if (GetMessageA(&message, nullptr, 0, 0))
            DispatchMessageA(&message);
        else
            received += " quit";
}

std::string WindowFixture::RunFrames()
{
    std::string frames;
    for (RunMessages(); !received.empty(); RunMessages()) {
        frames += (frames.empty() ? "" : " | ") + std::exchange(received, "");
        EndFrameOfMessages();
    }
    return frames;
}
