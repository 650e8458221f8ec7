"""Sounds that tell the player something: the effects of the berries, warnings, rewards, the menu's click."""
import numpy as np

import bodies
import dsp

# D major pentatonic, the scale of the music, as semitones above D.
PENTATONIC = (0, 2, 4, 7, 9)
D4 = 293.665


def scale_pitch(step):
    """The frequency of the `step`th note of the scale above D4."""
    return D4 * 2 ** ((PENTATONIC[step % 5] + 12 * (step // 5)) / 12)


def select(rng):
    """A soft click of wood, as of a small block struck with felt."""
    track = bodies.strike(bodies.WOOD, 830, 0.022, 0.2, 0.0015) + 0.35 * bodies.strike(bodies.WOOD, 415, 0.03, 0.2)
    dsp.place(track, bodies.splash(rng, 400, 3500, 0.0008, 0.004, 0.05), 0, 0.18)
    return dsp.close(track, 0.0005, 0.06)


# The voices of a glide: pitch beside the lowest, place from left to right, gain.
VOICES = ((1, -0.5, 0.5), (1.004, 0.5, 0.5), (1.5, 0.2, 0.3), (2.003, -0.2, 0.24), (3.01, 0.0, 0.1))


def glide(rng, seconds, pitch, loud, bubbles):
    """A chord gliding along `pitch` in rushing water, with `bubbles` (second, pitch, gain) rising through it."""
    sound = dsp.silence(seconds, 2)
    for ratio, place, gain in VOICES:
        phase = dsp.turns(pitch * ratio)
        sound += dsp.pan(gain * np.sin(phase + 0.9 * loud * np.sin(phase * 0.5)) * loud, place)
    for place in (-0.6, 0.6):
        rush = dsp.moving_band(dsp.noise(rng, seconds), pitch * 2.6, pitch * 1.3)
        sound += dsp.pan(1.1 * rush * loud, place)
    for at, frequency, gain in bubbles:
        rising = bodies.plop(frequency * 0.6, frequency * 1.5, 0.05, 0.02, 0.14)
        dsp.place(sound, dsp.pan(rising, rng.random() - 0.5), at, gain)
    return dsp.reverb(sound, dsp.room(rng, 0.7, 6000), 0.18)


def speedup(rng):
    """A rising glide; its bubbles come faster and faster until, after the 40 frames of the run-up, it lets go."""
    t = dsp.times(1.95)
    bubbles, at = [], 0.02
    while at < 1.55:
        bubbles.append((at, 260 * 5 ** (at / 1.55), 0.45 + 0.3 * at))
        at += 0.19 * 0.2 ** (at / 1.55)
    loud = np.minimum((t / 1.55) ** 1.2, 1) * np.where(t < 1.55, 1, np.exp(-(t - 1.55) / 0.09))
    pitch = 147 * 2 ** (2.6 * np.minimum(t / 1.6, 1.1) ** 1.4)
    return dsp.close(glide(rng, 1.95, pitch, 0.08 + 0.92 * loud, bubbles), 0.02, 0.3)


def speedown(rng):
    """A falling glide; its bubbles come slower and slower."""
    t = dsp.times(1.3)
    bubbles, at = [], 0.02
    while at < 1.0:
        bubbles.append((at, 1100 * 0.22 ** at, 0.6 * (1.1 - at)))
        at += 0.05 * 4 ** at
    pitch = 880 * 2 ** (-2.6 * np.minimum(t / 1.0, 1.3) ** 0.8)
    return dsp.close(glide(rng, 1.3, pitch, np.minimum(t / 0.03, 1) * np.exp(-t / 0.45), bubbles), 0.01, 0.4)


def beat(rng):
    """One heartbeat, to be looped: the two closing valves as soft blows on a tight skin."""
    ring = dsp.silence(0.8)
    for at, high, low, tau, gain in ((0.03, 118, 55, 0.05, 1.0), (0.27, 150, 72, 0.034, 0.7)):
        t = dsp.times(0.4)
        skin = np.sin(dsp.turns(low + (high - low) * np.exp(-t / 0.03))) * dsp.decay(t, 0.012, tau)
        valve = dsp.band(dsp.noise(rng, 0.4), 90, 330) * dsp.decay(t, 0.006, 0.018)
        dsp.ring_place(ring, dsp.close(np.tanh(1.5 * skin + 1.2 * valve), 0.002, 0.1), at, gain)
    return dsp.ring_band(ring, None, 900, 1)


def ice_crack(rng, size):
    """A crack running through a sheet of ice: its high waves arrive first, the low ones after; shards ring."""
    t = dsp.times(0.3)
    pew = np.sin(dsp.turns(350 + 5200 * size * np.exp(-t / 0.018))) * dsp.decay(t, 0.0008, 0.03 + 0.03 * size)
    snap = bodies.splash(rng, 2000, 10000, 0.0004, 0.004 + 0.006 * size, 0.3)
    shard = bodies.strike(bodies.GLASS, 1500 + 2600 * rng.random(), 0.03 + 0.05 * rng.random(), 0.3, 0.0008)
    return 0.4 * pew + 0.8 * snap + 0.3 * shard


def freeze(rng):
    """Ice cracks through the tail: fine cracks gather, one great crack, then frost settles tinkling."""
    track = dsp.silence(1.7, 2)
    for i in range(26):
        at = 0.02 + 0.62 * (i / 26) ** 0.75 + 0.015 * rng.random()
        crack = ice_crack(rng, rng.random() * i / 26)
        dsp.place(track, dsp.pan(crack, 1.4 * rng.random() - 0.7), at, 0.1 + 0.3 * i / 26)
    dsp.place(track, dsp.pan(ice_crack(rng, 1.0), 0), 0.68, 1.2)
    dsp.place(track, dsp.pan(bodies.plop(190, 75, 0.05, 0.07, 0.4), 0), 0.68, 0.9)
    for _ in range(34):
        late = rng.random()
        chime = bodies.strike(bodies.GLASS, 2300 + 3600 * rng.random(), 0.05 + 0.1 * rng.random(), 0.4)
        dsp.place(track, dsp.pan(chime, 1.6 * rng.random() - 0.8), 0.72 + 0.6 * late, 0.09 * (1 - 0.85 * late))
    return dsp.close(dsp.reverb(track, dsp.room(rng, 1.0, 9000), 0.2), 0.001, 0.4)


def fade(rng):
    """Shimmer: small glass bells climb the scale of the music in a glittering cloud and dissolve."""
    track = dsp.silence(2.0, 2)
    for i in range(56):
        at = 0.02 + 1.15 * i / 56 + 0.02 * rng.random()
        step = 5 + int(9 * i / 56 + 5 * rng.random())
        bell = bodies.strike(bodies.BELL, scale_pitch(step), 0.1 + 0.22 * rng.random(), 0.9, 0.006)
        sound = dsp.pan(bell, 1.7 * rng.random() - 0.85)
        dsp.place(track, sound, at, (0.35 + 0.65 * rng.random()) * (1 - 0.6 * i / 56))
    t = dsp.times(2.0)
    glitter = dsp.hump(t, 0, 1.5) * (0.6 + 0.4 * np.sin(2 * np.pi * 13 * t))
    dust = dsp.band(dsp.noise(rng, 2.0, 2), 5000, 10500) * glitter[:, None]
    return dsp.close(dsp.reverb(track + 0.1 * dust, dsp.room(rng, 1.4, 9000), 0.3), 0.005, 0.6)


def laser(rng):
    """A bright zap: two modulated voices plunge from the top of hearing, sparks fly, the air hums after."""
    t = dsp.times(0.62)
    sound = dsp.silence(0.62, 2)
    for detune, place in ((1, -0.4), (1.013, 0.4), (0.498, 0)):
        pitch = detune * (170 + 3300 * np.exp(-t / 0.055) + 500 * np.exp(-t / 0.2))
        phase = dsp.turns(pitch)
        bite = 2.6 * np.exp(-t / 0.12)
        voice = np.sin(phase + bite * np.sin(1.5 * phase) + 0.5 * bite * np.sin(0.25 * phase))
        sound += dsp.pan(voice * dsp.decay(t, 0.002, 0.11), place)
    sparks = dsp.band(dsp.noise(rng, 0.62), 3000, 10000) * (rng.random(len(t)) < 0.02 * np.exp(-t / 0.15))
    sound += dsp.pan(2.5 * dsp.band(sparks, 2000, 10000) * np.exp(-t / 0.2), 0.7 * np.sin(90 * t))
    sound += dsp.pan(bodies.splash(rng, 1500, 9000, 0.0005, 0.012, 0.62), 0)
    return dsp.close(dsp.reverb(sound, dsp.room(rng, 0.5, 8000), 0.2), 0.0005, 0.25)


def warp(rng):
    """A metallic swell: the partials of a bowed plate well up from low to high, bend upward and ring out in gold."""
    t = dsp.times(2.0)
    sound = dsp.silence(2.0, 2)
    bend = 1 + 0.05 * np.clip(t / 0.6, 0, 1) ** 2
    for k in range(30):
        frequency = 146.8 * (1 + 0.62 * k) ** 1.32 * (1 + 0.01 * rng.standard_normal())
        peak, tau = 0.3 + 0.32 * k / 30, 0.45 / (1 + 0.05 * k)
        swell = np.where(t < peak, np.minimum(t / peak, 1) ** 2.2, np.exp(-np.maximum(t - peak, 0) / tau))
        beating = 1 + 0.35 * np.sin(2 * np.pi * (3 + 6 * rng.random()) * t + 6 * rng.random())
        partial = np.sin(dsp.turns(frequency * bend) + 6 * rng.random()) * swell * beating / (1 + 0.09 * k)
        sound += dsp.pan(partial, 1.6 * rng.random() - 0.8)
    for step, at, gain in ((10, 0.58, 1.5), (13, 0.64, 1.1), (15, 0.7, 0.9)):
        dsp.place(sound, dsp.pan(bodies.strike(bodies.BELL, scale_pitch(step), 0.3, 1.2), 0), at, gain)
    return dsp.close(dsp.reverb(sound, dsp.room(rng, 1.2, 9000), 0.25), 0.01, 0.6)


# Second, step of the scale, gain: a run up to the key note, answered by the fifth above it.
LIFE_FIGURE = (
    (0.01, 3, 0.7), (0.12, 5, 0.8), (0.23, 7, 0.85), (0.34, 10, 1.0),
    (0.56, 8, 0.7), (0.67, 10, 0.9), (0.67, 13, 0.6),
)


def lifeup(rng):
    """A short happy figure on the kalimba of the music, with a bell an octave above."""
    track = dsp.silence(1.7, 2)
    for at, step, gain in LIFE_FIGURE:
        tine = bodies.strike(bodies.KALIMBA, scale_pitch(step), 0.28, 1.0)
        bell = bodies.strike(bodies.BELL, 2 * scale_pitch(step), 0.16, 0.8)
        dsp.place(track, dsp.pan(tine, -0.15), at, gain)
        dsp.place(track, dsp.pan(bell, 0.3), at + 0.004, 0.25 * gain)
    return dsp.close(dsp.reverb(track, dsp.room(rng, 1.1, 8000), 0.25), 0.001, 0.5)
