#pragma once

#include "support/state_fields.h"
#include "support/temp_folder.h"

/// From here on the program runs without a screen where our own layer stands for the system, and keeps its settings
/// apart, at first empty.
void UseTestSystem(const TempFolder& folder);
/// From here on settings can be neither read nor written.
void LeaveTestSystem();

/// Every value that the program stores: its name without blanks, and its number or text; absent ones are 0 or empty.
StateFields StoredSettings();
