#pragma once

#include "platform/window.h"

/// The window's queue, paced by frames. Within one frame the game remembers one key, one character and whether a
/// button is down, so a message that would hide a press from the frame in the making waits until that frame has been
/// shown, and all behind it wait with it.

/// Puts a message at the end of the queue.
void PostToWindow(UINT message, WPARAM wParam, LPARAM lParam);

/// Puts it before all that waits.
void PostFirstToWindow(UINT message, WPARAM wParam, LPARAM lParam);

/// The first message, which stays in the queue; null when there is none or it waits for the frame.
const MSG* DueMessage();

/// Takes the message that is due off the queue: the frame in the making will see it.
void TakeDueMessage();

/// The frame in the making is over, seen or not: what waited for it is due.
void EndFrameOfMessages();

/// Forgets all messages: their window is gone.
void DropMessages();
