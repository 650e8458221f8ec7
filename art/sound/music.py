"""The music: plays `pond.score` on struck, blown and watery instruments."""
import pathlib

import numpy as np

import bodies
import dsp
from score import Score

# Loudness of the eighths of a bar: it rocks on the first and the fourth.
ROCKING = (1.0, 0.72, 0.8, 0.92, 0.7, 0.78)


def sung(partials, pitch, tau, seconds, attack):
    """A struck body that gives most of its sound off at once and rings on softly, as tines and bars do."""
    tone = 0.25 * bodies.strike(partials, pitch, tau, seconds, attack)
    dsp.place(tone, bodies.strike(partials, pitch, 0.03, 0.3, attack), 0, 0.75)
    return tone


def kalimba(rng, seconds, pitch):
    thumb = bodies.splash(rng, 900, 4000, 0.001, 0.006, 0.05)
    tone = sung(bodies.KALIMBA, pitch, 0.5 * (440 / pitch) ** 0.5, 2.2, 0.0015)
    dsp.place(tone, thumb, 0, 0.1)
    return dsp.close(tone, 0.0005, 0.3)


def marimba(rng, seconds, pitch):
    return dsp.close(sung(bodies.MARIMBA, pitch, 0.5 * (220 / pitch) ** 0.4, 1.6, 0.004), 0.001, 0.3)


def bells(rng, seconds, pitch):
    return dsp.close(bodies.strike(bodies.BELL, pitch, 0.5, 2.0, 0.004), 0.001, 0.4)


def drops(rng, seconds, pitch):
    """A falling drop whose bubble settles on the pitch."""
    return dsp.close(bodies.plop(pitch * 0.62, pitch, 0.035, 0.07, 0.4), 0.001, 0.1)


def brush(rng, seconds, pitch):
    """Reed stems brushed softly."""
    t = dsp.times(0.22)
    return dsp.band(dsp.noise(rng, 0.22), pitch, 2.4 * pitch, 1) * dsp.hump(t, -0.03, 0.2)


def bass(rng, seconds, pitch):
    t = dsp.times(seconds + 0.5)
    loud = dsp.decay(t, 0.02, 1.1) * np.minimum(1, (t[-1] - t) / 0.5)
    phase = 2 * np.pi * pitch * t
    overtones = 0.35 * np.sin(2 * phase) * np.exp(-t / 0.5) + 0.12 * np.sin(3 * phase) * np.exp(-t / 0.3)
    return loud * (np.sin(phase) + overtones)


def pad(rng, seconds, pitch):
    """A choir of slightly detuned soft voices that overlap from chord to chord."""
    t = dsp.times(seconds + 1.2)
    voice = np.zeros(len(t))
    for detune in (-4, 1, 5):
        f = pitch * 2 ** (detune / 1200)
        for partial, strength in ((1, 1.0), (2, 0.33), (3, 0.16), (4, 0.07), (5, 0.035)):
            voice += strength * np.sin(2 * np.pi * f * partial * t + 6.28 * rng.random())
    coming = np.sin(np.pi / 2 * np.minimum(1, t / 0.9)) ** 2
    going = np.cos(np.pi / 2 * np.clip((t - seconds) / 1.2, 0, 1)) ** 2
    return voice * coming * going * (1 + 0.12 * np.sin(2 * np.pi * 0.5 * t + 6.28 * rng.random()))


def flute(rng, seconds, pitch):
    t = dsp.times(seconds + 0.12)
    vibrato = 1 + 0.0045 * np.sin(2 * np.pi * 4.8 * t) * np.clip((t - 0.25) / 0.4, 0, 1)
    scoop = 1 - 0.02 * np.exp(-t / 0.04)
    loud = np.minimum(1, t / 0.09) ** 1.5 * np.clip((t[-1] - t) / 0.14, 0, 1) * (0.85 + 0.15 * dsp.hump(t, 0, seconds))
    return bodies.whistle(rng, pitch * vibrato * scoop, loud, 0.045, 0.14)


# Instrument: how it sounds, its gain, its place from left to right, its share of the room, how far its start may stray.
BAND = {
    "kalimba": (kalimba, 1.0, -0.12, 0.8, 0.008),
    "marimba": (marimba, 0.36, 0.28, 0.7, 0.007),
    "flute": (flute, 0.14, 0.15, 1.2, 0.006),
    "bells": (bells, 0.075, -0.5, 1.6, 0.01),
    "drops": (drops, 0.22, 0.6, 1.4, 0.015),
    "brush": (brush, 0.05, 0.45, 0.6, 0.01),
    "bass": (bass, 0.22, 0.0, 0.3, 0.003),
    "pad": (pad, 0.015, 0.0, 1.0, 0.02),
}


def loop(rng):
    """The boat song, about a minute, running back into its own start."""
    score = Score(pathlib.Path(__file__).parent / "pond.score")
    dry, hall = dsp.silence(score.seconds, 2), dsp.silence(score.seconds, 2)
    for number, (instrument, start, eighths, pitch) in enumerate(score.notes):
        play, gain, where, share, stray = BAND[instrument]
        if instrument == "pad":
            where = (-0.7, 0.7, -0.3, 0.3)[number % 4]
        if instrument not in ("pad", "bass", "flute"):
            gain *= ROCKING[start % score.bar] * (0.94 + 0.12 * rng.random())
        sound = dsp.pan(play(rng, eighths * score.eighth, pitch), where)
        at = start * score.eighth + stray * (rng.random() - 0.3)
        dsp.ring_place(dry, sound, at, gain)
        dsp.ring_place(hall, sound, at, gain * share)
    wet = dsp.ring_reverb(hall, dsp.room(rng, 2.4, 5000, 0.025), 1.0) - hall
    return dsp.ring_band(dry + 0.26 * wet, None, 9000, 1)
