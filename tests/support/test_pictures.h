#pragma once

#include "support/temp_folder.h"

#include <cstdint>
#include <string>
#include <vector>

/// A JPEG file of the pixels, which are of one of TurboJPEG's formats.
std::string EncodeJpeg(const std::vector<uint8_t>& pixels, int width, int height, int pixelFormat);

/// A current folder of its own with a stand-in of the right size for every picture that the program loads: JPEG
/// pictures of coloured blocks, BMP pictures and masks of noise, so that nothing is drawn elsewhere unnoticed. The same
/// on every system; tests that use them need no artwork and do not change with it.
struct TestPictures {
    TestPictures();
    TempFolder folder;
};
