#pragma once

#include "gfx/image.h"

#include <array>
#include <span>
#include <string_view>

struct PictureSize {
    int width;
    int height;
};

/// One picture that its owner loads, or a series of numbered ones. The size is that of the pictures the program ships
/// with; another one is loaded all the same.
struct PictureRow {
    int set;   ///< where it goes: which of the owner's sets of images,
    int image; ///< and which image of it; a series goes there and to those behind
    /// Under Dat\Image, ending in .jpg or .bmp. A series has the number's place in it, as printf marks it.
    const char* file;
    PictureSize size;
    BlitRoutine blit;
    const char* mask = nullptr; ///< file of the alpha plane; numbered if the pictures are. Null: none
    int count = 1;              ///< files of a series, numbered from 1
    const int* sides = nullptr; ///< of square pictures that differ in size along a series, one for each
};

/// Rows that stand together with one mask are loaded together, so that it is read once.
constexpr bool ShareMask(const PictureRow& a, const PictureRow& b)
{
    return a.mask != nullptr && b.mask != nullptr && std::string_view(a.mask) == b.mask;
}

/// Of picture `index` of a series, from 0.
constexpr PictureSize SizeOf(const PictureRow& row, int index)
{
    return row.sides == nullptr ? row.size : PictureSize{ row.sides[index], row.sides[index] };
}

/// An owner's images, by the `set` of its rows.
using PictureSets = std::span<const std::span<CImage>>;
/// Loads the rows in their order. False at the first file that cannot be loaded, with its error in `lastError`.
bool LoadPictures(PictureSets sets, std::span<const PictureRow> rows);
void FreeImages(PictureSets sets);

using FilePath = std::array<char, 64>; ///< zero-terminated
/// The file of picture `index` of a series, from 0, as the file layer takes it.
FilePath PicturePath(const char* file, int index);
