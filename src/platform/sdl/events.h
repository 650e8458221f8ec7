#pragma once

/// Turns what happened to the window, keyboard and mouse since the last call into messages.
void CollectEvents();

/// Forgets messages, held keys and focus of a window that is gone.
void ForgetEvents();
