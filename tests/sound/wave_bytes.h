#pragma once

#include "support/file_bytes.h"

#include <cstdint>
#include <optional>

/// A chunk with its pad byte; `claimed` stands for the size in its header, where that lies.
inline std::string Chunk(const std::string& id, const std::string& data, std::optional<uint32_t> claimed = {})
{
    const std::string pad(data.size() % 2, '\0');
    return id + LittleEndian(claimed.value_or(static_cast<uint32_t>(data.size()))) + data + pad;
}

inline std::string Wave(const std::string& chunks)
{
    return Chunk("RIFF", "WAVE" + chunks);
}

/// The data of a format chunk: 16 bytes, mono at 22050 frames per second.
inline std::string Format(uint16_t tag = 1, uint16_t bits = 16)
{
    return LittleEndian(tag) + LittleEndian<uint16_t>(1) + LittleEndian<uint32_t>(22050) +
           LittleEndian<uint32_t>(22050u * bits / 8) + LittleEndian<uint16_t>(bits / 8) + LittleEndian(bits);
}
