#include "support/allocations.h"
#include "support/test_game.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>

// What frames of play may ask memory for: a copy of the pond while it fades in, copies of blinking berries, and by
// night the snakes' light, with its shade at dusk and dawn. A picture's pixel plane is one request, its alpha another.
TEST(FrameAllocation, HappensOnlyForTemporaryPictures)
{
    struct Case {
        const char* when;
        int introFrames; ///< already past
        bool isDay;
        int transition;
        int most; ///< requests in one frame
    };
    const Case cases[] = {
        { "fading in", 0, true, 0, 1 },  { "by day", 31, true, 0, 0 },    { "at dusk", 31, true, 50, 2 },
        { "by night", 31, false, 0, 1 }, { "at dawn", 31, false, 50, 2 },
    };
    const auto game = std::make_unique<TestGame>(1, 5);
    game->pond.statusBar.font.TextWidth("0123456789"); // each glyph is rendered once
    for (const Case& c : cases) {
        game->pond.introFrames = c.introFrames;
        game->pond.isDay = c.isDay;
        game->pond.transition = c.transition;
        game->pond.highlightNext = -1;
        std::ranges::fill(game->pond.highlight, -1);
        for (int frame = 0; frame < 20; ++frame) {
            const int before = AllocationCount();
            game->Frame(0);
            EXPECT_LE(AllocationCount() - before, c.most) << c.when;
        }
    }
}
