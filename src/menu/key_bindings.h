#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

constexpr int KEY_BINDINGS = 8;

/// A steering key: the name of its stored value, its virtual-key code until the player changes it, and the place of its
/// field on the options page.
struct KeyBinding {
    const char* valueName;
    uint32_t defaultKey;
    int x; ///< relative to the page
    int y;
};

/// Player 1, then player 2; each player's four fields form a cross.
constexpr KeyBinding keyBindings[KEY_BINDINGS] = {
    { "Up 1", 38, 78, 88 },     { "Down 1", 40, 78, 128 },   // the arrows
    { "Left 1", 37, 38, 128 },  { "Right 1", 39, 118, 128 }, //
    { "Up 2", 87, 208, 88 },    { "Down 2", 83, 208, 128 },  // W, S, A, D
    { "Left 2", 65, 168, 128 }, { "Right 2", 68, 248, 128 },
};

/// A virtual-key code for each binding, in the order of `keyBindings`.
constexpr std::array<uint32_t, KEY_BINDINGS> DefaultKeys()
{
    std::array<uint32_t, KEY_BINDINGS> keys{};
    for (size_t i = 0; i < keys.size(); ++i)
        keys[i] = keyBindings[i].defaultKey;
    return keys;
}
