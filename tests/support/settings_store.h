#pragma once

#include "support/temp_folder.h"

#include <cstdint>
#include <optional>
#include <string>

// Tests must not touch the settings of whoever runs them.

/// From here on the settings are kept apart, at first empty; `folder` is the test's own and may hold them.
void UseFreshSettings(const TempFolder& folder);
/// From here on settings can be neither read nor written.
void UseNoSettings();

/// A stored number; none when there is no such value.
std::optional<uint32_t> StoredNumber(const char* name);
/// A stored text; none when there is no such value.
std::optional<std::string> StoredText(const char* name);
void StoreNumber(const char* name, uint32_t value);
