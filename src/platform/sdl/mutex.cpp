#include "platform/posix/kernel_object.h"

#include <algorithm>
#include <cerrno>
#include <cstdlib>
#include <fcntl.h>
#include <string>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace
{
/// A lock on a file. The system drops it when the descriptor is closed, also by the process's death. The file itself
/// stays: removing it would let a third process lock a new file while a second one still holds the old.
struct NamedMutex final : KernelObject {
    explicit NamedMutex(int openDescriptor) : descriptor(openDescriptor) {}
    ~NamedMutex() override { close(descriptor); }

    const int descriptor;
};

/// One per user and name: in the session's own folder, else in the one for temporary files.
std::string LockPath(std::string name)
{
    std::ranges::replace_if(
        name, [](char c) { return c == '/' || c == '\\'; }, '_');
    const char* runtime = std::getenv("XDG_RUNTIME_DIR");
    if (runtime && *runtime == '/' && access(runtime, W_OK | X_OK) == 0)
        return std::string(runtime) + "/" + name + ".lock";
    const char* temporary = std::getenv("TMPDIR");
    const std::string folder = temporary && *temporary == '/' ? temporary : "/tmp";
    return folder + "/" + name + "-" + std::to_string(getuid()) + ".lock";
}

/// Everybody may write to the folder for temporary files: a link, or a file that another user laid there, is refused.
bool IsOwnFile(int descriptor)
{
    struct stat status = {};
    return fstat(descriptor, &status) == 0 && S_ISREG(status.st_mode) && status.st_uid == getuid() &&
           status.st_nlink == 1;
}

/// -1 on failure.
int OpenLockFile(const std::string& path)
{
    const int descriptor = open(path.c_str(), O_RDWR | O_CREAT | O_NOFOLLOW | O_CLOEXEC | O_NONBLOCK, 0600);
    if (descriptor < 0 || IsOwnFile(descriptor))
        return descriptor;
    close(descriptor);
    return -1;
}
}

HANDLE CreateMutexA(SECURITY_ATTRIBUTES*, BOOL, LPCSTR name)
{
    const int descriptor = OpenLockFile(LockPath(name));
    if (descriptor < 0) {
        SetLastError(ERROR_ACCESS_DENIED);
        return nullptr;
    }
    const bool taken = flock(descriptor, LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK;
    SetLastError(taken ? ERROR_ALREADY_EXISTS : ERROR_SUCCESS);
    return HandleOf(new NamedMutex(descriptor));
}
