#include "platform/posix/read_file.h"

#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>

int OpenRegularFile(const char* path)
{
    // Without O_NONBLOCK a pipe would be waited for.
    const int fd = open(path, O_RDONLY | O_CLOEXEC | O_NOCTTY | O_NONBLOCK);
    struct stat status = {};
    if (fd < 0 || (fstat(fd, &status) == 0 && S_ISREG(status.st_mode)))
        return fd;
    close(fd);
    errno = EACCES;
    return -1;
}

std::optional<size_t> ReadAt(int fd, int64_t place, char* target, size_t size)
{
    for (size_t done = 0;;) {
        const ssize_t part = pread(fd, target + done, size - done, place + static_cast<int64_t>(done));
        if (part > 0)
            done += static_cast<size_t>(part);
        else if (part == 0) // all that was wanted, or the file's end
            return done;
        else if (errno != EINTR)
            return std::nullopt;
    }
}
