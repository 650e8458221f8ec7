#include "sound/wave.h"

#include "platform/kernel.h"

#include <algorithm>
#include <cstdio>

namespace
{
constexpr FOURCC RIFF_ID = mmioFOURCC('R', 'I', 'F', 'F');
constexpr FOURCC WAVE_ID = mmioFOURCC('W', 'A', 'V', 'E');
constexpr FOURCC FORMAT_ID = mmioFOURCC('f', 'm', 't', ' ');
constexpr FOURCC DATA_ID = mmioFOURCC('d', 'a', 't', 'a');
constexpr uint32_t PCM_HEADER_BYTES = 16; ///< all fields of a format but `cbSize`, which PCM need not have

bool ReadExactly(HMMIO file, void* target, uint32_t bytes)
{
    const LONG wanted = static_cast<LONG>(bytes);
    return mmioRead(file, static_cast<char*>(target), wanted) == wanted;
}

int FindChunk(HMMIO file, FOURCC id, MMCKINFO* chunk, const MMCKINFO* parent)
{
    chunk->ckid = id;
    return static_cast<int>(mmioDescend(file, chunk, parent, MMIO_FINDCHUNK));
}

/// Reads a format at the file's position into memory of its own, which the caller frees on failure too.
int ReadFormat(HMMIO file, WAVEFORMATEX** format)
{
    WAVEFORMATEX header{};
    if (!ReadExactly(file, &header, PCM_HEADER_BYTES))
        return WAVE_ERR_CANNOT_READ;
    if (header.wFormatTag != WAVE_FORMAT_PCM && !ReadExactly(file, &header.cbSize, sizeof header.cbSize))
        return WAVE_ERR_CANNOT_READ;

    *format = static_cast<WAVEFORMATEX*>(GlobalAlloc(GMEM_FIXED, sizeof header + header.cbSize));
    if (!*format)
        return WAVE_ERR_MEMORY;
    **format = header;
    if (!ReadExactly(file, *format + 1, header.cbSize))
        return WAVE_ERR_NOT_WAVE;
    return 0;
}

/// Enters the RIFF chunk, reads the format chunk and leaves it again.
int ReadHead(HMMIO file, WAVEFORMATEX** format, MMCKINFO* riff)
{
    if (const MMRESULT result = mmioDescend(file, riff, nullptr, 0); result != 0)
        return static_cast<int>(result);
    if (riff->ckid != RIFF_ID || riff->fccType != WAVE_ID)
        return WAVE_ERR_NOT_WAVE;
    MMCKINFO chunk{};
    if (const int result = FindChunk(file, FORMAT_ID, &chunk, riff); result != 0)
        return result;
    if (chunk.cksize < PCM_HEADER_BYTES)
        return WAVE_ERR_NOT_WAVE;
    if (const int result = ReadFormat(file, format); result != 0)
        return result;
    return static_cast<int>(mmioAscend(file, &chunk, 0));
}

/// Copies from the file's buffer, refilling it as it runs dry.
int CopyBytes(HMMIO file, MMIOINFO& buffer, uint8_t* target, uint32_t count)
{
    for (uint32_t i = 0; i < count; ++i) {
        if (buffer.pchNext == buffer.pchEndRead) {
            if (const MMRESULT result = mmioAdvance(file, &buffer, MMIO_READ); result != 0)
                return static_cast<int>(result);
            if (buffer.pchNext == buffer.pchEndRead)
                return WAVE_ERR_CORRUPT;
        }
        target[i] = static_cast<uint8_t>(*buffer.pchNext++);
    }
    return static_cast<int>(mmioSetInfo(file, &buffer, 0));
}
}

int WaveOpen(const char* path, HMMIO* file, WAVEFORMATEX** format, MMCKINFO* riff)
{
    *format = nullptr;
    *file = mmioOpenA(const_cast<char*>(path), nullptr, MMIO_ALLOCBUF | MMIO_READ);
    if (!*file)
        return WAVE_ERR_CANNOT_OPEN;
    const int result = ReadHead(*file, format, riff);
    if (result != 0)
        WaveClose(file, format);
    return result;
}

int WaveSeekData(HMMIO file, MMCKINFO* data, const MMCKINFO* riff)
{
    // From the first sub-chunk again: the samples may stand before the format.
    const DWORD firstChunk = riff->dwDataOffset + sizeof(FOURCC);
    if (mmioSeek(file, static_cast<LONG>(firstChunk), SEEK_SET) == -1)
        return -1;
    return FindChunk(file, DATA_ID, data, riff);
}

int WaveRead(HMMIO file, uint32_t wanted, uint8_t* target, MMCKINFO* data, uint32_t* copied)
{
    *copied = 0;
    MMIOINFO buffer{};
    if (mmioGetInfo(file, &buffer, 0) != 0)
        return 1;
    const uint32_t count = std::min<uint32_t>(wanted, data->cksize);
    data->cksize -= count;
    const int result = CopyBytes(file, buffer, target, count);
    if (result == 0)
        *copied = count;
    return result;
}

int WaveClose(HMMIO* file, WAVEFORMATEX** format)
{
    if (*format)
        GlobalFree(*format);
    *format = nullptr;
    if (*file)
        mmioClose(*file, 0);
    *file = nullptr;
    return 0;
}
