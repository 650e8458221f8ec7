#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <sys/mman.h>
#include <unistd.h>

/// What each target of this folder defines: one input. It must end by itself, whatever the bytes; what must hold beyond
/// that it checks with `Require`.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size);

/// Ends the run where something does not hold.
inline void Require(bool holds)
{
    if (!holds)
        std::abort();
}

/// A file in memory that the program opens by its name.
class InputFile
{
public:
    void Write(const uint8_t* data, size_t size) const
    {
        Require(ftruncate(descriptor, 0) == 0);
        Require(pwrite(descriptor, data, size, 0) == static_cast<ssize_t>(size));
    }
    const char* Path() const { return path.c_str(); }

private:
    int descriptor = memfd_create("input", MFD_CLOEXEC);
    std::string path = "/proc/self/fd/" + std::to_string(descriptor);
};

/// Takes numbers off the front of an input; 0 behind its end.
class Numbers
{
public:
    Numbers(const uint8_t* bytes, size_t count) : next(bytes), end(bytes + count) {}

    uint8_t Take8() { return next < end ? *next++ : uint8_t{ 0 }; }
    uint32_t Take16() { return Take8() | static_cast<uint32_t>(Take8()) << 8; }
    uint32_t Take32() { return Take16() | Take16() << 16; }
    bool IsAtEnd() const { return next == end; }
    const uint8_t* Rest() const { return next; }
    size_t RestSize() const { return static_cast<size_t>(end - next); }

private:
    const uint8_t* next;
    const uint8_t* end;
};
