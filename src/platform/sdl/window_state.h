#pragma once

/// Whether the game's window has the keyboard focus; true until it first loses it. May be asked on any thread.
bool WindowHasFocus();
