#include "res/picture_table.h"

#include "res/image_loader.h"

#include <algorithm>
#include <cstdio>

namespace
{
using Rows = std::span<const PictureRow>;

CImage& ImageOf(PictureSets sets, const PictureRow& row, int index)
{
    return sets[static_cast<size_t>(row.set)][static_cast<size_t>(row.image) + static_cast<size_t>(index)];
}

bool LoadPicture(CImage& image, const PictureRow& row, int index)
{
    const auto load = std::string_view(row.file).ends_with(".bmp") ? LoadBmpFile : LoadJpegFile;
    if (!load(image, PicturePath(row.file, index).data()))
        return false;
    image.blit = row.blit;
    return true;
}

/// False: ENGINE_ALLOCATE_MEMORY.
bool ApplyMask(CImage& image, const CImage& mask)
{
    image.CopyAlpha(mask);
    return image.alpha != nullptr; // without one, a picture would be drawn with its black surroundings
}

/// One picture of each row, which share a mask.
bool LoadMasked(PictureSets sets, Rows rows, int index)
{
    for (const PictureRow& row : rows)
        if (!LoadPicture(ImageOf(sets, row, index), row, index))
            return false;
    if (rows[0].mask == nullptr)
        return true;
    CImage mask;
    const auto apply = [&](const PictureRow& row) { return ApplyMask(ImageOf(sets, row, index), mask); };
    return LoadMaskFile(mask, PicturePath(rows[0].mask, index).data()) && std::all_of(rows.begin(), rows.end(), apply);
}
}

bool LoadPictures(PictureSets sets, Rows rows)
{
    while (!rows.empty()) {
        const auto isOther = [&rows](const PictureRow& row) { return !ShareMask(row, rows[0]); };
        const auto others = std::find_if(rows.begin() + 1, rows.end(), isOther);
        const auto count = static_cast<size_t>(others - rows.begin());
        for (int index = 0; index < rows[0].count; ++index)
            if (!LoadMasked(sets, rows.first(count), index))
                return false;
        rows = rows.subspan(count);
    }
    return true;
}

void FreeImages(PictureSets sets)
{
    for (const std::span<CImage>& set : sets)
        for (CImage& image : set)
            image.Free();
}

FilePath PicturePath(const char* file, int index)
{
    FilePath pattern;
    std::snprintf(pattern.data(), pattern.size(), "Dat\\Image/%s", file);
    FilePath path;
    std::snprintf(path.data(), path.size(), pattern.data(), index + 1);
    return path;
}
