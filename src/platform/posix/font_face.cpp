#include "platform/posix/font_face.h"

#include <cmath>
#include <ft2build.h>
#include FT_FREETYPE_H
#include FT_TRUETYPE_TABLES_H

namespace
{
/// The cell and the average character, in the face's own units.
struct FaceUnits {
    int ascent;
    int descent;
    int averageWidth;
};

FaceUnits UnitsOf(FT_Face face)
{
    const auto* os2 = static_cast<const TT_OS2*>(FT_Get_Sfnt_Table(face, FT_SFNT_OS2));
    if (os2 != nullptr && os2->usWinAscent + os2->usWinDescent > 0 && os2->xAvgCharWidth > 0)
        return { os2->usWinAscent, os2->usWinDescent, os2->xAvgCharWidth };
    return { face->ascender, -face->descender, face->max_advance_width / 2 };
}

FT_F26Dot6 ToFixed(double pixels)
{
    return std::lround(pixels * 64);
}
}

void FontFace::LibraryDeleter::operator()(FT_LibraryRec_* opened) const
{
    FT_Done_FreeType(opened);
}

/// False for a file that is missing, damaged or has no Latin letters.
bool FontFace::Open(const char* path, int index)
{
    FT_Library newLibrary = nullptr;
    if (FT_Init_FreeType(&newLibrary) != 0)
        return false;
    library.reset(newLibrary);
    if (FT_New_Face(newLibrary, path, index, &face) != 0)
        return false;
    return FT_IS_SCALABLE(face) && FT_Select_Charmap(face, FT_ENCODING_UNICODE) == 0 &&
           FT_Get_Char_Index(face, 'A') != 0 && FT_Get_Char_Index(face, '0') != 0;
}

bool FontFace::Scale(int cellHeight, int width)
{
    const FaceUnits units = UnitsOf(face);
    const int cell = units.ascent + units.descent;
    if (cell <= 0 || units.averageWidth <= 0)
        return false;
    const double em = face->units_per_EM;
    const double pixelsPerEmY = std::round(cellHeight * em / cell);
    const double pixelsPerEmX = width > 0 ? width * em / units.averageWidth : pixelsPerEmY;
    constexpr FT_UInt POINTS_PER_INCH = 72; // so that a point is a pixel
    if (FT_Set_Char_Size(face, ToFixed(pixelsPerEmX), ToFixed(pixelsPerEmY), POINTS_PER_INCH, POINTS_PER_INCH) != 0)
        return false;
    height = cellHeight;
    ascent = static_cast<int>(std::lround(cellHeight * static_cast<double>(units.ascent) / cell));
    averageWidth = static_cast<int>(std::lround(units.averageWidth * pixelsPerEmX / em));
    return true;
}

const FT_GlyphSlotRec_* FontFace::Render(uint32_t unicode)
{
    constexpr FT_Int32 flags = FT_LOAD_RENDER | FT_LOAD_NO_BITMAP | FT_LOAD_TARGET_LIGHT;
    if (FT_Load_Char(face, unicode, flags) != 0 || face->glyph->bitmap.pixel_mode != FT_PIXEL_MODE_GRAY)
        return nullptr;
    return face->glyph;
}
