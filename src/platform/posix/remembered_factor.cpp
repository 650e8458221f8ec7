#include "platform/posix/remembered_factor.h"

#include "platform/posix/out_of_memory.h"
#include "platform/posix/safe_file.h"
#include "platform/posix/toml.h"
#include "platform/posix/user_folders.h"

namespace
{
constexpr size_t MOST_BYTES = 4096;
constexpr int LARGEST = 100; // beyond every screen

std::string FileIn(const std::string& folder)
{
    return folder + "/window.toml";
}

int ReadFactor(const std::string& program)
{
    const std::string folder = SettingsFolder(program);
    std::string text;
    if (folder.empty() || ReadSmallFile(FileIn(folder), MOST_BYTES, text) != 0)
        return 0;
    const auto values = ParseToml(text);
    const auto factor = values ? (*values)["factor"].value_exact<int64_t>() : std::nullopt;
    return factor && *factor > 0 && *factor <= LARGEST ? static_cast<int>(*factor) : 0;
}

bool WriteFactor(const std::string& program, int factor)
{
    const std::string folder = SettingsFolder(program);
    return !folder.empty() && MakeFolders(folder) == 0 &&
           ReplaceSmallFile(FileIn(folder), FormatToml(toml::table{ { "factor", factor } })) == 0;
}
}

int RememberedFactor(const std::string& program)
{
    return OrOutOfMemory(0, [&] { return ReadFactor(program); });
}

void RememberFactor(const std::string& program, int factor)
{
    if (factor != RememberedFactor(program))
        OrOutOfMemory(false, [&] { return WriteFactor(program, factor); });
}
