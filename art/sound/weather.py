"""Rain and thunder."""
import numpy as np

import bodies
import dsp


def pressure_wave(seconds):
    """What one piece of a lightning channel sends out: a jump up, a fall through nothing, a jump back."""
    count = dsp.length(seconds)
    return np.linspace(1, -1, count) * np.minimum(1, np.minimum(np.arange(count), np.arange(count)[::-1]) / 6)


def channel(rng, seconds, pieces, when, shortest, longest):
    """The waves of a crooked lightning channel, each piece at its own distance: `when` draws a moment from chance."""
    track = dsp.silence(seconds, 2)
    for _ in range(pieces):
        at = when(rng)
        wave = pressure_wave(shortest * (longest / shortest) ** rng.random() * (1 + at))
        dsp.place(track, dsp.pan(wave, 1.4 * rng.random() - 0.7), at, rng.standard_normal() / (1 + 2.5 * at))
    return track


def thunder1(rng):
    """Near: a tearing crack right overhead, a second blow, then the rumble rolls away."""
    t = dsp.times(2.0)
    crack = channel(rng, 2.0, 260, lambda r: 0.01 + 0.16 * r.random() ** 2.2, 0.0007, 0.006)
    crack += 0.8 * channel(rng, 2.0, 120, lambda r: 0.3 + 0.22 * r.random() ** 1.6, 0.0015, 0.009)
    roll = channel(rng, 2.0, 420, lambda r: 0.03 + 1.85 * r.random() ** 1.3, 0.008, 0.022)
    tear = dsp.band(dsp.noise(rng, 2.0, 2), 900, 9000) * dsp.decay(t, 0.004, 0.07)[:, None]
    sound = np.tanh(0.28 * (crack + 1.1 * dsp.band(roll, 30, 900) + 1.4 * tear))
    sound = dsp.reverb(sound, dsp.room(rng, 1.6, 2500, 0.03), 0.5)
    return dsp.close(sound * np.exp(-t / 1.3)[:, None], 0.001, 0.7)


def thunder2(rng):
    """Far: no crack reaches here, only a dark rumble that swells in three waves and sinks."""
    t = dsp.times(2.0)
    roll = channel(rng, 2.0, 700, lambda r: 0.02 + 1.9 * r.random(), 0.009, 0.03)
    roll = dsp.reverb(dsp.band(dsp.band(roll, 35, 420), None, 420), dsp.room(rng, 1.5, 700, 0.03), 0.7)
    swell = 0.75 * dsp.hump(t, -0.1, 0.75) + 1.0 * dsp.hump(t, 0.35, 1.3) + 0.6 * dsp.hump(t, 0.95, 2.05)
    return dsp.close(np.tanh(0.12 * roll * swell[:, None]), 0.02, 0.5)


def rainloop(rng):
    """Rain on the pond: far drops melt into a hiss, near ones tick on the surface and trap ringing bubbles."""
    seconds = 8.0
    hiss = dsp.noise(rng, seconds, 2)
    ring = 0.02 * dsp.ring_band(hiss, 1200, 7000, 1) + 0.025 * dsp.ring_band(hiss[:, ::-1], 250, 900, 1)
    t = dsp.times(seconds)
    ring *= (1 + 0.18 * np.sin(2 * np.pi * t / 4) + 0.1 * np.sin(2 * np.pi * 3 * t / 8))[:, None]
    for _ in range(2600):
        tick = bodies.splash(rng, 1500 + 1500 * rng.random(), 9000, 0.0005, 0.001 + 0.004 * rng.random(), 0.02)
        near = rng.random() ** 5
        dsp.ring_place(ring, dsp.pan(tick, 1.8 * rng.random() - 0.9), seconds * rng.random(), 0.01 + 0.11 * near)
    for _ in range(420):
        near = rng.random() ** 4
        drop = bodies.bubble(700 * 7 ** rng.random(), 0.04 + 0.1 * rng.random(), 1.5 + 2 * rng.random())
        dsp.ring_place(ring, dsp.pan(drop, 1.8 * rng.random() - 0.9), seconds * rng.random(), 0.03 + 0.4 * near)
    for _ in range(22):
        drip = bodies.plop(330 + 250 * rng.random(), 900 + 500 * rng.random(), 0.06, 0.022, 0.2)
        near = rng.random() ** 3
        dsp.ring_place(ring, dsp.pan(drip, 1.2 * rng.random() - 0.6), seconds * rng.random(), 0.08 + 0.42 * near)
    return dsp.ring_reverb(ring, dsp.room(rng, 0.4, 6000), 0.15)
