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

/// The program's folder in the one that the variable names, which by default lies at `inHome`.
std::string UserFolder(const char* variable, const char* inHome, const std::string& program)
{
    if (program.empty() || program == "." || program == "..")
        return "";
    std::string parent = FolderFromEnvironment(variable);
    if (parent.empty()) {
        const std::string home = FolderFromEnvironment("HOME");
        parent = home.empty() ? ListedHome() : home;
        if (parent.empty())
            return "";
        parent += inHome;
    }
    return parent + "/" + program;
}
}

std::string FolderFromEnvironment(const char* variable)
{
    const char* folder = std::getenv(variable);
    return folder != nullptr && folder[0] == '/' ? folder : "";
}

std::string SettingsFolder(const std::string& program)
{
    return UserFolder("XDG_CONFIG_HOME", "/.config", program);
}

std::string StateFolder(const std::string& program)
{
    return UserFolder("XDG_STATE_HOME", "/.local/state", program);
}
