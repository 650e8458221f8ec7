#pragma once

/// Ends a frame of the game: shows what was drawn where somebody sees it, and lets the messages that waited for the
/// frame come.
void PresentFrame();
