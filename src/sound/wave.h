#pragma once

#include "platform/multimedia.h"

#include <cstdint>

// Reading a RIFF/WAVE file: WaveOpen, WaveSeekData, WaveRead one or more times, WaveClose. Results are 0 for success,
// one of these codes, or what the file function that failed returned.

constexpr int WAVE_ERR_MEMORY = 0xE000;
constexpr int WAVE_ERR_CANNOT_OPEN = 0xE100;
constexpr int WAVE_ERR_NOT_WAVE = 0xE101;
constexpr int WAVE_ERR_CANNOT_READ = 0xE102;
constexpr int WAVE_ERR_CORRUPT = 0xE103;

/// Checks the file and reads its format (18 + cbSize bytes, owned by the caller until WaveClose). On failure nothing
/// is left open or allocated.
int WaveOpen(const char* path, HMMIO* file, WAVEFORMATEX** format, MMCKINFO* riff);
/// Positions the file at the start of its sample data and describes it in `data`.
int WaveSeekData(HMMIO file, MMCKINFO* data, const MMCKINFO* riff);
/// Copies up to `wanted` sample bytes, never more than are left; `data->cksize` is counted down.
int WaveRead(HMMIO file, uint32_t wanted, uint8_t* target, MMCKINFO* data, uint32_t* copied);
/// Frees the format and closes the file, whichever there are, and clears both.
int WaveClose(HMMIO* file, WAVEFORMATEX** format);
