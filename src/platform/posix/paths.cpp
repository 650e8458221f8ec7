#include "platform/posix/paths.h"

#include <algorithm>
#include <dirent.h>
#include <memory>
#include <strings.h>
#include <unistd.h>

namespace
{
struct FolderClose {
    void operator()(DIR* folder) const { closedir(folder); }
};

bool Exists(const std::string& path)
{
    return access(path.c_str(), F_OK) == 0;
}

/// The entry of `folder` that is `name` but for letter case, the first in byte order; empty when there is none.
std::string FindIgnoringCase(const std::string& folder, const std::string& name)
{
    std::string found;
    const std::unique_ptr<DIR, FolderClose> entries(opendir(folder.empty() ? "." : folder.c_str()));
    while (const dirent* entry = entries ? readdir(entries.get()) : nullptr)
        if (strcasecmp(entry->d_name, name.c_str()) == 0 && (found.empty() || found > entry->d_name))
            found = entry->d_name;
    return found;
}
}

std::string ResolvePath(const char* path)
{
    std::string resolved = path ? path : "";
    if (Exists(resolved))
        return resolved;
    std::replace(resolved.begin(), resolved.end(), '\\', '/');
    for (size_t begin = 0; begin < resolved.size();) {
        const size_t end = std::min(resolved.find('/', begin), resolved.size());
        if (end > begin && !Exists(resolved.substr(0, end))) {
            const std::string entry = FindIgnoringCase(resolved.substr(0, begin), resolved.substr(begin, end - begin));
            if (entry.empty())
                break;
            resolved.replace(begin, entry.size(), entry); // of the same length
        }
        begin = end + 1;
    }
    return resolved;
}
