#include "platform/posix/kernel_object.h"
#include "platform/posix/out_of_memory.h"
#include "platform/posix/paths.h"
#include "platform/posix/read_file.h"

#include <memory>

namespace
{
struct OpenFile final : KernelObject {
    Descriptor descriptor;
    int64_t position = 0;
};

OpenFile& FileOf(HANDLE handle)
{
    return *static_cast<OpenFile*>(ObjectOf(handle));
}
}

HANDLE CreateFileA(LPCSTR path, DWORD, DWORD, SECURITY_ATTRIBUTES*, DWORD, DWORD, HANDLE)
{
    return OrOutOfMemory(INVALID_HANDLE_VALUE, [path] {
        auto file = std::make_unique<OpenFile>();
        file->descriptor.fd = OpenRegularFile(ResolvePath(path).c_str());
        return file->descriptor.fd < 0 ? INVALID_HANDLE_VALUE : HandleOf(file.release());
    });
}

BOOL ReadFile(HANDLE handle, LPVOID buffer, DWORD size, LPDWORD bytesRead, OVERLAPPED*)
{
    OpenFile& file = FileOf(handle);
    const auto done = ReadAt(file.descriptor.fd, file.position, static_cast<char*>(buffer), size);
    if (!done)
        return FALSE;
    file.position += static_cast<int64_t>(*done);
    *bytesRead = static_cast<DWORD>(*done);
    return TRUE;
}

DWORD SetFilePointer(HANDLE handle, LONG distance, LONG*, DWORD)
{
    const DWORD position = static_cast<DWORD>(distance);
    FileOf(handle).position = position;
    return position;
}

DWORD GetFileSize(HANDLE handle, LPDWORD)
{
    return static_cast<DWORD>(lseek(FileOf(handle).descriptor.fd, 0, SEEK_END));
}
