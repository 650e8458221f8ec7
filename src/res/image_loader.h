#pragma once

#include "gfx/image.h"

#include <cstdint>

// The decoders. On success the image is fresh: anchors and opacity 0, BlitCopy, no alpha plane unless a mask was
// given. On failure `lastError` is ENGINE_LOAD_IMAGE, ENGINE_CREATE_IMAGE or ENGINE_ALLOCATE_MEMORY.

/// A baseline or progressive JPEG file, grey or colour.
bool LoadJpegImage(CImage& image, const uint8_t* data, uint32_t size);

/// A BMP file of 8, 16 (RGB565) or 24 bits a pixel, and, unless `mask` is null, an equally large one for the alpha
/// plane. `size` and `maskSize` are the bytes there are: nothing is read beyond them.
bool LoadBmpImage(CImage& image, const uint8_t* bmp, uint32_t size, const uint8_t* mask, uint32_t maskSize);

// Loading a file and decoding it in one step.

bool LoadJpegFile(CImage& image, const char* path);
bool LoadBmpFile(CImage& image, const char* path);
/// A mask file as both the pixels and the alpha plane of `image`.
bool LoadMaskFile(CImage& image, const char* path);

// What the decoders share.

/// More than the screen holds: a damaged header must not ask for gigabytes, nor a picture stall the start.
constexpr int64_t MAX_PICTURE_PIXELS = int64_t{ 1 } << 19;

/// A fresh, black image. False: ENGINE_CREATE_IMAGE.
bool CreatePicture(CImage& image, int width, int height);

/// Converts 8-bit blue, green, red triples.
void ConvertBgrRow(const uint8_t* bgr, uint16_t* pixels, int count);
