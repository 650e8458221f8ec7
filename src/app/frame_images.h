#pragma once

#include "gfx/image.h"

// The long-lived images, made by CGame::Create and freed by CGame::Destroy.

extern CImage backBuffer;   ///< the frame that scenes compose and the tick presents
extern CImage pondImage;    ///< the pond before the water ripples it
extern CImage screenCopy;   ///< a still of a finished frame, drawn back dimmed behind panels
extern CImage waterBufferA; ///< water heights
extern CImage waterBufferB;

extern bool captureScreen; ///< the next tick copies `backBuffer` into `screenCopy`
