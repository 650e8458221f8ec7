#pragma once

#include <cstdint>

/// The state of the moon and of loading, which outlives a game.
struct SceneryState {
    int32_t loadStage = 0;
    bool moonToggle = false; ///< which moon rises this night: set = the first
    int32_t moonY = 1000;    ///< the moon's top edge, pond pixels
};
extern SceneryState scenery;

constexpr int FADE_OUT_START = 125; ///< the pond's `fadeOut` as the end of a game begins
