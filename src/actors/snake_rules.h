#pragma once

// The numbers that more than one of the snake's subjects needs.

constexpr int START_LENGTH = 5; ///< segments at a game's, a life's and a level's start, and after a freeze
constexpr int NORMAL_SPEED = 2; ///< pixels a frame
constexpr int FAST_SPEED = 4;
constexpr int NO_COLOUR = -1; ///< no streak
constexpr int NO_EFFECT = -1;

// The rain, in frames left.
constexpr int RAIN_FRAMES = 375; ///< thunder first
constexpr int RAIN_FALLS = 350;  ///< below it, it rains

constexpr int FACE_FRAMES = 20; ///< a dead snake's bumped head shows before its body vanishes
