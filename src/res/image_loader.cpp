#include "res/image_loader.h"

#include "gfx/error.h"
#include "res/file_data.h"
#include "res/file_report.h"

namespace
{
/// Passes a load's result on; a failure is told together with its file.
bool Tell(bool loaded, const char* path)
{
    if (!loaded)
        ReportFile(path, ErrorText(lastError));
    return loaded;
}
}

bool LoadJpegFile(CImage& image, const char* path)
{
    CFileData file;
    return Tell(file.Load(path) && LoadJpegImage(image, file.data.get(), file.size), path);
}

bool LoadBmpFile(CImage& image, const char* path)
{
    CFileData file;
    return Tell(file.Load(path) && LoadBmpImage(image, file.data.get(), file.size, nullptr, 0), path);
}

bool LoadMaskFile(CImage& image, const char* path)
{
    CFileData file;
    return Tell(file.Load(path) && LoadBmpImage(image, file.data.get(), file.size, file.data.get(), file.size), path);
}

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
