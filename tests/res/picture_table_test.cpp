#include "actors/snake_pictures.h"
#include "actors/status_bar_pictures.h"
#include "game/pond_pictures.h"
#include "menu/menu_pictures.h"
#include "res/image_loader.h"

#include <gtest/gtest.h>

#include <ranges>
#include <string>

namespace
{
/// The game goes on with any size, but its tables are what tests and art rely on.
TEST(PictureTables, NameTheSizesOfThePicturesThatShip)
{
    const std::span<const PictureRow> tables[] = { pondPictures, snakePictures, statusPictures, menuPictures };
    for (const PictureRow& row : std::views::join(tables)) {
        for (int i = 0; i < row.count; ++i) {
            for (const char* file : { row.file, row.mask ? row.mask : row.file }) {
                const std::string path = PicturePath(file, i).data();
                const std::string shipped = ASSET_DIR "/image/" + path.substr(path.find('/') + 1);
                CImage image;
                const auto load = shipped.ends_with(".jpg") ? LoadJpegFile : LoadBmpFile;
                ASSERT_TRUE(load(image, shipped.c_str())) << shipped;
                EXPECT_EQ(image.width, SizeOf(row, i).width) << shipped;
                EXPECT_EQ(image.height, SizeOf(row, i).height) << shipped;
            }
        }
    }
}
}
