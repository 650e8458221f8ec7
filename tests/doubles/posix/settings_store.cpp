#include "support/settings_store.h"

#include <cstdlib>

void UseFreshSettings(const TempFolder& folder)
{
    setenv("XDG_CONFIG_HOME", (folder.Path() + "/config").c_str(), 1);
}

void UseNoSettings()
{
    setenv("XDG_CONFIG_HOME", "/dev/null", 1);
}
