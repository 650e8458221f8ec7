#include "platform/posix/kernel_object.h"
#include "platform/posix/out_of_memory.h"
#include "platform/posix/safe_file.h"
#include "platform/posix/user_folders.h"

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <fcntl.h>
#include <memory>
#include <pthread.h>
#include <string>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>
#include <vector>

namespace
{
/// A lock on a file. The system drops it when the descriptor is closed, also by the process's death.
struct NamedMutex final : KernelObject {
    explicit NamedMutex(const std::string& lockPath);
    ~NamedMutex() override;

    std::string path;
    int descriptor = -1;
    bool isOwner = false;
    NamedMutex* next; ///< of the open ones
};

NamedMutex* openMutexes = nullptr;

NamedMutex::NamedMutex(const std::string& lockPath) : path(lockPath), next(std::exchange(openMutexes, this)) {}

NamedMutex::~NamedMutex()
{
    NamedMutex** link = &openMutexes;
    while (*link != this)
        link = &(*link)->next;
    *link = next;
    if (descriptor < 0)
        return;
    if (isOwner)
        unlink(path.c_str()); // while the lock still holds
    close(descriptor);
}

/// Runs in every forked child: one that stays, such as a message box, must not keep the lock when its parent dies.
void CloseInChild()
{
    for (NamedMutex* mutex = openMutexes; mutex; mutex = mutex->next)
        close(std::exchange(mutex->descriptor, -1));
}

[[maybe_unused]] const int forkHandler = pthread_atfork(nullptr, nullptr, CloseInChild);

/// Best first. Beside the settings, so that whatever session a copy runs in, no other overwrites what it stores; else
/// in a place that all sessions of a user share; last in the session's own.
std::vector<std::string> LockPaths(const std::string& name)
{
    std::vector<std::string> paths;
    if (const std::string folder = SettingsFolder(name); !folder.empty()) {
        MakeFolders(folder);
        paths.push_back(folder + "/instance.lock");
    }
    const std::string shared = "/" + name + "-" + std::to_string(getuid()) + ".lock"; // with other users' files
    for (const std::string& folder : { FolderFromEnvironment("TMPDIR"), std::string("/tmp") })
        if (!folder.empty())
            paths.push_back(folder + shared);
    if (const std::string folder = FolderFromEnvironment("XDG_RUNTIME_DIR"); !folder.empty())
        paths.push_back(folder + "/" + name + ".lock");
    return paths;
}

/// Everybody may write to the folder for temporary files: a link, or a file that another user laid there, is refused.
bool IsOwnFile(const struct stat& status)
{
    return S_ISREG(status.st_mode) && status.st_uid == getuid() && status.st_nlink == 1;
}

/// Whether the path still names the open file: its last owner removes it.
bool IsStillThere(const std::string& path, const struct stat& opened)
{
    struct stat named = {};
    return lstat(path.c_str(), &named) == 0 && named.st_dev == opened.st_dev && named.st_ino == opened.st_ino;
}

enum class Attempt { DONE, AGAIN, FAILED };

/// Opens the file and takes the lock unless somebody has it. On failure `errno` says why.
Attempt TryLock(NamedMutex& mutex)
{
    mutex.descriptor = open(mutex.path.c_str(), O_RDWR | O_CREAT | O_NOFOLLOW | O_CLOEXEC | O_NONBLOCK, 0600);
    struct stat status = {};
    if (mutex.descriptor < 0 || fstat(mutex.descriptor, &status) != 0)
        return Attempt::FAILED;
    if (status.st_nlink == 0) // removed between two calls
        return Attempt::AGAIN;
    if (!IsOwnFile(status)) {
        errno = EPERM;
        return Attempt::FAILED;
    }
    mutex.isOwner = flock(mutex.descriptor, LOCK_EX | LOCK_NB) == 0;
    if (mutex.isOwner && !IsStillThere(mutex.path, status)) {
        mutex.isOwner = false; // what lies there now is somebody else's
        return Attempt::AGAIN;
    }
    return mutex.isOwner || errno == EWOULDBLOCK ? Attempt::DONE : Attempt::FAILED;
}

/// Null where no lock can be made; the reason is then added to `problems`.
std::unique_ptr<NamedMutex> LockAt(const std::string& path, std::string& problems)
{
    constexpr int MOST_ATTEMPTS = 100;
    for (int i = 0; i < MOST_ATTEMPTS; ++i) {
        auto mutex = std::make_unique<NamedMutex>(path);
        const Attempt attempt = TryLock(*mutex);
        if (attempt == Attempt::DONE)
            return mutex;
        if (attempt == Attempt::FAILED)
            break;
    }
    problems += "; " + path + ": " + std::strerror(errno);
    return nullptr;
}

/// Goes from place to place until a lock can be made.
HANDLE MakeMutex(LPCSTR name, std::string& problems)
{
    for (const std::string& path : LockPaths(name)) {
        std::unique_ptr<NamedMutex> mutex = LockAt(path, problems);
        if (!mutex)
            continue;
        SetLastError(mutex->isOwner ? ERROR_SUCCESS : ERROR_ALREADY_EXISTS);
        return HandleOf(mutex.release());
    }
    SetLastError(ERROR_ACCESS_DENIED);
    return nullptr;
}
}

HANDLE CreateMutexA(SECURITY_ATTRIBUTES*, BOOL, LPCSTR name)
{
    std::string problems;
    const HANDLE mutex = OrOutOfMemory<HANDLE>(nullptr, [&] { return MakeMutex(name, problems); });
    if (!mutex)
        std::fprintf(stderr, "%s: cannot make the lock that keeps a second copy from starting%s\n", name,
                     problems.empty() ? "; out of memory" : problems.c_str());
    return mutex;
}
