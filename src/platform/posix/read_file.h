#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <unistd.h>

/// An open file, closed at the end of its scope.
struct Descriptor {
    Descriptor() = default;
    explicit Descriptor(int opened) : fd(opened) {}
    ~Descriptor() { close(fd); } // which does nothing to none
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;

    int fd = -1; ///< negative: none
};

/// Opens a regular file for reading. Negative, with the reason in errno, when there is none: EACCES for anything else
/// under that name, such as a pipe, which must not stop the program.
int OpenRegularFile(const char* path);

/// The bytes read from that place on, fewer than `size` only at the file's end; none on a read error.
std::optional<size_t> ReadAt(int fd, int64_t place, char* target, size_t size);
