#include "game/pond_fixture.h"

#include <filesystem>

namespace
{
using PondResources = PondTest;

/// Every picture that is drawn by its alpha plane.
struct MaskedImages {
    std::span<CImage> images;
    BlitRoutine blit;
};

TEST_F(PondResources, GivePicturesTheirMasksAndWayOfDrawing)
{
    const MaskedImages masked[] = {
        { { pond.objectImages.get(), OBJECT_IMAGES }, BlitAlpha },
        { { pond.laserImages.get(), LASER_IMAGES }, BlitAlpha },
        { { pond.popupImages.get(), POPUP_IMAGES }, BlitAlphaOpacity },
        { { pond.growthImages.get(), GROWTH_IMAGES }, BlitAlphaOpacity },
        { pond.moonImages, BlitAlphaOpacity },
    };
    for (const MaskedImages& group : masked) {
        for (const CImage& image : group.images) {
            ASSERT_NE(image.alpha, nullptr);
            EXPECT_GT(image.AlphaRow(image.height - 1)[image.width - 1], 0);
            EXPECT_EQ(image.blit, group.blit);
        }
    }
    EXPECT_EQ(pond.shadowImage.blit, BlitSub);
    EXPECT_EQ(pond.lightImage.blit, BlitAdd);

    CImage night; // the day at opacity 50
    ASSERT_TRUE(night.Create(POND_SIZE, POND_SIZE));
    pond.dayBackground.opacity = 50;
    pond.dayBackground.blit = BlitFadeToBlack;
    pond.dayBackground.Draw(night);
    EXPECT_NE(Pixel(night, 479, 479), 0);
    EXPECT_EQ(Pixel(pond.nightBackground, 479, 479), Pixel(night, 479, 479));

    pond.UnDataLoad();
    EXPECT_FALSE(pond.objectImages || pond.laserImages || pond.popupImages || pond.growthImages);
    EXPECT_FALSE(pond.dayBackground.pixels || pond.moonImages[1].alpha);
}

TEST_F(PondResources, StayAtTheStepWhoseFileIsMissing)
{
    for (const char* file :
         { "stone.jpg", "mask.bmp", "light8_.bmp", "add_.bmp", "bean_purple14.jpg", "mask14.bmp", "Moon2_.bmp" }) {
        const std::string path = std::string("Dat/Image/") + file;
        std::filesystem::rename(path, "aside");
        scenery.loadStage = 2;
        bool done = false;
        EXPECT_FALSE(pond.DataLoad(done)) << file;
        EXPECT_FALSE(done);
        EXPECT_EQ(scenery.loadStage, 2);
        std::filesystem::rename("aside", path);
    }
    bool done = false;
    EXPECT_TRUE(pond.DataLoad(done));
    EXPECT_TRUE(done);
}
}
