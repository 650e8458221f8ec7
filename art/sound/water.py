"""Sounds of the water: berries falling in, bubbles, bites, and a snake going under."""
import numpy as np

import bodies
import dsp


def popo(rng):
    """One bubble bursting, with a small one behind it.

    Shorter than two frames (80 ms): a dying snake starts it anew for each segment, and a sound still running would
    swallow the next start.
    """
    track = dsp.silence(0.074)
    dsp.place(track, bodies.plop(430, 1150, 0.045, 0.014, 0.07), 0.0005)
    dsp.place(track, bodies.plop(950, 1900, 0.03, 0.007, 0.03), 0.036, 0.3)
    dsp.place(track, bodies.splash(rng, 2500, 8000, 0.0005, 0.002, 0.02), 0.001, 0.25)
    return dsp.close(track, 0.0005, 0.015)


def drop(rng):
    """A berry falls into the water: the slap, the cavity that closes with a plop, drops that fall back."""
    track = dsp.silence(0.62)
    dsp.place(track, bodies.splash(rng, 700, 5200, 0.001, 0.012, 0.1), 0.001, 0.55)
    dsp.place(track, bodies.splash(rng, 250, 1800, 0.006, 0.045, 0.3), 0.004, 0.25)
    dsp.place(track, bodies.plop(300, 980, 0.11, 0.042, 0.3), 0.045, 1.0)
    dsp.place(track, bodies.plop(620, 1500, 0.06, 0.02, 0.15), 0.17, 0.35)
    bodies.spray(rng, track, 0.07, 0.45, 14, 900, 3600, 0.16, 1.6)
    return dsp.close(dsp.reverb(track, dsp.room(rng, 0.35, 5000), 0.12), 0.0005, 0.15)


def eat(rng):
    """A juicy bite: the skin cracks in many small snaps, the flesh gives way wetly, juice bubbles."""
    track = dsp.silence(0.29)
    for _ in range(26):
        at = 0.004 + 0.07 * rng.random() ** 1.3
        snap = bodies.splash(rng, 900, 1800 + 5200 * rng.random(), 0.0006, 0.002 + 0.005 * rng.random(), 0.04)
        dsp.place(track, snap, at, 0.5 * (0.3 + rng.random()) * (1 - 6 * at))
    t = dsp.times(0.22)
    mouth = dsp.curve(t, ((0, 480), (0.06, 1250), (0.13, 620), (0.22, 1500)))
    flesh = dsp.moving_band(dsp.noise(rng, 0.22), mouth, 260)
    dsp.place(track, flesh * (dsp.hump(t, 0, 0.11) + 0.7 * dsp.hump(t, 0.1, 0.2)), 0.035, 1.7)
    dsp.place(track, bodies.plop(170, 110, 0.03, 0.02, 0.12), 0.002, 0.25)
    dsp.place(track, bodies.plop(520, 1350, 0.05, 0.018, 0.1), 0.13, 0.5)
    bodies.spray(rng, track, 0.06, 0.26, 10, 1100, 3200, 0.14, 1.4)
    return dsp.close(track, 0.0005, 0.06)


# The air a sinking snake leaves: second, pitch of a bubble as it closes and as it bursts, gain.
GURGLE = ((0.83, 160, 420, 1.0), (1.0, 210, 520, 0.6), (1.14, 260, 640, 0.45), (1.26, 330, 760, 0.3))


def die(rng):
    """Comic: the head bumps with a hollow knock, slides down a whistle, splashes in and gurgles under."""
    track = dsp.silence(1.75)
    dsp.place(track, bodies.strike(bodies.WOOD, 310, 0.06, 0.4), 0.001, 0.9)
    dsp.place(track, bodies.strike(bodies.WOOD, 470, 0.035, 0.3), 0.001, 0.4)
    t = dsp.times(0.66)
    wobble = 1 + 0.035 * np.sin(2 * np.pi * 11 * t) * np.minimum(1, t / 0.3)
    pitch = 260 * (1350 / 260) ** (1 - t / 0.66) ** 0.8 * wobble
    fall = bodies.whistle(rng, pitch, 0.38 * dsp.hump(t, -0.1, 0.72), 0.05, 0.2)
    dsp.place(track, dsp.close(fall, 0.03, 0.04), 0.1)
    dsp.place(track, bodies.splash(rng, 500, 7000, 0.004, 0.09, 0.7), 0.745, 0.75)
    dsp.place(track, bodies.splash(rng, 150, 1100, 0.01, 0.14, 0.8), 0.75, 0.6)
    for at, low, high, gain in GURGLE:
        dsp.place(track, bodies.plop(low, high, 0.1, 0.045, 0.3), at, gain)
    bodies.spray(rng, track, 0.78, 1.5, 46, 700, 4200, 0.2, 1.5)
    return dsp.close(dsp.reverb(track, dsp.room(rng, 0.5, 5000), 0.15), 0.0005, 0.3)
