#include "support/settings_store.h"

#include "platform/registry.h"

#include <stdexcept>

namespace
{
constexpr char SCRATCH_KEY[] = "Software\\Tervalis tests";

/// Lets HKEY_CURRENT_USER mean a new key for this process.
HKEY RedirectSettings()
{
    HKEY key = nullptr;
    RegOverridePredefKey(HKEY_CURRENT_USER, nullptr);
    RegDeleteTreeA(HKEY_CURRENT_USER, SCRATCH_KEY);
    if (RegCreateKeyExA(HKEY_CURRENT_USER, SCRATCH_KEY, 0, nullptr, REG_OPTION_NON_VOLATILE, KEY_ALL_ACCESS, nullptr,
                        &key, nullptr) != 0 ||
        RegOverridePredefKey(HKEY_CURRENT_USER, key) != 0)
        throw std::runtime_error("no scratch settings");
    return key;
}
}

void UseFreshSettings(const TempFolder&)
{
    RegCloseKey(RedirectSettings());
}

void UseNoSettings()
{
    const HKEY key = RedirectSettings();
    RegDeleteKeyA(key, ""); // nothing can be made or opened under a key that is gone
    RegCloseKey(key);
}
