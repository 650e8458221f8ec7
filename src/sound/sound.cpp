#include "sound/sound.h"

#include "platform/release.h"
#include "res/file_report.h"
#include "sound/wave.h"

#include <map>

namespace
{
struct SoundEntry {
    IDirectSoundBuffer* buffer = nullptr;
    WAVEFORMATEX format{}; ///< the header alone, without extra bytes
    uint32_t byteCount = 0;
};

HWND window = nullptr;
IDirectSound* device = nullptr;
IDirectSoundBuffer* primary = nullptr; ///< only after a full set-up
bool ready = false;
bool muted = false;

/// In ascending order, the order of release. A buffer's description points at the format in its entry, so entries
/// must keep their addresses.
std::map<int, SoundEntry> table;

constexpr DWORD SOUND_BUFFER_FLAGS = DSBCAPS_LOCSOFTWARE | DSBCAPS_CTRLPAN | DSBCAPS_CTRLVOLUME;
constexpr WAVEFORMATEX PRIMARY_FORMAT = {
    .wFormatTag = WAVE_FORMAT_PCM,
    .nChannels = 2,
    .nSamplesPerSec = 22050,
    .nAvgBytesPerSec = 88200,
    .nBlockAlign = 4,
    .wBitsPerSample = 16,
    .cbSize = 0,
};
static_assert(sizeof(WAVEFORMATEX) == 18);

DSBUFFERDESC BufferDescription(DWORD flags, DWORD bytes, WAVEFORMATEX* format)
{
    DSBUFFERDESC description{};
    description.dwSize = sizeof description;
    description.dwFlags = flags;
    description.dwBufferBytes = bytes;
    description.lpwfxFormat = format;
    return description;
}

/// A device of our own format, which spares the mixer from converting.
bool SetUpFully()
{
    const DSBUFFERDESC description = BufferDescription(DSBCAPS_PRIMARYBUFFER, 0, nullptr);
    return DirectSoundCreate(nullptr, &device, nullptr) == DS_OK &&
           device->SetCooperativeLevel(window, DSSCL_PRIORITY) == DS_OK &&
           device->CreateSoundBuffer(&description, &primary, nullptr) == DS_OK &&
           primary->SetFormat(&PRIMARY_FORMAT) == DS_OK;
}

/// A shared device that keeps whatever format it has.
bool SetUpPlainly()
{
    if (DirectSoundCreate(nullptr, &device, nullptr) != DS_OK)
        return false;
    device->SetCooperativeLevel(window, DSSCL_NORMAL);
    return true;
}

/// Null for an id that was never created or whose buffer could not be made.
IDirectSoundBuffer* FindBuffer(int id)
{
    const auto entry = table.find(id);
    return entry == table.end() ? nullptr : entry->second.buffer;
}

HRESULT LockWhole(IDirectSoundBuffer& buffer, LPVOID* samples, DWORD* bytes)
{
    return buffer.Lock(0, 0, samples, bytes, nullptr, nullptr, DSBLOCK_ENTIREBUFFER);
}

/// Reads the samples at the file's position straight into the buffer's memory.
bool FillBuffer(IDirectSoundBuffer& buffer, HMMIO file, MMCKINFO& data)
{
    buffer.SetCurrentPosition(0);
    LPVOID samples = nullptr;
    DWORD bytes = 0;
    HRESULT locked = LockWhole(buffer, &samples, &bytes);
    if (locked == DSERR_BUFFERLOST) {
        buffer.Restore();
        locked = LockWhole(buffer, &samples, &bytes);
    }
    if (locked != DS_OK)
        return false;

    uint32_t copied = 0;
    const bool read = WaveRead(file, bytes, static_cast<uint8_t*>(samples), &data, &copied) == 0;
    buffer.Unlock(samples, bytes, nullptr, 0);
    return read;
}

/// Closed at the end of its scope, also when memory runs out meanwhile.
struct OpenWave {
    OpenWave() = default;
    ~OpenWave() { WaveClose(&file, &format); }
    OpenWave(const OpenWave&) = delete;
    OpenWave& operator=(const OpenWave&) = delete;

    HMMIO file = nullptr;
    WAVEFORMATEX* format = nullptr;
};

bool LoadWave(int id, const char* path)
{
    OpenWave wave;
    MMCKINFO riff{};
    MMCKINFO data{};
    return WaveOpen(path, &wave.file, &wave.format, &riff) == 0 && WaveSeekData(wave.file, &data, &riff) == 0 &&
           SoundCreate(id, wave.format, data.cksize) && FillBuffer(*FindBuffer(id), wave.file, data);
}
}

void SoundInit(HWND soundWindow)
{
    window = soundWindow;
    ready = SetUpFully();
    if (ready)
        return;
    SoundRelease();
    ready = SetUpPlainly();
}

void SoundRelease()
{
    for (auto& [id, entry] : table)
        ReleaseAndForget(entry.buffer);
    table.clear();
    ReleaseAndForget(primary);
    ReleaseAndForget(device);
    ready = false;
}

bool SoundCreate(int id, const WAVEFORMATEX* format, uint32_t byteCount)
{
    if (!ready)
        return false;
    SoundEntry& entry = table[id];
    ReleaseAndForget(entry.buffer);
    entry.format = *format;
    entry.byteCount = byteCount;
    const DSBUFFERDESC description = BufferDescription(SOUND_BUFFER_FLAGS, entry.byteCount, &entry.format);
    return device->CreateSoundBuffer(&description, &entry.buffer, nullptr) == DS_OK;
}

bool SoundLoad(int id, const char* path)
{
    if (!device)
        return false;
    const bool loaded = LoadWave(id, path);
    if (!loaded)
        ReportFile(path, "Can not load sound");
    return loaded;
}

bool SoundPlay(int id, bool loop)
{
    if (!ready)
        return false;
    if (muted)
        return true;
    IDirectSoundBuffer* const buffer = FindBuffer(id);
    return buffer && buffer->Play(0, 0, loop ? DSBPLAY_LOOPING : 0) == DS_OK;
}

bool SoundStop(int id)
{
    if (!ready)
        return false;
    if (muted)
        return true;
    IDirectSoundBuffer* const buffer = FindBuffer(id);
    return buffer && buffer->Stop() == DS_OK;
}

void SoundSetMute(int mute)
{
    muted = mute != 0;
}

int SoundGetMute()
{
    return muted;
}
