#pragma once

#include <string>

/// The path of an existing file or folder for this system's own calls. What is not found as written is looked for with
/// back slashes as separators too, component by component without regard to the case of ASCII letters. From the first
/// component that does not exist at all, the path stays as written, so that the caller's own call gives the error.
std::string ResolvePath(const char* path);
