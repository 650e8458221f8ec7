#include "support/test_game.h"

#include "app/frame_images.h"
#include "app/input.h"
#include "app/random.h"
#include "support/game_fixture.h"

#include <stdexcept>

namespace
{
/// Repeats the loading steps of pond or status bar.
template <typename Owner>
bool LoadAll(Owner& owner)
{
    for (bool done = false; !done;) {
        if (!owner.DataLoad(done))
            return false;
    }
    return true;
}
}

TestGame::TestGame(int players, uint32_t seed)
{
    scenery = SceneryState{};
    blinkCounter = 0;
    const bool isReady = PrepareGlobals() && LoadAll(pond) && LoadAll(pond.statusBar);
    SeedRandom(seed);
    if (!isReady || !pond.NewGame(players, testKeys[0], testKeys[1]))
        throw std::runtime_error("the game cannot be set up");
}

void TestGame::Frame(int key)
{
    input.lastKeyDown = key;
    pond.GameFrame(pondImage, input.lastKeyDown);
    input.lastKeyDown = 0;
}
