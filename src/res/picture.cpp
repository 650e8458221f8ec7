#include "res/picture.h"

#include "gfx/error.h"

bool CreatePicture(CImage& image, int width, int height)
{
    image.Free();
    const bool hasPixels = width > 0 && height > 0;
    if (!hasPixels || int64_t{ width } * height > MAX_PICTURE_PIXELS || !image.Create(width, height))
        return FailWith(ENGINE_CREATE_IMAGE);
    return true;
}

void ConvertBgrRow(const uint8_t* bgr, uint16_t* pixels, int count)
{
    for (int i = 0; i < count; ++i, bgr += 3)
        pixels[i] = Rgb565(bgr[2], bgr[1], bgr[0]);
}
