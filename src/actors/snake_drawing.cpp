#include "actors/snake.h"

namespace
{
constexpr int SHADOW_OFFSET = 8;     ///< right and down of its segment
constexpr int SHADOW_WRAP_DELAY = 5; ///< frames after the entry from which shadows wrap around
constexpr int BUMP_EYE_OFFSET = 4;   ///< the bumped head is this much larger on each side
constexpr int BLINK_PERIOD = 25;     ///< frames
constexpr int BLINK_SHOWN = 20;
constexpr int EXPRESSIONS = 6;

/// Which head image shows an expression, by Direction. Expressions tell the snake's own left and right, the pictures of
/// a head that goes down are numbered as on the screen.
constexpr int headImages[][EXPRESSIONS] = {
    { 0, 1, 2, 3, 4, 5 },
    { 6, 7, 10, 11, 8, 9 },
    { 12, 13, 14, 15, 16, 17 },
    { 18, 19, 20, 21, 22, 23 },
};

/// Draws at a place of the pond and at the opposite edges, where a part of it may show as well.
void DrawAround(CImage& image, CImage& pondPicture, int x, int y)
{
    image.Draw(pondPicture, x, y);
    image.Draw(pondPicture, x - POND_SIZE, y);
    image.Draw(pondPicture, x, y - POND_SIZE);
    image.Draw(pondPicture, x - POND_SIZE, y - POND_SIZE);
}
}

int CSnake::FirstVisibleSegment() const
{
    return isDying ? VanishedSegments() : 0;
}

void CSnake::SnakeDrawShadow(CImage& pondPicture)
{
    const bool wraps = frameCount >= EntryFrames() + SHADOW_WRAP_DELAY;
    for (int i = FirstVisibleSegment(); i < length; ++i) {
        if (IsStacked(i))
            continue;
        const int x = segments[i].x + SHADOW_OFFSET;
        const int y = segments[i].y + SHADOW_OFFSET;
        if (wraps)
            DrawAround(shadowImage, pondPicture, x, y);
        else
            shadowImage.Draw(pondPicture, x, y);
    }
}

void CSnake::SnakeDraw(CImage& pondPicture)
{
    DrawBody(pondPicture);
    SnakeDrawHead(pondPicture);
}

void CSnake::DrawBody(CImage& pondPicture)
{
    const bool wraps = frameCount >= EntryFrames();
    for (int i = FirstVisibleSegment(); i < length; ++i) {
        if (IsStacked(i))
            continue;
        const Segment& segment = segments[i];
        bodyImage.Draw(pondPicture, segment.x, segment.y);
        // The body is added to the picture, so a copy may only be drawn where it is needed.
        if (wraps && segment.x > POND_SIZE - CELL_SIZE)
            bodyImage.Draw(pondPicture, segment.x - POND_SIZE, segment.y);
        if (wraps && segment.y > POND_SIZE - CELL_SIZE)
            bodyImage.Draw(pondPicture, segment.x, segment.y - POND_SIZE);
    }
}

void CSnake::SnakeDrawHead(CImage& pondPicture)
{
    if (isDying && deathFrames >= FACE_FRAMES)
        return;
    const Segment& head = segments[0];
    const Direction direction = DirectionOf(head.dir);
    if (direction == Direction::NONE)
        return;
    const int row = static_cast<int>(direction);
    if (isDying) {
        bumpEyeImages[row].Draw(pondPicture, head.x - BUMP_EYE_OFFSET, head.y - BUMP_EYE_OFFSET);
        return;
    }
    CImage& image = eyeImages[headImages[row][eyeFrame]];
    if (frameCount >= EntryFrames())
        DrawAround(image, pondPicture, head.x, head.y);
    else
        image.Draw(pondPicture, head.x, head.y);
}

/// Above the water, unlike everything else of the snake.
void CSnake::SnakeDrawArrows(CImage& target)
{
    if (isDying)
        return;
    if (!isWaiting) {
        arrowBlink = 0;
        return;
    }
    if (arrowBlink % BLINK_PERIOD < BLINK_SHOWN) {
        const int x = segments[0].x + POND_LEFT;
        const int y = segments[0].y;
        arrowImages[static_cast<int>(Direction::UP)].Draw(target, x, y - CELL_SIZE);
        arrowImages[static_cast<int>(Direction::DOWN)].Draw(target, x, y + CELL_SIZE);
        arrowImages[static_cast<int>(Direction::LEFT)].Draw(target, x - CELL_SIZE, y);
        arrowImages[static_cast<int>(Direction::RIGHT)].Draw(target, x + CELL_SIZE, y);
    }
    ++arrowBlink;
}
