#include "platform/posix/safe_file.h"

#include "platform/kernel.h"
#include "platform/web/page.h"

#include <cstdlib>
#include <memory>

// Small files in the browser's storage, which replaces a value whole or not at all.

namespace
{
LONG Code(DWORD code)
{
    return static_cast<LONG>(code);
}

std::unique_ptr<char, decltype(&std::free)> Load(const std::string& path)
{
    return { PageLoadText(path.c_str()), std::free };
}
}

/// A storage that is forbidden is an empty one: play goes on.
LONG ReadSmallFile(const std::string& path, size_t limit, std::string& content)
{
    const auto text = Load(path);
    if (!text)
        return Code(ERROR_FILE_NOT_FOUND);
    content = std::string(text.get()).substr(0, limit);
    return Code(ERROR_SUCCESS);
}

LONG ReplaceSmallFile(const std::string& path, const std::string& content)
{
    return Code(PageStoreText(path.c_str(), content.c_str()) ? ERROR_SUCCESS : ERROR_WRITE_FAULT);
}

/// Only the last one is kept: the storage is small, and no player edits it by hand.
LONG SetFileAside(const std::string& path)
{
    const auto text = Load(path);
    return text ? ReplaceSmallFile(path + ".damaged", text.get()) : Code(ERROR_SUCCESS);
}

LONG MakeFolders(const std::string&)
{
    return Code(ERROR_SUCCESS);
}
