#pragma once

#include <cstdint>

// Numbers of a file, least significant byte first.

constexpr uint16_t ReadLe16(const uint8_t* bytes)
{
    return static_cast<uint16_t>(bytes[0] | bytes[1] << 8);
}

constexpr uint32_t ReadLe32(const uint8_t* bytes)
{
    return ReadLe16(bytes) | static_cast<uint32_t>(ReadLe16(bytes + 2)) << 16;
}
