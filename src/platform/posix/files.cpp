#include "platform/posix/kernel_object.h"
#include "platform/posix/out_of_memory.h"
#include "platform/posix/paths.h"
#include "platform/posix/read_file.h"

#include <cerrno>
#include <cstdint>
#include <memory>
#include <sys/stat.h>
#include <unistd.h>

namespace
{
constexpr DWORD FAILED = 0xFFFFFFFF; ///< what sizes and positions are on failure

struct OpenFile final : KernelObject {
    ~OpenFile() override
    {
        if (descriptor >= 0)
            close(descriptor);
    }

    int descriptor = -1;
};

/// Null, with the error set, when the handle is no open file.
OpenFile* FileOf(HANDLE handle)
{
    OpenFile* file = dynamic_cast<OpenFile*>(ObjectOf(handle));
    if (!file)
        SetLastError(ERROR_INVALID_HANDLE);
    return file;
}

DWORD OpenError()
{
    return errno == EACCES || errno == EPERM ? ERROR_ACCESS_DENIED : ERROR_FILE_NOT_FOUND;
}

/// Splits a 64-bit size or position; without room for its high half only the low one is given.
DWORD LowHalf(int64_t value, DWORD* high)
{
    if (high)
        *high = static_cast<DWORD>(value >> 32);
    return static_cast<DWORD>(value);
}

HANDLE FailToOpen(DWORD error)
{
    SetLastError(error);
    return INVALID_HANDLE_VALUE;
}

HANDLE OpenExisting(LPCSTR path)
{
    auto file = std::make_unique<OpenFile>();
    file->descriptor = OpenRegularFile(ResolvePath(path).c_str());
    if (file->descriptor < 0)
        return FailToOpen(OpenError());
    return HandleOf(file.release());
}
}

HANDLE CreateFileA(LPCSTR path, DWORD access, DWORD, SECURITY_ATTRIBUTES*, DWORD disposition, DWORD, HANDLE)
{
    if (access != GENERIC_READ || disposition != OPEN_EXISTING)
        return FailToOpen(ERROR_ACCESS_DENIED);
    return OrOutOfMemory(INVALID_HANDLE_VALUE, [path] { return OpenExisting(path); });
}

BOOL ReadFile(HANDLE handle, LPVOID buffer, DWORD size, LPDWORD bytesRead, OVERLAPPED*)
{
    if (bytesRead)
        *bytesRead = 0;
    const OpenFile* file = FileOf(handle);
    if (!file)
        return FALSE;
    const std::optional<size_t> done = ReadFully(file->descriptor, static_cast<char*>(buffer), size);
    if (!done) {
        SetLastError(ERROR_READ_FAULT);
        return FALSE;
    }
    if (bytesRead)
        *bytesRead = static_cast<DWORD>(*done);
    return TRUE;
}

DWORD SetFilePointer(HANDLE handle, LONG distance, LONG* distanceHigh, DWORD method)
{
    const OpenFile* file = FileOf(handle);
    if (!file)
        return FAILED;
    int64_t offset = distance;
    if (distanceHigh)
        offset = static_cast<int64_t>(*distanceHigh) << 32 | static_cast<DWORD>(distance);
    // The three methods (start, current position, end) are numbered as lseek's.
    const off_t position = lseek(file->descriptor, offset, static_cast<int>(method));
    if (position < 0) {
        SetLastError(ERROR_INVALID_HANDLE);
        return FAILED;
    }
    SetLastError(ERROR_SUCCESS);
    DWORD high = 0;
    const DWORD low = LowHalf(position, &high);
    if (distanceHigh)
        *distanceHigh = static_cast<LONG>(high);
    return low;
}

DWORD GetFileSize(HANDLE handle, LPDWORD sizeHigh)
{
    const OpenFile* file = FileOf(handle);
    struct stat status = {};
    if (!file || fstat(file->descriptor, &status) != 0)
        return FAILED;
    SetLastError(ERROR_SUCCESS);
    return LowHalf(status.st_size, sizeHigh);
}
