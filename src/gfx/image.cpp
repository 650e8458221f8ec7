#include "gfx/image.h"

#include "gfx/error.h"

#include <algorithm>
#include <cstring>
#include <limits>
#include <new>

namespace
{
/// What a group of four pixels may reach past the end of the last row.
constexpr int64_t PIXEL_SLACK = 4;
constexpr int64_t ALPHA_SLACK = 3;

/// A cache line, the widest a vector can be: rows of 640 and 480 pixels then never split one.
constexpr std::align_val_t PLANE_ALIGNMENT{ 64 };

/// Offsets into a plane fit into an int.
constexpr int64_t MAX_PLANE_BYTES = std::numeric_limits<int32_t>::max() - 7;

int64_t PitchOf(int64_t width)
{
    return (2 * width + 7) & ~int64_t{ 7 };
}

template <typename Value>
void ReleasePlane(Value*& plane, bool& isBorrowed)
{
    if (!isBorrowed)
        operator delete[](plane, PLANE_ALIGNMENT);
    plane = nullptr;
    isBorrowed = false;
}
}

void CImage::Free()
{
    ReleasePlane(pixels, pixelsBorrowed);
    ReleasePlane(alpha, alphaBorrowed);
    x = y = width = height = pitch = 0;
    opacity = 0;
    blit = BlitCopy;
}

bool CImage::Create(int newWidth, int newHeight)
{
    ReleasePlane(pixels, pixelsBorrowed);
    x = y = width = height = pitch = 0; // an image without a plane must have nothing to draw
    const int64_t rowBytes = PitchOf(newWidth);
    const int64_t planeBytes = rowBytes * newHeight;
    if (newWidth < 0 || newHeight < 0 || rowBytes > MAX_PLANE_BYTES || planeBytes > MAX_PLANE_BYTES)
        return FailWith(ENGINE_ALLOCATE_MEMORY);
    pixels = new (PLANE_ALIGNMENT, std::nothrow) uint16_t[static_cast<size_t>(planeBytes / 2 + PIXEL_SLACK)]();
    if (!pixels)
        return FailWith(ENGINE_ALLOCATE_MEMORY);
    width = newWidth;
    height = newHeight;
    pitch = static_cast<int32_t>(rowBytes);
    return true;
}

bool CImage::CreateAlpha()
{
    ReleasePlane(alpha, alphaBorrowed);
    const int64_t planeBytes = int64_t{ pitch } / 2 * height + ALPHA_SLACK;
    alpha = new (PLANE_ALIGNMENT, std::nothrow) uint8_t[static_cast<size_t>(planeBytes)]();
    return alpha || FailWith(ENGINE_ALLOCATE_MEMORY);
}

bool CImage::CreateView(CImage& parent, int viewX, int viewY, int viewWidth, int viewHeight)
{
    const int left = std::max(viewX, 0);
    const int top = std::max(viewY, 0);
    const int64_t right = std::min<int64_t>(int64_t{ viewX } + viewWidth, parent.width);
    const int64_t bottom = std::min<int64_t>(int64_t{ viewY } + viewHeight, parent.height);
    if (right <= left || bottom <= top || !parent.pixels)
        return FailWith(ENGINE_CREATE_IMAGE);

    ReleasePlane(pixels, pixelsBorrowed);
    pixels = parent.Row(top) + left;
    pixelsBorrowed = true;
    if (parent.alpha) {
        ReleasePlane(alpha, alphaBorrowed);
        alpha = parent.AlphaRow(top) + left;
        alphaBorrowed = true;
    }
    x = std::min(viewX, 0);
    y = std::min(viewY, 0);
    width = static_cast<int32_t>(right - left);
    height = static_cast<int32_t>(bottom - top);
    pitch = parent.pitch;
    return true;
}

bool CImage::Copy(CImage& source)
{
    opacity = source.opacity;
    if (!Create(source.width, source.height))
        return false;
    x = source.x;
    y = source.y;

    const BlitRoutine sourceBlit = source.blit;
    source.blit = BlitCopy;
    source.Draw(*this, 0, 0, 0, 0);
    source.blit = sourceBlit;

    if (!source.alpha)
        return true;
    if (!alpha && !CreateAlpha())
        return false;
    // Whole rows with their padding: a group of pixels is copied, not blended, if all its values, padding too, are 31.
    for (int row = 0; row < height; ++row)
        std::memcpy(AlphaRow(row), source.AlphaRow(row), static_cast<size_t>(pitch / 2));
    blit = source.blit;
    return true;
}

void CImage::CopyAlpha(const CImage& source)
{
    if ((!alpha && !CreateAlpha()) || !source.alpha)
        return;
    const size_t columns = static_cast<size_t>(std::min(width, source.width));
    const int rows = std::min(height, source.height);
    for (int row = 0; row < rows; ++row)
        std::memcpy(AlphaRow(row), source.AlphaRow(row), columns);
}

void CImage::Fill(uint16_t colour)
{
    for (int row = 0; row < height; ++row)
        std::fill_n(Row(row), width, colour);
}

void CImage::Draw(CImage& target, int targetX, int targetY, int anchorX, int anchorY, int drawWidth, int drawHeight)
{
    const int32_t savedTarget[] = { target.x, target.y };
    const int32_t savedSource[] = { x, y, width, height };
    target.x = ValueOr(targetX, target.x);
    target.y = ValueOr(targetY, target.y);
    x = ValueOr(anchorX, x);
    y = ValueOr(anchorY, y);
    // A picture replaced by a smaller file must not be read past its end.
    width = std::min(ValueOr(drawWidth, width), width);
    height = std::min(ValueOr(drawHeight, height), height);

    if (!alpha && blit == BlitAlpha)
        blit = BlitColorKey;
    if (!alpha && blit == BlitAlphaOpacity)
        blit = BlitOpacityColorKey;
    blit(target, *this);

    x = savedSource[0];
    y = savedSource[1];
    width = savedSource[2];
    height = savedSource[3];
    target.x = savedTarget[0];
    target.y = savedTarget[1];
}
