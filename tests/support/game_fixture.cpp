#include "support/game_fixture.h"

#include "app/frame_images.h"
#include "app/input.h"
#include "app/random.h"
#include "app/scenes.h"
#include "game/geometry.h"
#include "game/water.h"

bool PrepareGlobals()
{
    const bool made = backBuffer.Create(SCREEN_WIDTH, SCREEN_HEIGHT) && pondImage.Create(POND_SIZE, POND_SIZE) &&
                      screenCopy.Create(SCREEN_WIDTH, SCREEN_HEIGHT) && waterBufferA.Create(POND_SIZE, POND_SIZE) &&
                      waterBufferB.Create(POND_SIZE, POND_SIZE);
    if (!made)
        return false;
    WaterInit(waterBufferA, waterBufferB, 5, 3);
    input = InputState{};
    captureScreen = false;
    requestedSection = nullptr;
    SeedRandom(1);
    return true;
}

void GameFixture::SetUp()
{
    ASSERT_TRUE(PrepareGlobals());
}
