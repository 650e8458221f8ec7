#include "support/allocations.h"
#include "support/test_game.h"

#include <algorithm>

namespace
{
/// What frames of play may ask memory for: a copy of the pond while it fades in, copies of blinking berries, and by
/// night the snakes' light, with its shade at dusk and dawn. A picture's pixel plane is one request, its alpha another.
struct FrameCase {
    const char* when;
    int introFrames; ///< already past
    bool isDay;
    int transition;
    int ripeBerries; ///< of the start-up highlight
    int requests;    ///< in one frame
};

TEST_F(PondTest, FramesAskOnlyForTemporaryPictures)
{
    constexpr FrameCase cases[] = {
        { "fading in", 0, true, 0, 0, 1 },   { "by day", 31, true, 0, 0, 0 },    { "at dusk", 31, true, 50, 0, 2 },
        { "by night", 31, false, 0, 0, 1 },  { "at dawn", 31, false, 50, 0, 2 }, { "blinking", 31, true, 0, 5, 0 },
        { "one blinks", 31, true, 0, 1, 0 },
    };
    pond.statusBar.font.TextWidth("0123456789"); // each glyph is rendered once
    for (const FrameCase& given : cases) {
        StartGame(1);
        pond.introFrames = given.introFrames;
        pond.isDay = given.isDay;
        pond.transition = given.transition;
        for (int i = 0; i < HIGHLIGHTS; ++i) {
            pond.PlaceBerry(BLUE, i);
            if (i < given.ripeBerries)
                MakeRipe(pond.cells[i], BLUE);
        }
        for (int frame = 0; frame < 20; ++frame) {
            const bool isLit = blinkCounter % 10 < 5;
            const int before = AllocationCount();
            Play(1);
            EXPECT_EQ(AllocationCount() - before, given.requests + (isLit ? 2 * given.ripeBerries : 0)) << given.when;
        }
    }
}
}
