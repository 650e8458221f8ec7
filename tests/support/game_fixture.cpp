#include "support/game_fixture.h"

#include "app/globals.h"
#include "app/random.h"
#include "game/geometry.h"
#include "game/water.h"
#include "platform/fake_platform.h"

void GameFixture::SetUp()
{
    ASSERT_TRUE(backBuffer.Create(SCREEN_WIDTH, SCREEN_HEIGHT));
    ASSERT_TRUE(pondImage.Create(POND_SIZE, POND_SIZE));
    ASSERT_TRUE(screenCopy.Create(SCREEN_WIDTH, SCREEN_HEIGHT));
    ASSERT_TRUE(waterBufferA.Create(POND_SIZE, POND_SIZE));
    ASSERT_TRUE(waterBufferB.Create(POND_SIZE, POND_SIZE));
    WaterInit(waterBufferA, waterBufferB, 5, 3);
    input = InputState{};
    captureScreen = false;
    requestedSection = nullptr;
    SeedRandom(1);
    fake.Reset();
}
