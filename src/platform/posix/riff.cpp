#include "platform/multimedia.h"
#include "platform/posix/out_of_memory.h"
#include "platform/posix/paths.h"
#include "platform/posix/read_file.h"

#include <algorithm>
#include <cstring>
#include <memory>
#include <unistd.h>

struct HMMIO__ {
    static constexpr size_t BUFFER_BYTES = 64 * 1024;

    HMMIO__()
    {
        info.pchBuffer = buffer;
        DropBuffer(0);
    }
    HMMIO__(const HMMIO__&) = delete;
    HMMIO__& operator=(const HMMIO__&) = delete;
    ~HMMIO__()
    {
        if (descriptor >= 0)
            close(descriptor);
    }

    int64_t Position() const { return int64_t{ info.lBufOffset } + (info.pchNext - info.pchBuffer); }

    void DropBuffer(int64_t position)
    {
        info.lBufOffset = static_cast<LONG>(position);
        info.pchNext = info.pchEndRead = info.pchBuffer;
    }

    /// Reads the stretch behind the buffered one, nothing at the file's end. False if the file cannot be read.
    bool Refill()
    {
        DropBuffer(int64_t{ info.lBufOffset } + (info.pchEndRead - info.pchBuffer));
        lseek(descriptor, info.lBufOffset, SEEK_SET);
        const std::optional<size_t> bytes = ReadFully(descriptor, buffer, BUFFER_BYTES);
        info.pchEndRead += bytes.value_or(0);
        return bytes.has_value();
    }

    int descriptor = -1;
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

/// Opens a regular file whose every position fits into 32 bits; -1 for anything else.
int OpenFile(const char* path)
{
    const int descriptor = OpenRegularFile(ResolvePath(path).c_str());
    if (descriptor < 0 || lseek(descriptor, 0, SEEK_END) <= LAST_POSITION)
        return descriptor;
    close(descriptor);
    return -1;
}

MMRESULT SeekTo(HMMIO file, int64_t position)
{
    if (position > LAST_POSITION || mmioSeek(file, static_cast<LONG>(position), SEEK_SET) == -1)
        return MMIOERR_CANNOTSEEK;
    return MMSYSERR_NOERROR;
}

/// Reads the header of the chunk at the file's position, with the form type if it has one, and leaves the position at
/// what follows them.
MMRESULT ReadChunkHeader(HMMIO file, MMCKINFO& chunk)
{
    DWORD header[2];
    if (mmioRead(file, reinterpret_cast<char*>(header), sizeof header) != sizeof header)
        return MMIOERR_CHUNKNOTFOUND;
    chunk = { header[0], header[1], 0, static_cast<DWORD>(file->Position()), 0 };
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
        file->descriptor = OpenFile(path);
        return file->descriptor < 0 ? nullptr : file.release();
    });
}

MMRESULT mmioClose(HMMIO file, UINT)
{
    delete file;
    return MMSYSERR_NOERROR;
}

LONG mmioRead(HMMIO file, char* target, LONG size)
{
    MMIOINFO& info = file->info;
    LONG done = 0;
    while (done < size) {
        if (info.pchNext == info.pchEndRead && !file->Refill())
            return -1;
        const LONG count = std::min(size - done, static_cast<LONG>(info.pchEndRead - info.pchNext));
        if (count == 0)
            break;
        std::memcpy(target + done, info.pchNext, static_cast<size_t>(count));
        info.pchNext += count;
        done += count;
    }
    return done;
}

LONG mmioSeek(HMMIO file, LONG offset, int origin)
{
    if (origin != SEEK_SET || offset < 0)
        return -1;
    MMIOINFO& info = file->info;
    const LONG inBuffer = offset - info.lBufOffset;
    if (inBuffer >= 0 && inBuffer <= info.pchEndRead - info.pchBuffer)
        info.pchNext = info.pchBuffer + inBuffer;
    else
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
    const bool read = file->Refill();
    *info = file->info;
    return read ? MMSYSERR_NOERROR : MMIOERR_CANNOTREAD;
}
