#include "game/pond_fixture.h"

namespace
{
using Scenery = PondTest;

TEST_F(Scenery, TurnsDayIntoNightAndBack)
{
    pond.dayTimer = 2498;
    Play(1);
    EXPECT_EQ(pond.transition, 0);
    for (int frame = 0; frame < 50; ++frame) {
        EXPECT_TRUE(pond.isDay);
        Play(1);
        EXPECT_EQ(pond.dayBackground.opacity, 250U - 4U * static_cast<unsigned>(frame));
    }
    EXPECT_FALSE(pond.isDay);
    EXPECT_EQ(pond.transition, 0);

    pond.dayTimer = 2499; // 2500 frames after the dusk began
    for (int frame = 0; frame < 50; ++frame) {
        EXPECT_FALSE(pond.isDay);
        Play(1);
        EXPECT_EQ(pond.dayBackground.opacity, 50U + 4U * static_cast<unsigned>(frame));
    }
    EXPECT_TRUE(pond.isDay);
}

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
            PlaceHead(0, corner % 2 * 464, corner / 2 * 464);
            pond.isDay = given.isDay;
            pond.transition = given.transition;
            Play(1);
            for (const int y : { 60, 408 }) // near the head and, wrapping around, at the opposite edges
                for (const int x : { 60, 408 })
                    EXPECT_EQ(Pixel(pondImage, x, y), given.light) << given.why << ' ' << x << ' ' << y;
            for (const int dark : { 88, 391 })
                EXPECT_EQ(Pixel(pondImage, dark, 60) | Pixel(pondImage, 60, dark), 0) << given.why << ' ' << dark;
        }
    }
}

struct MoonCase {
    int y;
    uint32_t opacity;
    uint32_t nextOpacity;
};

TEST_F(Scenery, MoonFadesInBelowTheMiddleAndOutNearTheTop)
{
    constexpr MoonCase cases[] = {
        { 482, 0, 0 }, { 480, 0, 1 },   { 240, 79, 80 }, { 240, 80, 80 },
        { 239, 7, 7 }, { 101, 80, 80 }, { 100, 80, 79 }, { 100, 0, 0 },
    };
    for (const MoonCase& moon : cases) {
        scenery.moonY = moon.y;
        pond.moonImages[1].opacity = moon.opacity;
        pond.isDay = true;
        Play(1);
        EXPECT_EQ(scenery.moonY, moon.y) << "it moves by night only";
        pond.isDay = false;
        Play(1);
        EXPECT_EQ(scenery.moonY, moon.y - 2);
        EXPECT_EQ(pond.moonImages[1].opacity, moon.nextOpacity) << moon.y;
    }
}

TEST_F(Scenery, MoonsTakeTurns)
{
    Paint(pond.moonImages[0], 0x1234);
    Paint(pond.moonImages[1], 0x4321);
    pond.isDay = false;
    scenery.moonY = 300;
    pond.moonImages[1].opacity = 40;
    Play(1);
    EXPECT_EQ(Pixel(pondImage, 175, 300), 0x4321);
    pond.transition = 2; // the moon is readied in the last but one frame of dawn
    Play(1);
    EXPECT_TRUE(scenery.moonToggle);
    EXPECT_EQ(scenery.moonY, 608);
    EXPECT_EQ(pond.moonImages[1].opacity, 0U);
    pond.isDay = false;
    pond.transition = 0;
    scenery.moonY = 300;
    Play(1);
    EXPECT_EQ(Pixel(pondImage, 304, 429), 0x1234);
}

struct EndCase {
    bool isDay;
    int32_t fadeOut;
    uint32_t opacity; ///< of the background
    int32_t next;
};

TEST_F(Scenery, GameEndsWhenTheBackgroundHasFaded)
{
    constexpr EndCase cases[] = {
        { true, 125, 250, 123 }, { true, 123, 246, 121 }, { true, 1, 2, 0 },
        { false, 125, 50, 123 }, { false, 123, 49, 121 }, { false, 1, 0, 0 },
    };
    for (const EndCase& end : cases) {
        StartGame(0);
        pond.isDay = end.isDay;
        pond.fadeOut = end.fadeOut;
        Play(1);
        EXPECT_EQ(pond.dayBackground.opacity, end.opacity);
        EXPECT_EQ(pond.fadeOut, end.next);
        EXPECT_EQ(pond.gameOver, end.next == 0);
    }
}
}
