#pragma once

#include <cstddef>
#include <optional>

/// Opens a regular file for reading. -1, with the reason in errno, when there is none: EACCES for anything else under
/// that name, such as a pipe, which must not stop the program.
int OpenRegularFile(const char* path);

/// The bytes read from the file's position on, fewer than `size` only at its end; none on a read error.
std::optional<size_t> ReadFully(int descriptor, char* target, size_t size);
