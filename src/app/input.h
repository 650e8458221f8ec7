#pragma once

#include <initializer_list>

/// Mouse and keyboard as the window procedure last saw them; it alone writes here. Readers consume a key by setting
/// `lastKeyDown` to 0 and a click by clearing `mouseLeftDown`, so that one press acts once.
struct InputState {
    /// Consumes the last key pressed when it is one of these.
    bool TakeKey(std::initializer_list<int> wanted);
    /// Forgets the presses that nobody took. Called when a page or panel opens or closes, so that none of them acts on
    /// what shows next.
    void DropPresses();

    int mouseX = 0; ///< client pixels; negative left of or above the window while a button is held
    int mouseY = 0;
    bool mouseLeftDown = false;
    bool mouseRightDown = false;
    int lastKeyDown = 0; ///< virtual-key code of the latest key press
    int lastKeyUp = 0;   ///< virtual-key code of the latest key release
    char lastChar = 0;   ///< latest character, in the ANSI code page
    bool hasFocus = true;
};

extern InputState input;
