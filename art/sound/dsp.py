"""Signal tools that every sound is made with.

Sounds are arrays of floats, one column (mono) or two (stereo), at WORK samples a second. That is twice the rate of the
files, so that frequency modulation and distortion fold back above what the files keep.
A *ring* is a loop: what runs past its end goes on at its start, so no seam exists to be hidden later.
"""
import numpy as np
from scipy import signal

RATE = 22050
WORK = 2 * RATE


def length(seconds):
    return int(round(seconds * WORK))


def times(seconds):
    return np.arange(length(seconds)) / WORK


def noise(rng, seconds, channels=1):
    shape = length(seconds) if channels == 1 else (length(seconds), channels)
    return rng.standard_normal(shape)


def decay(t, attack, tau):
    """Rises within `attack` seconds, then falls to 1/e every `tau` seconds."""
    return (1 - np.exp(-t / (attack / 3))) * np.exp(-t / tau)


def hump(t, start, end):
    """A smooth swell from nothing at `start` over 1 in the middle to nothing at `end`."""
    place = np.clip((t - start) / (end - start), 0, 1)
    return np.sin(np.pi * place) ** 2


def curve(t, points):
    """Straight lines through (time, value) points, rounded a little at the corners."""
    at, value = zip(*points)
    line = np.interp(t, at, value)
    return signal.savgol_filter(line, min(601, len(t) // 2 * 2 - 1), 2) if len(t) > 1200 else line


def turns(frequency):
    """The phase in radians of an oscillator that follows `frequency`, an array in hertz."""
    return 2 * np.pi * np.cumsum(frequency) / WORK


def sections(low, high, order):
    if low and high:
        return signal.butter(order, (low, high), "bandpass", fs=WORK, output="sos")
    return signal.butter(order, low or high, "highpass" if low else "lowpass", fs=WORK, output="sos")


def band(sound, low=None, high=None, order=2):
    """Keeps `low` to `high` hertz; either may be left out."""
    return signal.sosfilt(sections(low, high, order), sound, axis=0)


def ring_band(ring, low=None, high=None, order=2):
    """As `band`, for a ring, without shifting phases."""
    frequencies = np.fft.rfftfreq(len(ring), 1 / WORK)
    response = np.abs(signal.sosfreqz(sections(low, high, order), worN=frequencies, fs=WORK)[1])
    if ring.ndim == 2:
        response = response[:, None]
    return np.fft.irfft(np.fft.rfft(ring, axis=0) * response, len(ring), axis=0)


def moving_band(sound, centre, width):
    """A resonance whose `centre` (array, hertz) wanders; `width` in hertz. Two integrators, updated each sample."""
    tuning = 2 * np.sin(np.pi * np.minimum(centre, WORK / 7) / WORK)
    damping = width / centre
    out = np.empty(len(sound))
    low = mid = 0.0
    for i, (value, f, d) in enumerate(zip(sound.tolist(), tuning.tolist(), damping.tolist())):
        low += f * mid
        mid += f * (value - low - d * mid)
        out[i] = mid * d
    return out


def pan(sound, place):
    """Mono to stereo at equal power; `place` from -1 (left) to 1 (right), a number or an array."""
    angle = (np.asarray(place) + 1) * np.pi / 4
    return np.stack((sound * np.cos(angle), sound * np.sin(angle)), axis=-1)


def silence(seconds, channels=1):
    return np.zeros(length(seconds) if channels == 1 else (length(seconds), channels))


def place(track, sound, at, gain=1.0):
    """Adds `sound` to `track` from second `at` on, cut at the end of the track."""
    first = length(at)
    count = min(len(sound), len(track) - first)
    if count > 0:
        track[first:first + count] += gain * sound[:count]


def ring_place(ring, sound, at, gain=1.0):
    """Adds `sound` to `ring` from second `at` on; its end goes on at the ring's start."""
    first = length(at) % len(ring)
    while len(sound):
        count = min(len(sound), len(ring) - first)
        ring[first:first + count] += gain * sound[:count]
        sound, first = sound[count:], 0


def room(rng, seconds, bright=6000.0, gap=0.012):
    """A stereo impulse response of a place: noise that dies away within `seconds`, its high part first."""
    tail = silence(seconds * 1.2, 2)
    t = times(seconds * 1.2)
    for low, high, share in ((80, 500, 1.0), (500, 1500, 0.8), (1500, 4000, 0.5), (4000, min(bright, 16000), 0.3)):
        if low >= bright:
            break
        part = band(noise(rng, seconds * 1.2, 2), low, min(high, bright))
        tail += part * np.exp(-6.9 * t / (seconds * share))[:, None]
    tail *= np.minimum(1, t / 0.03)[:, None]
    return np.concatenate((silence(gap, 2), tail / np.sqrt(np.sum(tail ** 2) / 2)))


def reverb(sound, answer, wet):
    """Stereo: the sound with the answer of a room, the sound's own length."""
    dry = sound if sound.ndim == 2 else pan(sound, 0)
    return dry + wet * signal.fftconvolve(dry, answer, axes=0)[:len(dry)]


def ring_reverb(ring, answer, wet):
    """As `reverb`; the tail wraps round to the start of the ring."""
    spectrum = np.fft.rfft(ring, axis=0) * np.fft.rfft(answer, len(ring), axis=0)
    return ring + wet * np.fft.irfft(spectrum, len(ring), axis=0)


def close(sound, fade_in, fade_out):
    """Lets the sound begin and end at exactly nothing; both fades in seconds."""
    shape = np.ones(len(sound))
    first, last = length(fade_in), length(fade_out)
    shape[:first] = 0.5 - 0.5 * np.cos(np.pi * np.arange(first) / first)
    shape[len(shape) - last:] *= 0.5 + 0.5 * np.cos(np.pi * (np.arange(last) + 1) / last)
    return sound * (shape if sound.ndim == 1 else shape[:, None])


def centre(sound):
    """Takes the mean away with a hump, so that the ends stay at nothing."""
    shape = np.hanning(len(sound))
    shape /= shape.sum()
    return sound - (sound.sum(axis=0) * shape if sound.ndim == 1 else np.outer(shape, sound.sum(axis=0)))


def effect_to_file_rate(sound):
    """From WORK to RATE; sound below hearing goes, as it only costs level."""
    clean = close(band(sound, 25), 0.0005, 0.005)
    return centre(close(signal.resample_poly(clean, 1, 2, axis=0), 0.0002, 0.002))


def ring_to_file_rate(ring, turn=0.1):
    """From WORK to RATE, and turned, by at most `turn` seconds, to start where every channel passes near nothing."""
    half = signal.resample(ring_band(ring, 25), len(ring) // 2, axis=0)
    half -= half.mean(axis=0)
    level = np.abs(half).reshape(len(half), -1).max(axis=1)
    ends = np.maximum(level, np.roll(level, 1))[:-int(turn * RATE):-1]
    return np.roll(half, 1 + int(np.argmin(ends)), axis=0)


def to_samples(sound, peak_db):
    """16-bit samples whose highest lies at `peak_db` below full scale."""
    return np.round(sound * (32768 * 10 ** (peak_db / 20) / np.abs(sound).max())).astype("<i2")
