#include "support/test_system.h"

#include "platform/registry.h"

#include <cstring>
#include <filesystem>
#include <stdexcept>
#include <vector>

#ifdef _WIN32
namespace
{
constexpr char SCRATCH_KEY[] = "Software\\Tervalis tests";
}

/// HKEY_CURRENT_USER means a new key for this process.
void UseTestSystem(const TempFolder&)
{
    LeaveTestSystem();
    HKEY key = nullptr;
    if (RegCreateKeyExA(HKEY_CURRENT_USER, SCRATCH_KEY, 0, nullptr, REG_OPTION_NON_VOLATILE, KEY_ALL_ACCESS, nullptr,
                        &key, nullptr) != 0 ||
        RegOverridePredefKey(HKEY_CURRENT_USER, key) != 0)
        throw std::runtime_error("no scratch settings");
    RegCloseKey(key);
}

void LeaveTestSystem()
{
    RegOverridePredefKey(HKEY_CURRENT_USER, nullptr);
    RegDeleteTreeA(HKEY_CURRENT_USER, SCRATCH_KEY);
}
#else
#include "support/settings_store.h"

void UseTestSystem(const TempFolder& folder)
{
    setenv("SDL_VIDEODRIVER", "dummy", 1);
    setenv("SDL_RENDER_DRIVER", "software", 1);
    setenv("PATH", folder.Path().c_str(), 1); // no browser is there to open a page
    setenv("XDG_RUNTIME_DIR", folder.Path().c_str(), 1);
    std::filesystem::remove_all(folder.Path() + "/config");
    UseFreshSettings(folder);
}

void LeaveTestSystem()
{
    UseNoSettings();
}
#endif

StateFields StoredSettings()
{
    std::vector<std::string> names = { "Windowed", "No Sound", "Up 1",   "Down 1", "Left 1",
                                       "Right 1",  "Up 2",     "Down 2", "Left 2", "Right 2" };
    for (int place = 1; place <= 10; ++place) {
        names.push_back("Name " + std::to_string(place));
        names.push_back("Rank " + std::to_string(place));
    }
    HKEY key = nullptr;
    RegCreateKeyExA(HKEY_CURRENT_USER, "Software\\Tervalis", 0, nullptr, REG_OPTION_NON_VOLATILE, KEY_ALL_ACCESS,
                    nullptr, &key, nullptr);
    StateFields values;
    for (std::string& name : names) {
        BYTE bytes[256] = {};
        DWORD type = REG_DWORD;
        DWORD size = sizeof bytes - 1;
        RegQueryValueExA(key, name.c_str(), nullptr, &type, bytes, &size);
        uint32_t number = 0;
        std::memcpy(&number, bytes, sizeof number);
        std::erase(name, ' ');
        values.emplace("stored." + name, type == REG_SZ ? reinterpret_cast<char*>(bytes) : std::to_string(number));
    }
    RegCloseKey(key);
    return values;
}
