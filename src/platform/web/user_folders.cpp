#include "platform/posix/user_folders.h"

/// Names in the browser's storage begin with the program's, for pages of the same server share it.
std::string SettingsFolder(const std::string& program)
{
    return program;
}
