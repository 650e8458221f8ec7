#include "game/pond_fixture.h"

#include <algorithm>
#include <vector>

namespace
{
using PondDrawing = PondTest;

constexpr uint16_t SHADOW = 0x1111;

struct ShadowCase {
    int cell;
    int neighbour; ///< a second stone
    bool shown;
    const char* why;
};

TEST_F(PondDrawing, HideAShadowUnderAnObjectDownRight)
{
    constexpr ShadowCase cases[] = {
        { 100, 899, true, "nothing near" },
        { 100, 131, false, "down right" },
        { 100, 101, true, "right" },
        { 29, 60, false, "last column: the first cell two rows below" },
        { 29, 30, true, "last column: the first cell one row below" },
    };
    Paint(pond.shadowImage, SHADOW);
    for (const ShadowCase& given : cases) {
        StartGame(0);
        MakeStone(pond.cells[given.cell]);
        MakeStone(pond.cells[given.neighbour]);
        Play(1);
        const Cell& cell = pond.cells[given.cell];
        EXPECT_EQ(Pixel(pondImage, cell.x + 10, cell.y + 18) == SHADOW, given.shown) << given.why;
    }
}

TEST_F(PondDrawing, LetBerriesFallLandAndSplash)
{
    Paint(pond.shadowImage, SHADOW);
    for (int i = 0; i < GROWTH_IMAGES; ++i)
        Paint(pond.growthImages[i], i + 1);
    pond.PlaceBerry(GREEN, 100);
    const Cell& cell = pond.cells[100];
    std::vector<int> frames;
    for (int distance = 64; cell.growth > 0; distance = cell.growth / 4 * 8 + 8) {
        const int growth = cell.growth;
        Play(1);
        const int shown = Pixel(backBuffer, POND_LEFT + cell.x, cell.y) - 1;
        EXPECT_EQ(pond.growthImages[shown].opacity, 255U - 9U * static_cast<unsigned>(growth));
        EXPECT_EQ(Pixel(pondImage, cell.x + distance, cell.y + distance), SHADOW) << growth;
        EXPECT_NE(Pixel(pondImage, cell.x + distance - 1, cell.y + distance), SHADOW) << growth;
        frames.push_back(shown - GREEN * GROWTH_FRAMES + 1);
    }
    std::vector<int> expected = { 1 };
    for (int frame = 2; frame <= 13; ++frame)
        expected.insert(expected.end(), { frame, frame });
    expected.push_back(14);
    EXPECT_EQ(frames, expected);

    EXPECT_TRUE(cell.IsRipeBerry());
    const auto calm = [] { return std::count(water.current, water.current + 480 * 480, 0) == 480 * 480; };
    EXPECT_TRUE(calm());
    Play(1);
    EXPECT_FALSE(calm());
    WaterInit(waterBufferA, waterBufferB, 5, 3);
    Play(1);
    EXPECT_TRUE(calm()) << "one splash is enough";
}

TEST_F(PondDrawing, RaisePopupsForTwentySixFrames)
{
    Paint(pond.popupImages[POPUP_40], 0x1234);
    for (int i = 0; i < 21; ++i)
        pond.ShowPopup(20 * i, 200, POPUP_40);
    Play(1);
    EXPECT_EQ(Pixel(backBuffer, POND_LEFT + 19 * 20, 200), 0x1234);
    EXPECT_NE(Pixel(backBuffer, POND_LEFT + 19 * 20 + 40, 200), 0x1234) << "the 21st has no slot";
    EXPECT_EQ(pond.popupImages[POPUP_40].opacity, 255U);
    Play(25);
    EXPECT_EQ(Pixel(backBuffer, POND_LEFT, 150), 0x1234);
    EXPECT_EQ(pond.popupImages[POPUP_40].opacity, 5U);
    Play(1);
    EXPECT_NE(Pixel(backBuffer, POND_LEFT, 148), 0x1234);
    pond.ShowPopup(0, 200, POPUP_5);
    EXPECT_EQ(pond.popups[0].opacity, 255) << "slots are free again";
}

TEST_F(PondDrawing, BlinkHighlightedBerriesFiveFramesInTen)
{
    Paint(pond.objectImages[BLUE], 0x0841);
    pond.dayBackground.Fill(0);
    pond.PlaceBerry(BLUE, 100);
    pond.PlaceBerry(BLUE, 200); // still growing
    const Cell& cell = pond.cells[100];
    MakeRipe(pond.cells[100], BLUE);
    for (int frame = 0; frame < 10; ++frame) {
        Play(1);
        EXPECT_EQ(Pixel(pondImage, cell.x, cell.y), frame < 5 ? 0x1082 : 0x0841) << frame;
        EXPECT_EQ(Pixel(pondImage, pond.cells[200].x, pond.cells[200].y), 0);
    }
}
}
