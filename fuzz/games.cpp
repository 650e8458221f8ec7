// Whole games: the first bytes give seed, players and level; then each byte is a key and how long it is pressed.
// After each frame what must always hold of the pond; and the same input gives the same game, which a quarter of them
// show.

#include "app/random.h"
#include "app/scenes.h"
#include "game/section_main.h"
#include "game/water.h"
#include "menu/section_menu.h"
#include "platform/window.h"
#include "support/session.h"
#include "target.h"

#include <cstring>

namespace
{
constexpr int MOST_FRAMES = 300;
constexpr int KEYS[] = { 0,   VK_UP,    VK_DOWN,  VK_LEFT, VK_RIGHT, 'W', 'S',   'A',
                         'D', VK_SPACE, VK_PAUSE, 'Q',     'N',      'Y', VK_F1, VK_RETURN };

bool IsBetween(int value, int least, int most)
{
    return least <= value && value <= most;
}

/// A snake enters from below the pond, and one out of play lies at (0, 0).
void CheckSnake(const CSnake& snake)
{
    Require(IsBetween(snake.length, 0, MAX_SEGMENTS));
    for (int i = 0; i < snake.length; ++i)
        Require(IsBetween(snake.segments[i].x, -CELL_SIZE, POND_SIZE) &&
                IsBetween(snake.segments[i].y, -CELL_SIZE, POND_SIZE + MAX_SEGMENTS * CELL_SIZE));
    Require(IsBetween(snake.eyeFrame, 0, 5) && IsBetween(snake.turnCount, 0, TURN_QUEUE));
    Require(snake.lives >= 0 && snake.score >= 0 && snake.streak >= 0 && snake.shrinkCount >= 0);
    Require(IsBetween(snake.lastColour, -1, GOLDEN) && IsBetween(snake.rainTimer, 0, 375));
    Require(snake.speed == 2 || snake.speed == 4);
}

void CheckPond(const CPond& pond)
{
    for (int cell = 0; cell < CELL_COUNT; ++cell) {
        const Cell& each = pond.cells[cell];
        Require(CellAt(each.x, each.y) == cell && each.x % CELL_SIZE == 0 && each.y % CELL_SIZE == 0);
        Require(IsBetween(each.growth, 0, GROWTH_START) && IsBetween(each.colour, 0, GOLDEN));
    }
    for (const Laser& laser : pond.lasers)
        Require(!laser.active || (IsBetween(laser.x, -64, POND_SIZE + 64) && IsBetween(laser.y, -64, POND_SIZE + 64)));
    for (const Popup& popup : pond.popups)
        Require(!popup.active || (IsBetween(popup.kind, POPUP_5, POPUP_LIFE_UP) && IsBetween(popup.opacity, 0, 255)));
    Require(IsBetween(pond.introFrames, 0, 31) && pond.statusBar.level >= 1 && pond.statusBar.target >= FIRST_TARGET);
    CheckSnake(pond.snake[0]);
    if (pond.players == 1)
        CheckSnake(pond.snake[1]);
}

/// What the game left behind.
uint64_t Play(Session& session, Numbers input)
{
    const uint32_t seed = input.Take32();
    sectionMenu.twoPlayers = input.Take8() % 2;
    scenery = SceneryState{};
    water = WaterState{};
    blinkCounter = 0;
    SeedRandom(seed);
    requestedSection = &sectionMain;
    for (int frame = 0, held = 0; frame < MOST_FRAMES && !input.IsAtEnd() && session.IsRunning(); ++frame) {
        if (held-- <= 0) {
            const uint8_t stroke = input.Take8();
            held = stroke >> 4;
            session.Do({ frame, "key", std::to_string(KEYS[stroke % 16]) });
        }
        session.Frame();
        if (currentSection != &sectionMain)
            break;
        CheckPond(sectionMain.pond);
    }
    Checksum sum;
    for (const auto& [name, field] : ProgramState())
        for (const char* played : { "random", "cell[", "laser[", "popup[", "shockwave", "snake[" })
            if (name.starts_with(played))
                sum.Add(name + field.Value());
    requestedSection = &sectionMenu;
    session.Frame();
    return sum.Value();
}
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    static Session session(0, 1);
    const Numbers input(data, size);
    const uint64_t sum = Play(session, input);
    if (size % 4 == 0)
        Require(Play(session, input) == sum);
    return 0;
}
