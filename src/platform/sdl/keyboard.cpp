#include "platform/sdl/keyboard.h"

#include "platform/sdl/messages.h"
#include "platform/sdl/zoom.h"

#include <array>
#include <memory>

namespace
{
/// The code under which each key went down, 0 while it is up. Its release has the same one, even if NumLock or the
/// layout changed between.
std::array<int, SDL_NUM_SCANCODES> heldCodes = {};

/// In place of such a code: the key went down as a command of the window's own, and the game hears nothing of it.
constexpr int OWN_COMMAND = -1;

struct ControlCharacter {
    int key;
    WPARAM plain;
    WPARAM withControl;
};

/// What text input leaves out, being no text.
constexpr ControlCharacter controlCharacters[] = {
    { VK_BACK, 0x08, 0x7F },
    { VK_TAB, 0x09, 0 },
    { VK_RETURN, 0x0D, 0x0A },
    { VK_ESCAPE, 0x1B, 0x1B },
};

/// The modifiers, the code and the word of the latest key, for the text that comes behind it.
Uint16 latestModifiers = 0;
int latestCode = 0;
LPARAM latestWord = 0;

/// The right Alt key chooses characters on many layouts, as Mode does: no command then, whatever else is held.
bool ChoosesCharacter(Uint16 modifiers)
{
    return modifiers & (KMOD_RALT | KMOD_MODE);
}

bool IsControl(Uint16 modifiers)
{
    return (modifiers & KMOD_CTRL) && !ChoosesCharacter(modifiers);
}

bool IsAlt(Uint16 modifiers)
{
    return (modifiers & KMOD_LALT) && !ChoosesCharacter(modifiers);
}

/// A system key is meant for the window's own commands, not for the game: F10, and any key with Alt but not Ctrl.
bool IsSystemKey(int code, const SDL_Keysym& key)
{
    const bool alt = IsAlt(key.mod) || key.sym == SDLK_LALT;
    return code == VK_F10 || (alt && !(key.mod & KMOD_CTRL));
}

bool HasLatinLetters()
{
    return SDL_GetScancodeFromKey(SDLK_a) != SDL_SCANCODE_UNKNOWN;
}

LPARAM KeyWord(bool alt, bool wasDown, bool up)
{
    const uint32_t word = 1u | (alt ? 1u << 29 : 0) | (wasDown ? 1u << 30 : 0) | (up ? 1u << 31 : 0);
    return static_cast<LPARAM>(word);
}

void PostCharacter(WPARAM character)
{
    PostToWindow(WM_CHAR, character, latestWord);
}

void PostControlCharacter(int code, bool control)
{
    if (control && code >= 'A' && code <= 'Z')
        return PostCharacter(static_cast<WPARAM>(code & 0x1F));
    for (const ControlCharacter& row : controlCharacters) {
        const WPARAM character = control ? row.withControl : row.plain;
        if (row.key == code && character != 0)
            PostCharacter(character);
    }
}

bool IsOwnCommand(const SDL_Keysym& key)
{
    return IsControl(key.mod) && !(key.mod & KMOD_LALT) && HandleZoomKey(key);
}

int CodeOfPress(const SDL_Keysym& key)
{
    return IsOwnCommand(key) ? OWN_COMMAND : VirtualKey(key, HasLatinLetters());
}

void PressKey(const SDL_Keysym& key, bool repeatedBySystem)
{
    int& held = heldCodes[key.scancode];
    const int code = held != 0 ? held : CodeOfPress(key);
    latestCode = code;
    latestWord = KeyWord(IsAlt(key.mod), held != 0 || repeatedBySystem, false);
    held = code;
    if (code == 0 || code == OWN_COMMAND)
        return;
    const bool system = IsSystemKey(code, key);
    PostToWindow(system ? WM_SYSKEYDOWN : WM_KEYDOWN, static_cast<WPARAM>(code), latestWord);
    if (!system)
        PostControlCharacter(code, IsControl(key.mod));
}

void ReleaseKey(const SDL_Keysym& key)
{
    int& held = heldCodes[key.scancode];
    const int code = held;
    held = 0;
    if (code == 0 || code == OWN_COMMAND)
        return;
    PostToWindow(IsSystemKey(code, key) ? WM_SYSKEYUP : WM_KEYUP, static_cast<WPARAM>(code),
                 KeyWord(IsAlt(key.mod), true, true));
}
}

void HandleKey(const SDL_KeyboardEvent& event)
{
    if (event.keysym.scancode >= SDL_NUM_SCANCODES)
        return;
    latestModifiers = event.keysym.mod;
    event.type == SDL_KEYDOWN ? PressKey(event.keysym, event.repeat != 0) : ReleaseKey(event.keysym);
}

void HandleText(const char* text)
{
    if (IsControl(latestModifiers) || IsAlt(latestModifiers) || latestCode == OWN_COMMAND)
        return;
    const std::unique_ptr<char, decltype(&SDL_free)> ansi(
        SDL_iconv_string("CP1252", "UTF-8", text, SDL_strlen(text) + 1), SDL_free);
    for (const char* c = ansi.get(); c && *c; ++c)
        PostCharacter(static_cast<unsigned char>(*c));
}

void TapKey(int code, char character)
{
    PostToWindow(WM_KEYDOWN, static_cast<WPARAM>(code), KeyWord(false, false, false));
    if (character != 0)
        PostToWindow(WM_CHAR, static_cast<WPARAM>(character), KeyWord(false, false, false));
    PostToWindow(WM_KEYUP, static_cast<WPARAM>(code), KeyWord(false, true, true));
}

void TapKeyFirst(int code)
{
    PostFirstToWindow(WM_KEYUP, static_cast<WPARAM>(code), KeyWord(false, true, true));
    PostFirstToWindow(WM_KEYDOWN, static_cast<WPARAM>(code), KeyWord(false, false, false));
}

void ReleaseHeldKeys()
{
    for (int& held : heldCodes) {
        // Never as a system key: a release that nobody meant must not switch the display.
        if (held != 0 && held != OWN_COMMAND)
            PostToWindow(WM_KEYUP, static_cast<WPARAM>(held), KeyWord(false, true, true));
        held = 0;
    }
    latestModifiers = 0;
    latestCode = 0;
}
