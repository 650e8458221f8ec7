#include "gfx/error.h"
#include "gfx/image.h"

namespace
{
/// The header of a 16-bit bitmap with the colour masks that follow it.
struct BitFieldInfo {
    BITMAPINFOHEADER header;
    DWORD masks[3];
};

BitFieldInfo DescribeRows(const CImage& image, int rows)
{
    BitFieldInfo info{};
    info.header.biSize = sizeof(info.header);
    info.header.biWidth = image.pitch / 2; // whole rows, padding included
    info.header.biHeight = -rows;          // top row first
    info.header.biPlanes = 1;
    info.header.biBitCount = 16;
    info.header.biCompression = BI_BITFIELDS;
    info.masks[0] = RED_MASK;
    info.masks[1] = GREEN_MASK;
    info.masks[2] = BLUE_MASK;
    return info;
}
}

bool CImage::DrawToDC(HDC context, int targetX, int targetY, int sourceX, int sourceY, int drawWidth,
                      int drawHeight) const
{
    const int firstColumn = ValueOr(sourceX, x);
    const int firstRow = ValueOr(sourceY, y);
    const int columns = ValueOr(drawWidth, width);
    const int rows = ValueOr(drawHeight, height);

    const BitFieldInfo info = DescribeRows(*this, rows);
    const int rowsSet =
        SetDIBitsToDevice(context, ValueOr(targetX, 0), ValueOr(targetY, 0), static_cast<DWORD>(columns),
                          static_cast<DWORD>(rows), firstColumn, 0, 0, static_cast<UINT>(rows), Row(firstRow),
                          reinterpret_cast<const BITMAPINFO*>(&info), DIB_RGB_COLORS);
    return rowsSet != 0 || FailWith(ENGINE_BLIT_GDI);
}
