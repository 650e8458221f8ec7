#include "platform/multimedia.h"
#include "platform/posix/out_of_memory.h"
#include "platform/posix/paths.h"
#include "platform/posix/read_file.h"

#include <memory>

struct HMMIO__ {
    static constexpr size_t BUFFER_BYTES = 64 * 1024;

    HMMIO__()
    {
        info.pchBuffer = buffer;
        DropBuffer(0);
    }
    HMMIO__(const HMMIO__&) = delete;
    HMMIO__& operator=(const HMMIO__&) = delete;

    int64_t Position() const { return int64_t{ info.lBufOffset } + (info.pchNext - info.pchBuffer); }

    void DropBuffer(int64_t position)
    {
        info.lBufOffset = static_cast<LONG>(position);
        info.pchNext = info.pchEndRead = info.pchBuffer;
    }

    /// The bytes read; what cannot be read, as beyond the last position of 32 bits, is taken for the file's end.
    size_t Read(char* target, size_t size) { return ReadAt(descriptor.fd, info.lBufOffset, target, size).value_or(0); }

    Descriptor descriptor;
    MMIOINFO info{};
    char buffer[BUFFER_BYTES];
};

namespace
{
constexpr FOURCC RIFF_ID = mmioFOURCC('R', 'I', 'F', 'F');
constexpr FOURCC LIST_ID = mmioFOURCC('L', 'I', 'S', 'T');
constexpr int64_t CHUNK_HEADER_BYTES = 8; ///< id and size
constexpr int64_t LAST_POSITION = INT32_MAX;
constexpr int MOST_CHUNKS = 1000; ///< looked at: a file of gigabytes can be made of nothing else

/// Sizes in a file may claim anything, so positions are reckoned in 64 bits and only then brought back to 32.
int64_t DataEnd(const MMCKINFO& chunk)
{
    return int64_t{ chunk.dwDataOffset } + chunk.cksize;
}

int64_t BehindPadByte(const MMCKINFO& chunk)
{
    return DataEnd(chunk) + chunk.cksize % 2;
}

bool HasFormType(const MMCKINFO& chunk)
{
    return chunk.ckid == RIFF_ID || chunk.ckid == LIST_ID;
}

MMRESULT SeekTo(HMMIO file, int64_t position)
{
    if (position > LAST_POSITION)
        return MMIOERR_CANNOTSEEK;
    file->DropBuffer(position);
    return MMSYSERR_NOERROR;
}

/// Reads the header of the chunk at the file's position, with the form type if it has one, and leaves the position at
/// what follows them.
MMRESULT ReadChunkHeader(HMMIO file, MMCKINFO& chunk)
{
    DWORD header[2];
    if (mmioRead(file, reinterpret_cast<char*>(header), sizeof header) != sizeof header)
        return MMIOERR_CHUNKNOTFOUND;
    chunk.ckid = header[0];
    chunk.cksize = header[1];
    chunk.dwDataOffset = static_cast<DWORD>(file->Position());
    if (HasFormType(chunk) &&
        mmioRead(file, reinterpret_cast<char*>(&chunk.fccType), sizeof chunk.fccType) != sizeof chunk.fccType)
        return MMIOERR_CHUNKNOTFOUND;
    return MMSYSERR_NOERROR;
}
}

HMMIO mmioOpenA(LPSTR path, MMIOINFO*, DWORD)
{
    return OrOutOfMemory<HMMIO>(nullptr, [path] {
        auto file = std::make_unique<HMMIO__>();
        file->descriptor.fd = OpenRegularFile(ResolvePath(path).c_str());
        return file->descriptor.fd < 0 ? nullptr : file.release();
    });
}

MMRESULT mmioClose(HMMIO file, UINT)
{
    delete file;
    return MMSYSERR_NOERROR;
}

LONG mmioRead(HMMIO file, char* target, LONG size)
{
    file->DropBuffer(file->Position());
    const size_t bytes = file->Read(target, static_cast<size_t>(size));
    file->DropBuffer(file->Position() + static_cast<int64_t>(bytes));
    return static_cast<LONG>(bytes);
}

LONG mmioSeek(HMMIO file, LONG offset, int)
{
    file->DropBuffer(offset);
    return offset;
}

MMRESULT mmioDescend(HMMIO file, MMCKINFO* chunk, const MMCKINFO* parent, UINT flags)
{
    const FOURCC wanted = chunk->ckid;
    const int64_t end = parent ? DataEnd(*parent) : LAST_POSITION;
    // Every round moves on by a header at least, so that no size can keep the search going past the file's end.
    for (int i = 0; i < MOST_CHUNKS && file->Position() + CHUNK_HEADER_BYTES <= end; ++i) {
        if (const MMRESULT result = ReadChunkHeader(file, *chunk); result != MMSYSERR_NOERROR)
            return result;
        if ((flags & MMIO_FINDCHUNK) == 0 || chunk->ckid == wanted)
            return MMSYSERR_NOERROR;
        if (SeekTo(file, BehindPadByte(*chunk)) != MMSYSERR_NOERROR)
            return MMIOERR_CHUNKNOTFOUND;
    }
    return MMIOERR_CHUNKNOTFOUND;
}

MMRESULT mmioAscend(HMMIO file, MMCKINFO* chunk, UINT)
{
    return SeekTo(file, BehindPadByte(*chunk));
}

MMRESULT mmioGetInfo(HMMIO file, MMIOINFO* info, UINT)
{
    *info = file->info;
    return MMSYSERR_NOERROR;
}

MMRESULT mmioSetInfo(HMMIO file, const MMIOINFO* info, UINT)
{
    file->info = *info;
    return MMSYSERR_NOERROR;
}

MMRESULT mmioAdvance(HMMIO file, MMIOINFO* info, UINT)
{
    file->info = *info;
    file->DropBuffer(file->Position());
    file->info.pchEndRead += file->Read(file->buffer, sizeof file->buffer);
    *info = file->info;
    return MMSYSERR_NOERROR;
}
