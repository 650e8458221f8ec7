#pragma once

/// The millisecond clock and buffered RIFF files (winmm).
#ifdef _WIN32
#include <windows.h>

#include <mmsystem.h>
#else
#include "platform/types.h"

using MMRESULT = UINT;
using FOURCC = DWORD;
using HMMIO = struct HMMIO__*;

constexpr DWORD MMIO_READ = 0;
constexpr DWORD MMIO_ALLOCBUF = 0x00010000;
constexpr UINT MMIO_FINDCHUNK = 0x0010;
constexpr MMRESULT MMSYSERR_NOERROR = 0;
constexpr MMRESULT MMIOERR_CANNOTREAD = 261;
constexpr MMRESULT MMIOERR_CANNOTSEEK = 263;
constexpr MMRESULT MMIOERR_CHUNKNOTFOUND = 265;

constexpr FOURCC mmioFOURCC(char a, char b, char c, char d)
{
    return static_cast<FOURCC>(static_cast<BYTE>(a)) | static_cast<FOURCC>(static_cast<BYTE>(b)) << 8 |
           static_cast<FOURCC>(static_cast<BYTE>(c)) << 16 | static_cast<FOURCC>(static_cast<BYTE>(d)) << 24;
}

/// One chunk of a RIFF file. `dwDataOffset` is where its data starts in the file; for "RIFF" that is the form type.
struct MMCKINFO {
    FOURCC ckid;
    DWORD cksize;
    FOURCC fccType;
    DWORD dwDataOffset;
    DWORD dwFlags;
};

/// The state of a file's buffer: unread bytes lie from `pchNext` to `pchEndRead`.
struct MMIOINFO {
    DWORD dwFlags;
    char* pchBuffer;
    char* pchNext;
    char* pchEndRead;
    LONG lBufOffset;
};

/// Exactly 18 bytes, as wave files hold it.
#pragma pack(push, 1)
struct WAVEFORMATEX {
    WORD wFormatTag;
    WORD nChannels;
    DWORD nSamplesPerSec;
    DWORD nAvgBytesPerSec;
    WORD nBlockAlign;
    WORD wBitsPerSample;
    WORD cbSize;
};
#pragma pack(pop)
constexpr WORD WAVE_FORMAT_PCM = 1;

/// Milliseconds since some moment before the program's start; wraps after 49 days.
DWORD timeGetTime();

/// Opens a file for buffered reading. Paths are resolved as CreateFileA does. Null on failure.
HMMIO mmioOpenA(LPSTR path, MMIOINFO* info, DWORD flags);
MMRESULT mmioClose(HMMIO file, UINT flags);
/// Bytes read, fewer at the file's end, -1 on failure.
LONG mmioRead(HMMIO file, char* buffer, LONG size);
/// The new position, -1 on failure. `origin` is SEEK_SET.
LONG mmioSeek(HMMIO file, LONG offset, int origin);
/// Enters the next chunk, or with MMIO_FINDCHUNK the next one of `chunk->ckid` inside `parent`.
MMRESULT mmioDescend(HMMIO file, MMCKINFO* chunk, const MMCKINFO* parent, UINT flags);
/// Leaves a chunk: the position is then behind its data and its pad byte.
MMRESULT mmioAscend(HMMIO file, MMCKINFO* chunk, UINT flags);
MMRESULT mmioGetInfo(HMMIO file, MMIOINFO* info, UINT flags);
MMRESULT mmioSetInfo(HMMIO file, const MMIOINFO* info, UINT flags);
/// Refills the buffer of `info`; at the file's end it stays empty.
MMRESULT mmioAdvance(HMMIO file, MMIOINFO* info, UINT flags);
#endif
