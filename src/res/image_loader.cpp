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
