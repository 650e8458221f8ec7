// A JPEG picture.

#include "res/image_loader.h"
#include "target.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    CImage image;
    if (LoadJpegImage(image, data, static_cast<uint32_t>(size)))
        Require(image.width > 0 && image.height > 0);
    return 0;
}
