#include "menu/section_menu.h"

#include "app/mode_switch.h"
#include "gfx/display.h"
#include "platform/kernel.h"
#include "platform/registry.h"
#include "sound/sound.h"

#include <cstring>
#include <string>

namespace
{

constexpr char SETTINGS_KEY[] = "Software\\Tervalis";

LONG OpenSettings(HKEY& key)
{
    return RegCreateKeyExA(HKEY_CURRENT_USER, SETTINGS_KEY, 0, nullptr, REG_OPTION_NON_VOLATILE, KEY_ALL_ACCESS,
                           nullptr, &key, nullptr);
}

/// A stored number, whatever its type: its first bytes replace those of the default. A value longer than a number
/// counts as absent.
uint32_t ReadNumber(HKEY key, const char* name, uint32_t absent)
{
    uint32_t value = absent;
    DWORD type = REG_DWORD;
    DWORD size = sizeof value;
    const LONG result = RegQueryValueExA(key, name, nullptr, &type, reinterpret_cast<BYTE*>(&value), &size);
    return result == static_cast<LONG>(ERROR_SUCCESS) ? value : absent;
}

void WriteNumber(HKEY key, const char* name, uint32_t value)
{
    RegSetValueExA(key, name, 0, REG_DWORD, reinterpret_cast<const BYTE*>(&value), sizeof value);
}

/// A stored text, empty when it is absent or does not fit. It is stored without its terminating zero.
void ReadName(HKEY key, const char* valueName, char (&name)[NAME_BYTES])
{
    memset(name, 0, sizeof name);
    DWORD type = REG_SZ;
    DWORD size = sizeof name;
    const LONG result = RegQueryValueExA(key, valueName, nullptr, &type, reinterpret_cast<BYTE*>(name), &size);
    if (result != static_cast<LONG>(ERROR_SUCCESS) || memchr(name, 0, sizeof name) == nullptr)
        name[0] = 0;
}

void WriteName(HKEY key, const char* valueName, const char* name)
{
    RegSetValueExA(key, valueName, 0, REG_SZ, reinterpret_cast<const BYTE*>(name), static_cast<DWORD>(strlen(name)));
}

/// The value name of a ranking place, counted from 0: "Name 1" to "Name 10".
std::string PlaceName(const char* kind, int place)
{
    return std::string(kind) + ' ' + std::to_string(place + 1);
}
}

int CSectionMenu::SettingsLoad()
{
    HKEY key = nullptr;
    if (const LONG result = OpenSettings(key); result != static_cast<LONG>(ERROR_SUCCESS))
        return result;
    ApplyDisplayMode(ReadNumber(key, "Windowed", 1) != 0);
    SoundSetMute(ReadNumber(key, "No Sound", 0) != 0 ? 1 : 0);
    for (size_t i = 0; i < keys.size(); ++i)
        keys[i] = ReadNumber(key, keyBindings[i].valueName, keyBindings[i].defaultKey);
    for (int place = 0; place < RANKING_PLACES; ++place)
        ReadName(key, PlaceName("Name", place).c_str(), rankNames[place]);
    for (int place = 0; place < RANKING_PLACES; ++place)
        rankScores[place] = static_cast<int32_t>(ReadNumber(key, PlaceName("Rank", place).c_str(), 0));
    const LONG result = RegCloseKey(key); // a failure when a value was there but could not be read
    settingsRead = result == static_cast<LONG>(ERROR_SUCCESS);
    return result;
}

int CSectionMenu::SettingsSave()
{
    // A copy that stopped early, or could not read the store, holds defaults where a ranking may be stored.
    if (!settingsRead)
        return static_cast<int>(ERROR_READ_FAULT);
    HKEY key = nullptr;
    if (const LONG result = OpenSettings(key); result != static_cast<LONG>(ERROR_SUCCESS))
        return result;
    WriteNumber(key, "Windowed", isWindowed ? 1 : 0);
    WriteNumber(key, "No Sound", SoundGetMute() != 0 ? 1 : 0);
    for (size_t i = 0; i < keys.size(); ++i)
        WriteNumber(key, keyBindings[i].valueName, keys[i]);
    for (int place = 0; place < RANKING_PLACES; ++place)
        WriteName(key, PlaceName("Name", place).c_str(), rankNames[place]);
    for (int place = 0; place < RANKING_PLACES; ++place)
        WriteNumber(key, PlaceName("Rank", place).c_str(), static_cast<uint32_t>(rankScores[place]));
    return RegCloseKey(key);
}
