#include "platform/posix/user_folders.h"

#include <cstdlib>
#include <pwd.h>
#include <unistd.h>

namespace
{
/// The home as the user database has it, for who has left the environment's out.
std::string ListedHome()
{
    const passwd* user = getpwuid(getuid());
    return user != nullptr && user->pw_dir[0] == '/' ? user->pw_dir : "";
}
}

std::string FolderFromEnvironment(const char* variable)
{
    const char* folder = std::getenv(variable);
    return folder != nullptr && folder[0] == '/' ? folder : "";
}

std::string SettingsFolder(const std::string& program)
{
    if (program.empty() || program == "." || program == "..")
        return "";
    std::string config = FolderFromEnvironment("XDG_CONFIG_HOME");
    if (config.empty()) {
        const std::string home = FolderFromEnvironment("HOME");
        config = home.empty() ? ListedHome() : home;
        if (config.empty())
            return "";
        config += "/.config";
    }
    return config + "/" + program;
}
