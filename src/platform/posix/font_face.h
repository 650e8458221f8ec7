#pragma once

#include <cstdint>
#include <memory>

struct FT_LibraryRec_;
struct FT_FaceRec_;
struct FT_GlyphSlotRec_;

/// An installed typeface, opened and scaled to a cell height and an average width.
class FontFace
{
public:
    /// The installed face nearest to the family and weight whose file can be opened; null when there is none.
    /// Pixels; a `width` of 0 keeps the face's own proportions.
    static std::unique_ptr<FontFace> Find(const char* family, int weight, int height, int width);

    /// The character in 256 levels of coverage, valid until the next call; null when it cannot be rendered. A
    /// character that the face lacks gives the face's sign for a missing one.
    const FT_GlyphSlotRec_* Render(uint32_t unicode);

    int ascent = 0; ///< pixels of the cell above the baseline
    int height = 0; ///< of the cell
    int averageWidth = 0;

private:
    struct LibraryDeleter {
        void operator()(FT_LibraryRec_* library) const;
    };

    bool Open(const char* path, int index);
    bool Scale(int cellHeight, int width);

    std::unique_ptr<FT_LibraryRec_, LibraryDeleter> library;
    FT_FaceRec_* face = nullptr; ///< the library's
};
