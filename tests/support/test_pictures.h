#pragma once

#include "support/temp_folder.h"

/// A current folder of its own with a stand-in of the right size for every picture that the program loads: each JPEG
/// picture plain in a colour of its own, BMP pictures and masks grey. So their tests need no artwork and do not change
/// with it.
class TestPictures
{
public:
    TestPictures();

    TempFolder folder;
};
