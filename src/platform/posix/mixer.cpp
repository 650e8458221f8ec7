#include "platform/posix/mixer.h"

#include <algorithm>
#include <cstring>
#include <new>
#include <utility>

namespace
{
constexpr size_t BLOCK_FRAMES = 256;
constexpr int GAIN_SHIFT = 7;
static_assert(Mixer::FULL_GAIN == 1 << GAIN_SHIFT);

struct Frame {
    int left;
    int right;
};

int ToSample(uint8_t value)
{
    return (value - 128) * 256;
}
int ToSample(int16_t value)
{
    return value;
}

template <typename Sample, int CHANNELS>
Frame FrameAt(const Voice& voice, uint64_t index)
{
    Sample samples[CHANNELS];
    std::memcpy(samples, voice.bytes.get() + index * sizeof samples, sizeof samples);
    return { ToSample(samples[0]), ToSample(samples[CHANNELS - 1]) };
}

/// The fraction has 15 bits, so that the widest step times it still fits an int.
int Between(int from, int to, int fraction)
{
    return from + ((to - from) * fraction >> 15);
}

int NextGain(int gain, bool rising)
{
    return rising ? std::min(gain + 1, Mixer::FULL_GAIN) : std::max(gain - 1, 0);
}

/// The sound at the cursor. Between two frames it is interpolated: at the end of a loop toward its first frame, at the
/// end of a sound that plays once toward silence.
template <typename Sample, int CHANNELS>
Frame SoundAt(const Voice& voice, const VoiceCursor& cursor)
{
    const uint64_t index = cursor.at >> 32;
    const int fraction = static_cast<int>(cursor.at >> 17 & 0x7FFF);
    const Frame frame = FrameAt<Sample, CHANNELS>(voice, index);
    if (fraction == 0)
        return frame;
    Frame next{};
    if (index + 1 < voice.end >> 32)
        next = FrameAt<Sample, CHANNELS>(voice, index + 1);
    else if (cursor.loop)
        next = FrameAt<Sample, CHANNELS>(voice, 0);
    return { Between(frame.left, next.left, fraction), Between(frame.right, next.right, fraction) };
}

/// Moves on by one mixed frame. Past the end a loop goes on from its start; other sounds end and stand there.
void Advance(const Voice& voice, VoiceCursor& cursor)
{
    cursor.at += voice.step;
    if (cursor.at < voice.end)
        return;
    cursor.active = cursor.loop;
    cursor.at = cursor.loop ? cursor.at % voice.end : 0;
}

template <typename Sample, int CHANNELS>
void AddSound(const Voice& voice, VoiceCursor& cursor, bool rising, Frame* sums, size_t frames)
{
    for (size_t i = 0; i < frames && cursor.active; ++i) {
        const Frame sound = SoundAt<Sample, CHANNELS>(voice, cursor);
        cursor.gain = NextGain(cursor.gain, rising);
        sums[i].left += sound.left * cursor.gain >> GAIN_SHIFT;
        sums[i].right += sound.right * cursor.gain >> GAIN_SHIFT;
        Advance(voice, cursor);
    }
}

void AddCursor(const Voice& voice, VoiceCursor& cursor, bool rising, Frame* sums, size_t frames)
{
    const bool isStereo = voice.format.channels == 2;
    if (voice.format.bits == 8)
        (isStereo ? AddSound<uint8_t, 2> : AddSound<uint8_t, 1>)(voice, cursor, rising, sums, frames);
    else
        (isStereo ? AddSound<int16_t, 2> : AddSound<int16_t, 1>)(voice, cursor, rising, sums, frames);
}

void AddVoiceSound(Voice& voice, Frame* sums, size_t frames)
{
    AddCursor(voice, voice.cursor, true, sums, frames);
    AddCursor(voice, voice.tail, false, sums, frames);
    voice.tail.active = voice.tail.active && voice.tail.gain > 0;
}

/// A sound fades in where it goes on; at its start it begins quietly by itself.
void Start(Voice& voice)
{
    VoiceCursor& cursor = voice.cursor;
    // Nothing was mixed since the stop: it is taken back, for two sounds at one place would be too loud.
    if (voice.tail.active && voice.tail.at == cursor.at) {
        cursor = std::exchange(voice.tail, VoiceCursor{});
        return;
    }
    cursor.active = true;
    cursor.gain = cursor.at == 0 ? Mixer::FULL_GAIN : 0;
}

int16_t ToOutput(int sum, int gain)
{
    const int saturated = std::clamp<int>(sum, INT16_MIN, INT16_MAX);
    return static_cast<int16_t>(saturated * gain >> GAIN_SHIFT);
}
}

Voice* Mixer::AddVoice(const PcmFormat& format, uint32_t byteCount)
{
    std::unique_ptr<uint8_t[]> bytes(new (std::nothrow) uint8_t[byteCount]);
    if (!bytes)
        return nullptr;
    std::memset(bytes.get(), format.bits == 8 ? 128 : 0, byteCount);
    auto voice = std::make_unique<Voice>(Voice{
        .format = format,
        .byteCount = byteCount,
        .bytes = std::move(bytes),
        .end = uint64_t{ byteCount / format.FrameBytes() } << 32,
        .step = (uint64_t{ format.rate } << 32) / mixRate,
    });

    const std::lock_guard lock(mutex);
    EraseRemoved();
    return voices.emplace_back(std::move(voice)).get();
}

void Mixer::RemoveVoice(Voice* voice)
{
    Stop(*voice);
    const std::lock_guard lock(mutex);
    voice->removed = true;
    EraseRemoved();
}

/// Frees the removed voices that have faded out, here rather than in `Mix`.
void Mixer::EraseRemoved()
{
    std::erase_if(voices, [](const auto& voice) { return voice->removed && !voice->tail.active; });
}

void Mixer::Play(Voice& voice, bool loop)
{
    const std::lock_guard lock(mutex);
    if (!voice.cursor.active)
        Start(voice);
    voice.cursor.loop = loop;
}

void Mixer::Stop(Voice& voice)
{
    const std::lock_guard lock(mutex);
    VoiceCursor& cursor = voice.cursor;
    if (!cursor.active)
        return;
    // Started again during a fade and stopped once more, only the louder of the two is worth fading.
    if (!voice.tail.active || cursor.gain > voice.tail.gain)
        voice.tail = cursor;
    cursor.active = false;
}

void Mixer::SetPosition(Voice& voice, uint32_t byteOffset)
{
    const uint64_t position = uint64_t{ byteOffset / voice.format.FrameBytes() } << 32;
    const std::lock_guard lock(mutex);
    voice.cursor.at = position < voice.end ? position : 0;
}

void Mixer::Mix(int16_t* target, size_t frames, bool audible)
{
    const std::lock_guard lock(mutex);
    while (frames > 0) {
        const size_t count = std::min(frames, BLOCK_FRAMES);
        Frame sums[BLOCK_FRAMES] = {};
        for (const auto& voice : voices)
            AddVoiceSound(*voice, sums, count);
        for (size_t i = 0; i < count; ++i) {
            outputGain = NextGain(outputGain, audible);
            *target++ = ToOutput(sums[i].left, outputGain);
            *target++ = ToOutput(sums[i].right, outputGain);
        }
        frames -= count;
    }
}

bool Mixer::IsSilent()
{
    const std::lock_guard lock(mutex);
    return std::none_of(voices.begin(), voices.end(),
                        [](const auto& voice) { return voice->cursor.active || voice->tail.active; });
}
