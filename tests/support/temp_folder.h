#pragma once

#include <string>

/// A folder of its own for a test, current while it lives and removed afterwards; the folder that was current before
/// is current again then.
class TempFolder
{
public:
    TempFolder();
    ~TempFolder();
    TempFolder(const TempFolder&) = delete;
    TempFolder& operator=(const TempFolder&) = delete;

    const std::string& Path() const { return path; }
    /// A file's whole content, empty when there is none.
    std::string Read(const std::string& name) const;
    /// Makes or replaces a file, and the folders on its way.
    void Write(const std::string& name, const std::string& content) const;

private:
    std::string path;
    std::string before;
};
