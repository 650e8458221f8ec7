#pragma once

#include <cstdint>

class CSection;

extern CSection* requestedSection; ///< scene asked for; never null while the program runs
extern CSection* currentSection;

// What scenes ask of each other, so that none of them needs to know another (scene_requests.cpp does). A scene asked
// for begins at the next tick.

void RequestMenu();
void RequestGame();

/// What the menu has chosen for the game.
struct GameChoice {
    int players;           ///< as CPond::NewGame takes it
    const uint32_t* keys1; ///< player 1's four virtual-key codes: up, down, left, right
    const uint32_t* keys2;
};
GameChoice ChosenGame();

/// The score of a player alone: one that is good enough makes the menu ask for the name.
void EnterRanking(int32_t score);
