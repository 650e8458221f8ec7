#include "platform/posix/read_file.h"

#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

int OpenRegularFile(const char* path)
{
    // Without O_NONBLOCK a pipe would be waited for.
    const int descriptor = open(path, O_RDONLY | O_CLOEXEC | O_NOCTTY | O_NONBLOCK);
    struct stat status = {};
    if (descriptor < 0 || (fstat(descriptor, &status) == 0 && S_ISREG(status.st_mode)))
        return descriptor;
    close(descriptor);
    errno = EACCES;
    return -1;
}

std::optional<size_t> ReadFully(int descriptor, char* target, size_t size)
{
    for (size_t done = 0;;) {
        const ssize_t part = read(descriptor, target + done, size - done);
        if (part > 0)
            done += static_cast<size_t>(part);
        else if (part == 0) // all that was wanted, or the file's end
            return done;
        else if (errno != EINTR)
            return std::nullopt;
    }
}
