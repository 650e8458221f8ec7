#pragma once

#include "platform/directdraw.h"
#include "platform/directsound.h"

// The base of each fake object: here the interfaces have no method that the game does not call.
using DirectDrawBase = IDirectDraw;
using ClipperBase = IDirectDrawClipper;
using SurfaceBase = IDirectDrawSurface;
using DirectSoundBase = IDirectSound;
using SoundBufferBase = IDirectSoundBuffer;
