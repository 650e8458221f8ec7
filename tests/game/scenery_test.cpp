#include "support/test_game.h"

#include "app/frame_images.h"

namespace
{
using Scenery = PondTest;

struct LightCase {
    int transition;
    bool isDay;
    uint16_t light; ///< white less the grey that dims it
    const char* why;
};

TEST_F(Scenery, LightsGrowAtDuskAndWaneAtDawn)
{
    constexpr LightCase cases[] = {
        { 0, true, 0x0000, "none by day" },
        { 50, true, 0x0841, "first frame of dusk: 245" },
        { 25, true, 0x8430, "amid dusk: 120" },
        { 1, true, 0xFFFF, "last frame of dusk: undimmed" },
        { 0, false, 0xFFFF, "night" },
        { 50, false, 0xFFFF, "first frame of dawn: undimmed" },
        { 1, false, 0x0841, "last frame of dawn: 245" },
    };
    pond.dayBackground.Fill(0);
    pond.nightBackground.Fill(0);
    pond.lightImage.Fill(0xFFFF);
    for (const LightCase& given : cases) {
        for (int corner = 0; corner < 4; ++corner) {
            StartGame(0);
            PutSnake(corner % 2 * 464, corner / 2 * 464, 1, 0);
            snake.isWaiting = true;
            pond.isDay = given.isDay;
            pond.transition = given.transition;
            Play(1);
            for (const int y : { 60, 408 }) // near the head and, wrapping around, at the opposite edges
                for (const int x : { 60, 408 })
                    EXPECT_EQ(pondImage.Row(y)[x], given.light) << given.why << ' ' << x << ' ' << y;
            for (const int dark : { 88, 391 })
                EXPECT_EQ(pondImage.Row(60)[dark] | pondImage.Row(dark)[60], 0) << given.why << ' ' << dark;
        }
    }
}

}
