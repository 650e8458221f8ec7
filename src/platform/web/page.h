#pragma once

/// What the web page around the game does for it. page.js beside this file hands the calls on to the page's own script.
extern "C" {
/// Shows a frame: 32 bits a pixel, red first, row by row.
void PageShowFrame(const void* pixels, int width, int height);
/// Covers the screen, now or, where the browser asks for a key or click first, with the next one.
void PageEnterFullScreen();
void PageLeaveFullScreen();
/// Shows the page instead of the game, which then lacks the focus until the player goes on.
void PageStepBack();
/// Keeps the text on the page until the player has read it.
void PageShowMessage(const char* text);

/// The text kept under a name in the browser's storage, with malloc; null when there is none.
char* PageLoadText(const char* name);
/// Replaces it, whole or not at all. False where the storage is full or forbidden.
bool PageStoreText(const char* name, const char* text);
}
