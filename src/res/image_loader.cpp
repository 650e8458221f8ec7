#include "res/image_loader.h"

#include "res/file_data.h"

#include <cstdio>

bool LoadJpegFile(CImage& image, const char* path)
{
    CFileData file;
    return file.Load(path) && LoadJpegImage(image, file.data.get(), file.size);
}

bool LoadBmpFile(CImage& image, const char* path)
{
    CFileData file;
    return file.Load(path) && LoadBmpImage(image, file.data.get(), file.size, nullptr, 0);
}

bool LoadMaskFile(CImage& image, const char* path)
{
    CFileData file;
    return file.Load(path) && LoadBmpImage(image, file.data.get(), file.size, file.data.get(), file.size);
}

bool ApplyMask(CImage& image, const CImage& mask, BlitRoutine blit)
{
    image.CopyAlpha(mask);
    image.blit = blit;
    return image.alpha != nullptr; // without one, a picture would be drawn with its black surroundings
}

bool LoadMaskedFiles(std::span<CImage> images, const NumberedFiles& files, BlitRoutine blit)
{
    int number = 0;
    for (CImage& image : images) {
        ++number;
        CImage mask;
        if (!LoadJpegFile(image, NumberedPath(files.picture, number).data()) ||
            !LoadMaskFile(mask, NumberedPath(files.mask, number).data()) || !ApplyMask(image, mask, blit))
            return false;
    }
    return true;
}

FilePath NumberedPath(const char* pattern, int number)
{
    FilePath path;
    std::snprintf(path.data(), path.size(), pattern, number);
    return path;
}
