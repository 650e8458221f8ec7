#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <mutex>
#include <vector>

/// Samples as wave files hold them: unsigned at 8 bits, signed at 16; the channels of a frame lie side by side.
struct PcmFormat {
    int channels;  ///< 1 or 2
    int bits;      ///< 8 or 16
    uint32_t rate; ///< frames per second

    uint32_t FrameBytes() const { return static_cast<uint32_t>(channels * bits / 8); }
};

/// A place in a voice's samples from which sound is heard, with its own loudness.
struct VoiceCursor {
    uint64_t at = 0; ///< frames, as 32.32 fixed point
    int gain = 0;    ///< 0 (silent) to Mixer::FULL_GAIN
    bool loop = false;
    bool active = false;
};

/// A sound in memory with one position. Only its bytes are the owner's business; the mixer keeps the rest.
struct Voice {
    PcmFormat format;
    uint32_t byteCount;
    std::unique_ptr<uint8_t[]> bytes;
    uint64_t end;  ///< frames, as 32.32 fixed point
    uint64_t step; ///< from one mixed frame to the next, the same
    VoiceCursor cursor{};
    VoiceCursor tail{}; ///< what still fades out after a stop
    bool removed = false;
};

/// Mixes voices into signed 16-bit stereo at one rate. Voices are handled on one thread, `Mix` may run on another:
/// it allocates nothing, and neither keeps the other waiting for longer than one mixing.
class Mixer
{
public:
    /// Loudness steps, and the frames that a fade takes: 6 ms at 22050 frames per second.
    static constexpr int FULL_GAIN = 128;

    explicit Mixer(uint32_t rate) : mixRate(rate) {}

    /// A stopped voice with silent samples, at least one frame. It belongs to the mixer. Null when there is no memory.
    Voice* AddVoice(const PcmFormat& format, uint32_t byteCount);
    /// Fades the voice out; the caller must not use it any more.
    void RemoveVoice(Voice* voice);

    /// Starts the voice where it stands. One that plays goes on; only whether it loops changes.
    void Play(Voice& voice, bool loop);
    /// Stops the voice, keeping its position.
    void Stop(Voice& voice);
    /// Moves the voice to the frame that holds that byte, or to its start if none does.
    void SetPosition(Voice& voice, uint32_t byteOffset);

    /// Mixes the next frames of all voices. While not audible they go on silently.
    void Mix(int16_t* target, size_t frames, bool audible);
    /// Nothing plays or fades.
    bool IsSilent();

private:
    void EraseRemoved();

    const uint32_t mixRate;
    std::mutex mutex; ///< guards all that follows and the voices
    std::vector<std::unique_ptr<Voice>> voices;
    int outputGain = FULL_GAIN;
};
