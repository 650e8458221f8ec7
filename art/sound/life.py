"""The life around the pond, heard now and then from a distance."""
import numpy as np

import bodies
import dsp


def env1(rng):
    """A frog says two croaks, each two-syllabled: bursts of its vocal cords ringing in the throat sac."""
    track = dsp.silence(1.6)
    for start, gain in ((0.02, 0.9), (0.68, 1.0)):
        for offset, seconds, slow, fast, throat in ((0, 0.15, 62, 84, 1.0), (0.19, 0.24, 58, 98, 1.22)):
            at, t = 0.0, dsp.times(0.05)
            while at < seconds:
                loud = np.sin(np.pi * min(1, (at + 0.02) / (seconds + 0.03))) ** 0.7
                pulse = sum(a * np.exp(-t / tau) * np.sin(2 * np.pi * f * throat * t)
                            for f, a, tau in ((520, 0.7, 0.009), (1150, 1.0, 0.006), (2350, 0.45, 0.003)))
                dsp.place(track, pulse, start + offset + at, gain * loud * (0.85 + 0.3 * rng.random()))
                at += 1 / (slow + (fast - slow) * at / seconds) * (0.97 + 0.06 * rng.random())
    sound = dsp.reverb(dsp.pan(dsp.band(track, 200, 5000), -0.4), dsp.room(rng, 0.8, 3500), 0.3)
    return dsp.close(sound, 0.002, 0.4)


def env8(rng):
    """A cricket: four chirps of its wings, each of a few strokes near 4.3 kHz, the pitch sinking in each stroke."""
    track = dsp.silence(1.7)
    t = dsp.times(0.019)
    for start in (0.02, 0.38, 0.74, 1.1):
        for stroke, gain in enumerate((0.45, 0.8, 1.0, 0.95)):
            pitch = (4330 + 25 * rng.standard_normal()) * (1 - 0.025 * t / t[-1])
            teeth = 1 + 0.25 * np.sin(dsp.turns(np.full(len(t), 215.0)))
            chirp = np.sin(dsp.turns(pitch)) + 0.1 * np.sin(2 * dsp.turns(pitch))
            dsp.place(track, chirp * teeth * np.hanning(len(t)) ** 0.7, start + 0.031 * stroke, gain)
    return dsp.close(dsp.reverb(dsp.pan(track, 0.5), dsp.room(rng, 0.7, 8000), 0.25), 0.002, 0.3)


# One note a row: start, length, pitch in hertz at its start, middle and end, loudness, trill (hertz, depth).
BIRD_SONG = (
    (0.02, 0.022, 5600, 3400, 2300, 1.0, 0, 0),
    (0.10, 0.17, 2150, 2480, 2300, 0.34, 0, 0),
    (0.30, 0.11, 1850, 1820, 1900, 0.3, 0, 0),
    (0.44, 0.26, 2750, 2500, 2950, 0.36, 24, 0.05),
    (0.74, 0.10, 2300, 2200, 2050, 0.26, 0, 0),
    (0.87, 0.22, 1950, 2600, 2450, 0.32, 0, 0),
    (1.13, 0.026, 3600, 5200, 4700, 0.55, 0, 0),
    (1.20, 0.026, 3900, 5600, 4400, 0.5, 0, 0),
    (1.27, 0.13, 3700, 5000, 3500, 0.2, 38, 0.09),
)


def env11(rng):
    """A bird in the bushes: a short call, a fluted phrase with a warble, a thin twitter at its end."""
    track = dsp.silence(2.0)
    for start, seconds, first, middle, last, gain, trill, depth in BIRD_SONG:
        t = dsp.times(seconds)
        pitch = dsp.curve(t, ((0, first), (seconds / 2, middle), (seconds, last)))
        pitch = pitch * (1 + depth * np.sin(2 * np.pi * trill * t))
        dsp.place(track, bodies.whistle(rng, pitch, gain * np.hanning(len(t)) ** 0.6, 0.03, 0.06), start)
    return dsp.close(dsp.reverb(dsp.pan(track, 0.25), dsp.room(rng, 1.3, 6000, 0.03), 0.35), 0.002, 0.45)


# What sways in the wind, a row: place from left to right, pitch at rest and in the gust, width in hertz, gain.
STEMS = ((-0.5, 380, 620, 260, 1.0), (0.4, 700, 1150, 420, 0.8), (0.0, 1700, 3000, 1500, 0.55))


def env12(rng):
    """Wind in the reeds: a gust swells and sinks, stems hiss and knock, dry leaves rustle against each other."""
    t = dsp.times(2.0)
    gust = dsp.hump(t, -0.05, 1.2) ** 1.5 + 0.6 * dsp.hump(t, 0.85, 2.0)
    sound = dsp.silence(2.0, 2)
    for place, low, high, width, gain in STEMS:
        wander = low + (high - low) * np.clip(gust, 0, 1.2) * (1 + 0.12 * np.sin(2 * np.pi * (1.3 + place) * t))
        sound += dsp.pan(gain * dsp.moving_band(dsp.noise(rng, 2.0), wander, np.full(len(t), width)) * gust, place)
    for _ in range(260):
        at = 0.03 + 1.85 * rng.random()
        leaf = bodies.splash(rng, 2200 + 1800 * rng.random(), 8500, 0.002, 0.004 + 0.01 * rng.random(), 0.06)
        dsp.place(sound, dsp.pan(leaf, 1.6 * rng.random() - 0.8), at, 0.3 * gust[dsp.length(at)] * rng.random() ** 3)
    for _ in range(13):
        at = 0.15 + 1.5 * rng.random()
        stem = bodies.strike(bodies.WOOD, 900 + 900 * rng.random(), 0.006, 0.06, 0.001)
        gain = 1.3 * gust[dsp.length(at)]
        dsp.place(sound, dsp.pan(stem, 1.6 * rng.random() - 0.8), at, gain * (0.3 + 0.7 * rng.random()))
    return dsp.close(dsp.band(sound, 120, 7000), 0.08, 0.3)


def env13(rng):
    """An owl far over the water: a soft hoot, a pause, a longer quavering one. Close by, drops tick from a leaf.

    The drops hold the file's peak, so that the owl itself stays far off.
    """
    track = dsp.silence(2.0)
    for start, seconds, quaver in ((0.03, 0.34, 0.0), (0.62, 0.72, 1.0)):
        t = dsp.times(seconds)
        pitch = 352 + 26 * dsp.hump(t, -0.1, seconds * 1.1)
        pitch = pitch + quaver * 5 * np.sin(2 * np.pi * 7 * t) * t / seconds
        loud = np.hanning(len(t)) ** 0.8 * (1 + quaver * 0.25 * np.sin(2 * np.pi * 7 * t - 1) * t / seconds)
        dsp.place(track, bodies.whistle(rng, pitch, loud, 0.04, 0.12), start)
    sound = dsp.reverb(dsp.pan(dsp.band(track, 150, 2500), -0.2), dsp.room(rng, 1.8, 2200, 0.05), 0.45)
    for at, pitch, where, gain in ((0.43, 1900, 0.5, 7.0), (0.52, 2500, 0.45, 2.5), (1.42, 1650, 0.1, 4.0)):
        dsp.place(sound, dsp.pan(bodies.bubble(pitch, 0.06, 2.0), where), at, gain)
    return dsp.close(sound, 0.005, 0.5)
