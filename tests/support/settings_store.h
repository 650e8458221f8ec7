#pragma once

#include "support/temp_folder.h"

#include <cstdlib>

// Tests must not touch the settings of whoever runs them.

/// The settings' file in a test's folder.
constexpr char SETTINGS_FILE[] = "config/Tervalis/settings.toml";

/// From here on the settings are kept in that folder.
inline void UseFreshSettings(const TempFolder& folder)
{
    setenv("XDG_CONFIG_HOME", (folder.Path() + "/config").c_str(), 1);
}
/// From here on settings can be neither read nor written.
inline void UseNoSettings()
{
    setenv("XDG_CONFIG_HOME", "/dev/null", 1);
}

/// The settings are kept in this folder while it lives, at first empty.
struct SettingsFolder : TempFolder {
    SettingsFolder() { UseFreshSettings(*this); }
    ~SettingsFolder() { UseNoSettings(); }
};
