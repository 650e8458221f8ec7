#pragma once

#include <cstdint>
#include <optional>
#include <string>

/// A little-endian number of that type as file bytes.
template <typename Number>
std::string Bytes(Number value)
{
    std::string bytes;
    for (size_t i = 0; i < sizeof value; ++i)
        bytes += static_cast<char>(value >> (8 * i));
    return bytes;
}

/// A chunk with its pad byte; `claimed` stands for the size in its header, where that lies.
inline std::string Chunk(const std::string& id, const std::string& data, std::optional<uint32_t> claimed = {})
{
    const std::string pad(data.size() % 2, '\0');
    return id + Bytes(claimed.value_or(static_cast<uint32_t>(data.size()))) + data + pad;
}

inline std::string Wave(const std::string& chunks)
{
    return Chunk("RIFF", "WAVE" + chunks);
}

/// The data of a format chunk: 16 bytes, mono at 22050 frames per second.
inline std::string Format(uint16_t tag = 1, uint16_t bits = 16)
{
    return Bytes(tag) + Bytes<uint16_t>(1) + Bytes<uint32_t>(22050) + Bytes<uint32_t>(22050u * bits / 8) +
           Bytes<uint16_t>(bits / 8) + Bytes(bits);
}
