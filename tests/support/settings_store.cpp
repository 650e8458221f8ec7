#include "support/settings_store.h"

#include "platform/registry.h"

#include <cstring>
#include <stdexcept>

namespace
{
struct SettingsKey {
    SettingsKey()
    {
        if (RegCreateKeyExA(HKEY_CURRENT_USER, "Software\\Tervalis", 0, nullptr, REG_OPTION_NON_VOLATILE,
                            KEY_ALL_ACCESS, nullptr, &key, nullptr) != 0)
            throw std::runtime_error("no settings");
    }
    ~SettingsKey() { RegCloseKey(key); }
    SettingsKey(const SettingsKey&) = delete;
    SettingsKey& operator=(const SettingsKey&) = delete;

    std::optional<std::string> Read(const char* name, DWORD wantedType) const
    {
        BYTE bytes[512];
        DWORD type = 0;
        DWORD size = sizeof bytes;
        if (RegQueryValueExA(key, name, nullptr, &type, bytes, &size) != 0 || type != wantedType)
            return {};
        return std::string(reinterpret_cast<const char*>(bytes), size);
    }

    HKEY key = nullptr;
};
}

std::optional<uint32_t> StoredNumber(const char* name)
{
    const std::optional<std::string> bytes = SettingsKey().Read(name, REG_DWORD);
    uint32_t value = 0;
    if (!bytes || bytes->size() != sizeof value)
        return {};
    std::memcpy(&value, bytes->data(), sizeof value);
    return value;
}

std::optional<std::string> StoredText(const char* name)
{
    std::optional<std::string> text = SettingsKey().Read(name, REG_SZ);
    if (text && text->ends_with('\0')) // the system's own store adds it
        text->pop_back();
    return text;
}

void StoreNumber(const char* name, uint32_t value)
{
    BYTE bytes[sizeof value];
    std::memcpy(bytes, &value, sizeof value);
    RegSetValueExA(SettingsKey().key, name, 0, REG_DWORD, bytes, sizeof bytes);
}
