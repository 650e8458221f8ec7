#include "platform/posix/safe_file.h"

#include "platform/kernel.h"
#include "platform/posix/read_file.h"

#include <cerrno>
#include <climits>
#include <cstdio>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace
{

constexpr mode_t USER_FILE = 0600;
constexpr mode_t USER_FOLDER = 0700;
constexpr int ASIDE_NAMES = 1000;
constexpr int MAX_LINKS = 40;
constexpr int LOCK_TRIES = 20;
constexpr useconds_t LOCK_WAIT_US = 25000;

/// An open file, closed at the end of its scope.
struct Descriptor {
    explicit Descriptor(int opened) : fd(opened) {}
    ~Descriptor()
    {
        if (fd >= 0)
            close(fd);
    }
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;
    int fd;
};

LONG Code(DWORD code)
{
    return static_cast<LONG>(code);
}

/// What `errno` is among the system's error codes.
LONG LastCode(DWORD otherwise)
{
    switch (errno) {
    case ENOENT:
        return Code(ERROR_FILE_NOT_FOUND);
    case EACCES:
    case EPERM:
    case EROFS:
        return Code(ERROR_ACCESS_DENIED);
    default:
        return Code(otherwise);
    }
}

/// One writer at a time. False where folders cannot be locked, or when another program keeps the lock: saving must not
/// hold up the player for longer than a moment. The system drops the lock of a program that dies.
bool LockFolder(int folder)
{
    for (int i = 0; i < LOCK_TRIES; ++i) {
        if (flock(folder, LOCK_EX | LOCK_NB) == 0)
            return true;
        if (errno != EWOULDBLOCK && errno != EINTR)
            return false;
        usleep(LOCK_WAIT_US);
    }
    return false;
}

std::string FolderOf(const std::string& path)
{
    const size_t slash = path.rfind('/');
    return slash == std::string::npos ? "." : path.substr(0, slash + 1);
}

/// The file itself where `path` is a link, also when it is not there yet.
std::string ResolveLink(const std::string& path)
{
    std::string file = path;
    char target[PATH_MAX];
    for (int i = 0; i < MAX_LINKS; ++i) {
        const ssize_t length = readlink(file.c_str(), target, sizeof target);
        if (length < 0)
            break;
        const std::string next(target, static_cast<size_t>(length));
        file = next.starts_with('/') ? next : FolderOf(file).append("/").append(next);
    }
    return file;
}

bool WriteAll(int fd, const std::string& content)
{
    size_t done = 0;
    while (done < content.size()) {
        const ssize_t count = write(fd, content.data() + done, content.size() - done);
        if (count < 0 && errno != EINTR)
            return false;
        done += count > 0 ? static_cast<size_t>(count) : 0;
    }
    return true;
}

/// A new file with that content, on the disk when the call returns.
LONG WriteNewFile(const std::string& path, const std::string& content)
{
    const Descriptor file(open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, USER_FILE));
    if (file.fd < 0 || !WriteAll(file.fd, content) || fsync(file.fd) != 0)
        return LastCode(ERROR_WRITE_FAULT);
    return Code(ERROR_SUCCESS);
}

}

LONG ReadSmallFile(const std::string& path, size_t limit, std::string& content)
{
    const Descriptor file(OpenRegularFile(path.c_str()));
    if (file.fd < 0)
        return LastCode(ERROR_READ_FAULT);
    content.resize(limit);
    const std::optional<size_t> size = ReadFully(file.fd, content.data(), limit);
    content.resize(size.value_or(0));
    return size ? Code(ERROR_SUCCESS) : LastCode(ERROR_READ_FAULT);
}

LONG ReplaceSmallFile(const std::string& path, const std::string& content)
{
    const std::string target = ResolveLink(path);
    if (access(target.c_str(), W_OK) != 0 && errno != ENOENT)
        return LastCode(ERROR_WRITE_FAULT); // renaming would replace a write-protected file all the same
    const Descriptor folder(open(FolderOf(target).c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (folder.fd < 0)
        return LastCode(ERROR_WRITE_FAULT);
    // Without the lock somebody else may be at work on the common draft.
    const std::string draft = target + ".tmp" + (LockFolder(folder.fd) ? "" : "." + std::to_string(getpid()));
    unlink(draft.c_str()); // left by a program that died while it saved
    LONG result = WriteNewFile(draft, content);
    if (result == Code(ERROR_SUCCESS) && rename(draft.c_str(), target.c_str()) != 0)
        result = LastCode(ERROR_WRITE_FAULT);
    if (result != Code(ERROR_SUCCESS)) {
        unlink(draft.c_str());
        return result;
    }
    // Some file systems have nothing to flush for a folder and say so.
    if (fsync(folder.fd) != 0 && errno != EINVAL)
        return LastCode(ERROR_WRITE_FAULT);
    return Code(ERROR_SUCCESS);
}

LONG SetFileAside(const std::string& path)
{
    for (int number = 1; number <= ASIDE_NAMES; ++number) {
        const std::string aside = path + ".damaged" + (number == 1 ? "" : "." + std::to_string(number));
        // Making the name first, and only if it is new, keeps rename() from replacing what was set aside before.
        const Descriptor reserved(open(aside.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, USER_FILE));
        if (reserved.fd < 0 && errno == EEXIST)
            continue;
        if (reserved.fd < 0)
            return LastCode(ERROR_ACCESS_DENIED);
        if (rename(path.c_str(), aside.c_str()) == 0)
            return Code(ERROR_SUCCESS);
        const LONG result = LastCode(ERROR_ACCESS_DENIED);
        unlink(aside.c_str());
        return result;
    }
    return Code(ERROR_ALREADY_EXISTS);
}

LONG MakeFolders(const std::string& path)
{
    for (size_t slash = path.find('/', 1);; slash = path.find('/', slash + 1)) {
        const std::string folder = path.substr(0, slash);
        if (mkdir(folder.c_str(), USER_FOLDER) != 0 && errno != EEXIST) {
            const int error = errno;
            struct stat status = {};
            if (stat(folder.c_str(), &status) != 0) { // an existing folder of a read-only disk is not an error
                errno = error;
                return LastCode(ERROR_ACCESS_DENIED);
            }
        }
        if (slash == std::string::npos)
            return Code(ERROR_SUCCESS);
    }
}
