#include "res/image_loader.h"

#include "res/file_data.h"

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
