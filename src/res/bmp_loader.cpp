#include "gfx/error.h"
#include "res/bmp_file.h"
#include "res/image_loader.h"
#include "res/little_endian.h"

namespace
{
/// Kept from load to load: a file with fewer colours replaces only its first entries.
uint16_t palette[BMP_PALETTE_SIZE];

/// Only pure white is fully opaque.
constexpr uint8_t AlphaOfGreen(uint8_t green)
{
    if (green == 255)
        return 31;
    return static_cast<uint8_t>(green < 248 ? green >> 3 : 30);
}

void LoadPalette(const BmpFile& bmp)
{
    for (int i = 0; i < bmp.PaletteCount(); ++i)
        ConvertBgrRow(bmp.PaletteEntry(i), &palette[i], 1);
}

void DecodePixelRow(const BmpFile& bmp, const uint8_t* bytes, uint16_t* pixels)
{
    switch (bmp.bitCount) {
    case 8:
        for (int i = 0; i < bmp.width; ++i)
            pixels[i] = palette[bytes[i]];
        break;
    case 16:
        for (int i = 0; i < bmp.width; ++i)
            pixels[i] = ReadLe16(bytes + 2 * i);
        break;
    default:
        ConvertBgrRow(bytes, pixels, bmp.width);
    }
}

/// The mask's palette as alpha values; colours that it lacks are transparent.
struct MaskPalette {
    explicit MaskPalette(const BmpFile& mask)
    {
        if (mask.bitCount == 8)
            for (int i = 0; i < mask.PaletteCount(); ++i)
                alpha[i] = AlphaOfGreen(mask.PaletteEntry(i)[1]);
    }

    uint8_t alpha[BMP_PALETTE_SIZE] = {};
};

void DecodeMaskRow(const BmpFile& mask, const MaskPalette& colours, const uint8_t* bytes, uint8_t* alpha)
{
    switch (mask.bitCount) {
    case 8:
        for (int i = 0; i < mask.width; ++i)
            alpha[i] = colours.alpha[bytes[i]];
        break;
    case 16:
        for (int i = 0; i < mask.width; ++i)
            alpha[i] = static_cast<uint8_t>(bytes[2 * i] & BLUE_MASK);
        break;
    default:
        for (int i = 0; i < mask.width; ++i)
            alpha[i] = AlphaOfGreen(bytes[3 * i + 1]);
    }
}

bool LoadPixels(CImage& image, const BmpFile& bmp)
{
    if (!CreatePicture(image, bmp.width, bmp.height))
        return false;
    if (!bmp.IsReadable())
        return FailWith(ENGINE_LOAD_IMAGE);
    if (bmp.bitCount == 8)
        LoadPalette(bmp);
    for (int row = 0; row < bmp.height; ++row)
        DecodePixelRow(bmp, bmp.Row(row), image.Row(row));
    return true;
}

bool LoadAlpha(CImage& image, const BmpFile& mask)
{
    if (mask.width != image.width || mask.height != image.height || !image.CreateAlpha())
        return FailWith(ENGINE_CREATE_IMAGE);
    if (!mask.IsReadable())
        return FailWith(ENGINE_LOAD_IMAGE);
    const MaskPalette colours(mask);
    for (int row = 0; row < mask.height; ++row)
        DecodeMaskRow(mask, colours, mask.Row(row), image.AlphaRow(row));
    return true;
}
}

bool LoadBmpImage(CImage& image, const uint8_t* bmp, uint32_t size, const uint8_t* mask, uint32_t maskSize)
{
    BmpFile file{};
    if (!file.ReadHeaders(bmp, size))
        return FailWith(ENGINE_LOAD_IMAGE);
    if (!LoadPixels(image, file))
        return false;
    if (!mask)
        return true;
    if (!file.ReadHeaders(mask, maskSize))
        return FailWith(ENGINE_LOAD_IMAGE);
    return LoadAlpha(image, file);
}
