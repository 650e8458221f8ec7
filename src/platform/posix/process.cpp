#include "platform/kernel.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>

void OutputDebugStringA(LPCSTR text)
{
    std::fputs(text, stderr);
}

HGLOBAL GlobalAlloc(UINT, size_t bytes)
{
    return std::malloc(std::max<size_t>(bytes, 1)); // no bytes are memory too
}

HGLOBAL GlobalFree(HGLOBAL memory)
{
    std::free(memory);
    return nullptr;
}
