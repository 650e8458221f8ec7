#include "res/picture_table.h"

#include "gfx/error.h"
#include "res/file_report.h"
#include "res/image_loader.h"

#include <algorithm>
#include <cstdio>

namespace
{
using Rows = std::span<const PictureRow>;

/// More than all pictures of the game have: a damaged pack must not fill the memory with large ones.
constexpr int64_t MAX_TABLE_PIXELS = int64_t{ 1 } << 21;

CImage& ImageOf(PictureSets sets, const PictureRow& row, int index)
{
    return sets[static_cast<size_t>(row.set)][static_cast<size_t>(row.image) + static_cast<size_t>(index)];
}

/// Takes the picture's pixels from those that are left. False: as the loaders, or ENGINE_ALLOCATE_MEMORY.
bool LoadPicture(CImage& image, const PictureRow& row, int index, int64_t& pixelsLeft)
{
    const FilePath path = PicturePath(row.file, index);
    const auto load = std::string_view(row.file).ends_with(".bmp") ? LoadBmpFile : LoadJpegFile;
    if (!load(image, path.data()))
        return false;
    image.blit = row.blit;
    pixelsLeft -= int64_t{ image.width } * image.height;
    if (pixelsLeft >= 0)
        return true;
    ReportFile(path.data(), ErrorText(ENGINE_ALLOCATE_MEMORY));
    return FailWith(ENGINE_ALLOCATE_MEMORY);
}

/// False: ENGINE_ALLOCATE_MEMORY.
bool ApplyMask(CImage& image, const CImage& mask)
{
    image.CopyAlpha(mask);
    return image.alpha != nullptr; // without one, a picture would be drawn with its black surroundings
}

/// One picture of each row, which share a mask.
bool LoadMasked(PictureSets sets, Rows rows, int index, int64_t& pixelsLeft)
{
    for (const PictureRow& row : rows)
        if (!LoadPicture(ImageOf(sets, row, index), row, index, pixelsLeft))
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
    int64_t pixelsLeft = MAX_TABLE_PIXELS;
    while (!rows.empty()) {
        const auto isOther = [&rows](const PictureRow& row) { return !ShareMask(row, rows[0]); };
        const auto others = std::find_if(rows.begin() + 1, rows.end(), isOther);
        const auto count = static_cast<size_t>(others - rows.begin());
        for (int index = 0; index < rows[0].count; ++index)
            if (!LoadMasked(sets, rows.first(count), index, pixelsLeft))
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
