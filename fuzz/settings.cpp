// A settings file: every value is read as the program reads it, one is stored, and all others must outlive that.

#include "platform/registry.h"
#include "target.h"

#include <cstdio>
#include <string>
#include <vector>

namespace
{
const std::string folder = "/dev/shm/tervalis_fuzz_" + std::to_string(getpid());
const std::string path = folder + "/Tervalis/settings.toml";

struct Stored {
    DWORD type = 0;
    std::string bytes;
    LONG result = 0;

    bool operator==(const Stored&) const = default;
};

std::vector<Stored> ReadValues(HKEY key)
{
    std::vector<Stored> values;
    for (const char* name : { "Windowed", "Up 1", "Name 1", "Rank 1", "Name 2" }) {
        Stored& value = values.emplace_back();
        BYTE bytes[256];
        DWORD size = sizeof bytes;
        DWORD wholeSize = 0;
        value.result = RegQueryValueExA(key, name, nullptr, &value.type, bytes, &size);
        if (value.result != static_cast<LONG>(ERROR_SUCCESS))
            continue;
        value.bytes.assign(bytes, bytes + size);
        RegQueryValueExA(key, name, nullptr, nullptr, nullptr, &wholeSize);
        Require(wholeSize == size);
    }
    return values;
}

HKEY Open()
{
    HKEY key = nullptr;
    const LONG result = RegCreateKeyExA(HKEY_CURRENT_USER, "Software\\Tervalis", 0, nullptr, REG_OPTION_NON_VOLATILE,
                                        KEY_ALL_ACCESS, nullptr, &key, nullptr);
    Require(result == static_cast<LONG>(ERROR_SUCCESS)); // a damaged file is set aside
    return key;
}

void RemoveFiles()
{
    for (const char* name : { "/Tervalis/settings.toml", "/Tervalis/settings.toml.damaged", "/Tervalis", "" })
        std::remove((folder + name).c_str());
}

bool UseOwnFolder()
{
    return std::atexit(RemoveFiles) == 0 && setenv("XDG_CONFIG_HOME", folder.c_str(), 1) == 0 &&
           RegCloseKey(Open()) == static_cast<LONG>(ERROR_SUCCESS);
}
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    static const bool isReady = UseOwnFolder();
    Require(isReady);
    std::remove((path + ".damaged").c_str());
    FILE* file = std::fopen(path.c_str(), "wb");
    Require(file != nullptr && std::fwrite(data, 1, size, file) == size && std::fclose(file) == 0);
    HKEY key = Open();
    const std::vector<Stored> before = ReadValues(key);
    const DWORD stored = static_cast<DWORD>(size < 64 ? size : 64);
    RegSetValueExA(key, "No Sound", 0, stored <= sizeof(DWORD) ? REG_DWORD : REG_SZ, data, stored);
    Require(RegCloseKey(key) == static_cast<LONG>(ERROR_SUCCESS));
    key = Open();
    Require(ReadValues(key) == before);
    BYTE bytes[64];
    DWORD kept = sizeof bytes;
    Require(RegQueryValueExA(key, "No Sound", nullptr, nullptr, bytes, &kept) == static_cast<LONG>(ERROR_SUCCESS));
    Require(std::equal(bytes, bytes + kept, data) && kept == stored);
    RegCloseKey(key);
    return 0;
}
