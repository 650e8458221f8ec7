"""Things that sound: bubbles, splashes, struck bars and bells, whistles."""
import numpy as np

import dsp

# Partials of a body as (ratio to the first, strength, share of the first one's ringing time).
KALIMBA = ((1, 1.0, 1.0), (2.0, 0.10, 0.7), (5.42, 0.16, 0.16), (6.27, 0.10, 0.12), (13.6, 0.03, 0.05))
MARIMBA = ((1, 1.0, 1.0), (3.93, 0.22, 0.22), (9.54, 0.06, 0.08))
WOOD = ((1, 1.0, 1.0), (2.57, 0.55, 0.6), (4.96, 0.3, 0.35), (8.1, 0.12, 0.2))
GLASS = ((1, 1.0, 1.0), (2.32, 0.5, 0.7), (4.25, 0.32, 0.5), (6.63, 0.2, 0.35), (9.38, 0.1, 0.2))
BELL = ((1, 1.0, 1.0), (2.0, 0.35, 0.8), (2.76, 0.3, 0.5), (5.4, 0.14, 0.25))


def strike(partials, frequency, tau, seconds, attack=0.002):
    """A body of `partials` struck once; its first partial falls to 1/e in `tau` seconds."""
    t = dsp.times(seconds)
    sound = np.zeros(len(t))
    for ratio, strength, share in partials:
        if frequency * ratio < 0.45 * dsp.WORK:
            sound += strength * dsp.decay(t, attack, tau * share) * np.sin(2 * np.pi * frequency * ratio * t)
    return sound


def bubble(frequency, rise=0.1, ring=1.0):
    """A bubble under water: it rings at the pitch of its size and, as it nears the surface, higher.

    `rise` is how much the pitch climbs per damping time, `ring` how much longer it sounds than in nature.
    """
    damping = (0.13 * frequency + 0.0072 * frequency ** 1.5) / ring
    t = dsp.times(6 / damping)
    return dsp.decay(t, 0.25 / damping, 1 / damping) * np.sin(dsp.turns(frequency * (1 + rise * damping * t)))


def plop(low, high, climb, tau, seconds):
    """A big bubble closing: the pitch climbs from `low` to `high` in about `climb` seconds."""
    t = dsp.times(seconds)
    phase = dsp.turns(high + (low - high) * np.exp(-t / climb * 1.6))
    return dsp.decay(t, 0.008, tau) * (np.sin(phase) + 0.18 * np.sin(2 * phase + 0.6))


def splash(rng, low, high, attack, tau, seconds):
    """Water thrown up: noise between `low` and `high` hertz that dies away."""
    return dsp.band(dsp.noise(rng, seconds), low, high) * dsp.decay(dsp.times(seconds), attack, tau)


def spray(rng, track, start, end, count, low, high, gain, ring=1.0):
    """`count` small bubbles between two moments of a mono track, fewer and softer towards the end."""
    for _ in range(count):
        late = rng.random() ** 1.7
        drop = bubble(low * (high / low) ** rng.random(), 0.05 + 0.2 * rng.random(), ring)
        dsp.place(track, drop, start + (end - start) * late, gain * (0.2 + rng.random()) * (1 - 0.8 * late))


def whistle(rng, frequency, loudness, breath=0.03, second=0.08):
    """A blown tone along arrays of pitch in hertz and loudness, with a little breath around it."""
    phase = dsp.turns(frequency)
    tone = np.sin(phase) + second * np.sin(2 * phase) + 0.3 * second * np.sin(3 * phase)
    air = dsp.band(rng.standard_normal(len(phase)), 300, 6000)
    return loudness * (tone + breath * air * (1 + np.sin(phase)))
