#include "platform/posix/paths.h"

#include <algorithm>
#include <filesystem>
#include <string_view>
#include <strings.h>
#include <system_error>

namespace fs = std::filesystem;

namespace
{
bool Exists(const fs::path& path)
{
    std::error_code error;
    return fs::exists(path, error);
}

/// The entry of `folder` that is `name` but for letter case, the first in byte order; empty when there is none.
std::string FindIgnoringCase(const fs::path& folder, const std::string& name)
{
    std::string found;
    std::error_code error;
    fs::directory_iterator entries(folder.empty() ? fs::path(".") : folder, error);
    for (; !error && entries != fs::directory_iterator(); entries.increment(error)) {
        const std::string entry = entries->path().filename().string();
        if (strcasecmp(entry.c_str(), name.c_str()) == 0 && (found.empty() || entry < found))
            found = entry;
    }
    return found;
}
}

std::string ResolvePath(const char* path)
{
    std::string written = path ? path : "";
    if (Exists(written))
        return written;
    std::replace(written.begin(), written.end(), '\\', '/');
    if (written.empty() || Exists(written))
        return written;

    fs::path resolved;
    bool lost = false;
    for (const fs::path& component : fs::path(written)) {
        if (!lost && !Exists(resolved / component)) {
            const std::string entry = FindIgnoringCase(resolved, component.string());
            lost = entry.empty();
            resolved /= lost ? component : fs::path(entry);
        } else {
            resolved /= component;
        }
    }
    return resolved.string();
}
