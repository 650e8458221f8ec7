#pragma once

/// Keeps the screen saver waiting while the picture moves, as in play; it is free again once the picture has stood
/// still for a while, as in the menu, in a pause or without the focus. To be told of every frame whether it differs
/// from the one before.
void NoteFrame(bool moves);
