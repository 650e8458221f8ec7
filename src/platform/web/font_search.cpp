#include "platform/posix/font_face.h"

/// The page brings the one face that the game writes with.
std::unique_ptr<FontFace> FontFace::Find(const char*, int, int height, int width)
{
    auto face = std::make_unique<FontFace>();
    return face->Open("/Fonts/DejaVuSans-Bold.ttf", 0) && face->Scale(height, width) ? std::move(face) : nullptr;
}
