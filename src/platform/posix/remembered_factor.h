#pragma once

#include <string>

// The factor by which the player wants a program's window shown, in window.toml beside the program's settings.

/// 0 when there is none, or the file holds none.
int RememberedFactor(const std::string& program);

/// 0 forgets it. A file that cannot be written is left as it is: the factor lasts until the program ends.
void RememberFactor(const std::string& program, int factor);
