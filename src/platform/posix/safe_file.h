#pragma once

#include "platform/types.h"

#include <cstddef>
#include <string>

// Small files that must not be lost. Every call returns an error code of kernel.h, 0 for success.

/// Reads at most `limit` bytes. ERROR_FILE_NOT_FOUND when there is no such file; what is no ordinary file or cannot
/// be read is another error.
LONG ReadSmallFile(const std::string& path, size_t limit, std::string& content);

/// Replaces a file, or makes it: whole or not at all, whenever the program or the machine stops. A link stays a
/// link; its target is replaced.
LONG ReplaceSmallFile(const std::string& path, const std::string& content);

/// Renames a file to its name with ".damaged" behind it, numbered when that exists.
LONG SetFileAside(const std::string& path);

/// Makes a folder that only the user may enter, and those above it that are missing.
LONG MakeFolders(const std::string& path);
