"""Every wave file of the program: how it is made, and what it is held to.

`loudest` is the range for the loudest 400 ms in LUFS: what is heard often or for long stays below what is rare.
"""
import zlib
from collections import namedtuple

import numpy as np

import dsp
import life
import music
import signals
import water
import weather

Wave = namedtuple("Wave", "make loops channels peak loudest")

WAVES = {
    "popo": Wave(water.popo, False, 1, -3, (-24, -17)),
    "select": Wave(signals.select, False, 1, -3, (-24, -17)),
    "drop": Wave(water.drop, False, 2, -4.5, (-24, -16)),
    "eat": Wave(water.eat, False, 1, -3, (-22, -15)),
    "rainloop": Wave(weather.rainloop, True, 2, -5.5, (-24, -17)),
    "thunder1": Wave(weather.thunder1, False, 2, -2, (-15, -10)),
    "thunder2": Wave(weather.thunder2, False, 2, -3, (-18, -12)),
    "speedup": Wave(signals.speedup, False, 2, -4.5, (-17, -12)),
    "speedown": Wave(signals.speedown, False, 2, -4, (-17, -12)),
    "beat": Wave(signals.beat, True, 1, -5, (-20, -14)),
    "freeze": Wave(signals.freeze, False, 2, -2, (-18, -12)),
    "fade": Wave(signals.fade, False, 2, -5, (-18, -12)),
    "laser": Wave(signals.laser, False, 2, -3, (-17, -12)),
    "warp": Wave(signals.warp, False, 2, -5, (-17, -12)),
    "die": Wave(water.die, False, 2, -3, (-17, -12)),
    "lifeup": Wave(signals.lifeup, False, 2, -4.5, (-17, -12)),
    "env1": Wave(life.env1, False, 2, -5.5, (-23, -16)),
    "env8": Wave(life.env8, False, 2, -5.5, (-23, -16)),
    "env11": Wave(life.env11, False, 2, -5.5, (-23, -15)),
    "env12": Wave(life.env12, False, 2, -5.5, (-23, -16)),
    "env13": Wave(life.env13, False, 2, -5.5, (-23, -15)),
    "loop": Wave(music.loop, True, 2, -5.5, (-22, -16.5)),
}


def samples(name):
    """Renders one file. Its chance depends on its name alone, so it sounds the same rendered alone or with others."""
    wave = WAVES[name]
    sound = wave.make(np.random.default_rng(zlib.crc32(name.encode())))
    sound = (dsp.ring_to_file_rate if wave.loops else dsp.effect_to_file_rate)(sound)
    return dsp.to_samples(sound, wave.peak)
