// A BMP picture and its mask. The first two bytes say how many of the last bytes are the mask's; 0: none.

#include "res/image_loader.h"
#include "target.h"

#include <algorithm>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    Numbers input(data, size);
    const uint32_t wanted = input.Take16();
    const uint32_t rest = static_cast<uint32_t>(input.RestSize());
    const uint32_t maskSize = std::min(wanted, rest);
    const uint8_t* bmp = input.Rest();
    CImage image;
    if (!LoadBmpImage(image, bmp, rest - maskSize, maskSize != 0 ? bmp + rest - maskSize : nullptr, maskSize))
        return 0;
    static CImage target;
    if (target.pixels == nullptr)
        Require(target.Create(64, 64));
    image.Draw(target, -3, 5);
    return 0;
}
