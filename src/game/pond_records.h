#pragma once

#include <cstdint>

// The things on the pond.

/// One cell of the pond: nothing, a growing berry, a ripe berry or a stone.
struct Cell {
    int32_t x = 0; ///< top-left corner, pond pixels
    int32_t y = 0;
    bool occupied = false;
    bool ripe = false;     ///< with `occupied`: a ripe berry
    int32_t colour = 0;    ///< of a berry, 0..5
    int32_t age = 0;       ///< a stone's order number: larger is newer
    int32_t growth = 0;    ///< frames of growth left, 28..1; 0 when ripe or a stone
    bool splashed = false; ///< a ripe berry's landing splash has been made

    bool IsStone() const { return occupied && !ripe && growth == 0; }
    bool IsFalling() const { return occupied && growth > 0; }
    bool IsRipeBerry() const { return occupied && ripe; }
    /// A stone or a ripe berry: what lasers and shock wave strike.
    bool IsLanded() const { return occupied && growth == 0; }
};

constexpr int GROWTH_START = 28; ///< frames of growth of a new berry

struct Laser {
    bool active = false;
    int32_t x = 0; ///< pond pixels
    int32_t y = 0;
    int32_t heading = 0;
    int32_t frame = 0; ///< animation counter
    bool hit = false;  ///< playing its burst
};

/// Index into `popupImages`.
enum PopupKind : int {
    POPUP_5 = 0,
    POPUP_10 = 1,
    POPUP_15 = 2,
    POPUP_30 = 3,
    POPUP_35 = 4,
    POPUP_40 = 5,
    POPUP_45 = 6,
    POPUP_LIFE_UP = 7,
};

struct Popup {
    bool active = false;
    int32_t x = 0; ///< pond pixels; rises by 2 a frame
    int32_t y = 0;
    int32_t kind = 0;
    int32_t opacity = 0; ///< 255 falling by 10 a frame
};

/// An expanding ring; inactive while radius >= maxRadius.
struct Shockwave {
    int32_t x = 0;
    int32_t y = 0;
    int32_t radius = 0;
    int32_t maxRadius = 0;
};

constexpr int HIGHLIGHTS = 5; ///< berries that blink at the start of a game

constexpr int FADE_OUT_START = 125; ///< the pond's `fadeOut` as the end of a game begins

/// The state of the moon and of loading, which outlives a game.
struct SceneryState {
    int32_t loadStage = 0;
    bool moonToggle = false; ///< which moon rises this night: set = the first
    int32_t moonY = 1000;    ///< the moon's top edge, pond pixels
};
extern SceneryState scenery;
