"""Lights in the water: the laser and its burst, the glow around a head at night, popups, the two moons."""
import numpy as np

from canvas import (blur, box_distance, clip, cover, disc_grid, mix, noise, put, rgb, save_jpeg, save_mask, shrink,
                    smooth, write)
from icons import heart

FLIGHT, BURST, LIGHT, MOON = 30, 56, 160, 130
SPARKS = 12
POPUP = (32, 16)
POPUPS = {"add5": "+5", "add10": "+10", "add15": "+15", "add30": "+30", "add35": "+35", "add40": "+40",
          "add45": "+45", "lifeup": "+1"}


def flight(step):
    """A ball of light with four turning arms; four steps make a quarter turn, so the loop closes."""
    u, v = disc_grid(FLIGHT, 8)
    r, angle = np.hypot(u, v), np.arctan2(v, u) - step * np.pi / 8
    arms = np.abs(np.cos(angle * 2 + 3.2 * r)) ** 5 * smooth(1.0, 0.30, r)
    core, halo = smooth(0.46, 0.20, r), smooth(0.98, 0.0, r) ** 1.7
    colour = mix(rgb("ff4a00"), rgb("ffe060"), clip(1.25 * halo + 0.5 * arms))
    colour = mix(colour, rgb("ffffff"), core)
    alpha = clip(0.95 * halo + 0.9 * arms * smooth(0.98, 0.5, r) + core)
    return shrink(colour, 8), shrink(alpha, 8)


def sparks(u, v, age):
    """Sparks flying apart, each at its own point of the way; after a whole age each has taken the next one's place."""
    light = np.zeros_like(u)
    for number in range(SPARKS):
        way = (number * 0.618 + age) % 1.0
        angle = number * 2 * np.pi / SPARKS + 0.35 * np.sin(number * 5.0)
        reach, size = 0.22 + 0.68 * way ** 0.8, 0.085 * (1 - 0.55 * way)
        away = np.hypot(u - reach * np.cos(angle), v - reach * np.sin(angle)) / size
        light = np.maximum(light, smooth(1.3, 0.2, away) * smooth(1.0, 0.55, way) * smooth(0.0, 0.15, way))
    return light


def burst(step):
    """A flash from which a ring of light and sparks run outward; the last step leads back into the first."""
    u, v = disc_grid(BURST, 6)
    r, angle, age = np.hypot(u, v), np.arctan2(v, u), step / 4
    glow = smooth(0.95, 0.0, r) ** 2.2
    spread = np.abs(r - 0.26 - 0.60 * age) / (0.09 + 0.07 * age)
    ring = smooth(1.0, 0.0, spread) * (1 - age) ** 0.7
    beams = clip(np.cos(angle * 5 + 0.6) * 0.6 + np.cos(angle * 8 - step * np.pi / 2) * 0.5)
    beams = beams ** 2.0 * smooth(0.92, 0.15, r)
    flash = smooth(0.42 + 0.08 * (step % 2), 0.12, r)
    light = sparks(u, v, age)
    colour = mix(rgb("ff6a08"), rgb("ffd24a"), clip(0.9 * ring + 1.6 * glow + 0.4 * beams))
    colour = mix(colour, rgb("fff8d8"), clip(0.6 * ring * (1 - age) + light + smooth(0.40, 0.16, r)))
    alpha = clip(0.75 * glow + 0.80 * ring + 0.60 * beams + flash + light) * smooth(1.0, 0.88, r)
    return shrink(colour, 6), shrink(alpha, 6)


def head_light():
    """The light a snake carries at night: added to the water, black before it reaches the rim.
    """
    u, v = disc_grid(LIGHT, 2)
    r = shrink(np.hypot(u, v), 2)
    fall = smooth(0.98, 0.0, r) ** 1.5
    return fall[..., None] * np.array([0.47, 0.46, 0.30])


def popup(text):
    """A small glass badge; all share one outline, and with it one mask."""
    width, height = POPUP
    edge = box_distance((height, width), 0.5, 0.5, width - 1, height - 1, 7.5)
    y = np.mgrid[0:height, 0:width][0] / (height - 1.0)
    picture = mix(rgb("0c5a58"), rgb("032422"), y)
    picture = mix(picture, rgb("ffe27a"), cover(np.abs(edge + 0.9) - 0.7) * 0.9)
    if text == "+1":
        shape, alpha = heart(11)
        put(picture, shape, alpha, 16, 3)
        write(picture, 10, 8, text, 11, rgb("ffffff"), "Black", "mm")
    else:
        write(picture, width / 2, 8, text, 12, rgb("fff2b0"), "Black", "mm")
    return picture, cover(edge)


def craters(u, v, dice, count):
    """Height of a cratered ground, rims raised; most craters are small."""
    ground = np.zeros_like(u)
    for _ in range(count):
        cx, cy, size = dice.uniform(-1, 1), dice.uniform(-1, 1), 0.016 + 0.08 * dice.rand() ** 5
        d = np.hypot(u - cx, v - cy) / size
        ground += size * (np.exp(-((d - 1) / 0.30) ** 2) * 0.4 - smooth(1.0, 0.5, d) * 0.5)
    return ground


def rays(u, v, dice, count):
    """Bright dust that young craters have thrown out, in rays of uneven length."""
    dust = np.zeros_like(u)
    for _ in range(count):
        turn, far = dice.uniform(0, 2 * np.pi), dice.uniform(0.25, 0.75)
        dx, dy = u - far * np.cos(turn), v - far * np.sin(turn)
        r, angle = np.hypot(dx, dy), np.arctan2(dy, dx)
        streaks = sum(np.cos(angle * n + dice.uniform(0, 2 * np.pi)) for n in (5, 8, 13, 21)) / 4
        dust += np.exp(-r * 3.2) * clip(0.25 + 1.5 * streaks) + 1.3 * np.exp(-(r / 0.035) ** 2)
    return clip(dust)


def moon(seed, phase):
    """A moon with seas, craters and rays; `phase` moves the shadow's edge across it (0 full).

    The program never shows it denser than a third, so its tones lie far apart.
    """
    u, v = disc_grid(MOON, 4)
    size = 0.86
    x, y = u / size, v / size
    r = np.hypot(x, y)
    z = np.sqrt(clip(1 - r * r))
    dice = np.random.RandomState(seed)
    gy, gx = np.gradient(craters(x, y, dice, 240), 2.0 / u.shape[0])
    wide, fine = noise(*u.shape, u.shape[0] / 2.6, seed + 1, 5), noise(*u.shape, u.shape[0] / 12, seed + 2, 4)
    seas = smooth(0.47, 0.58, wide + 0.10 * (fine - 0.5))
    tone = mix(rgb("e6e2cc"), rgb("fffdf0"), smooth(0.35, 0.65, fine))
    tone = mix(tone, mix(rgb("5c6c6c"), rgb("8a9488"), fine), 0.90 * seas)
    tone = mix(tone, rgb("fffef4"), 0.45 * rays(x, y, dice, 3))
    relief = clip(-(gx + gy) * 0.09, -0.20, 0.14) * (1 - 0.4 * seas)
    tone = tone * (0.82 + 0.18 * z + relief)[..., None]
    lit = np.ones_like(r) if phase == 0 else smooth(-0.08, 0.22, -x + phase * z - 0.10 + 1.2 * relief)
    tone = mix(tone * np.array([0.16, 0.22, 0.27]), tone, lit)
    halo = smooth(1.16, 0.96, r) ** 1.5 * 0.55 * (lit if phase else 1)
    alpha = np.maximum(smooth(1.005, 0.985, r) * (0.30 + 0.70 * lit), halo)
    colour = mix(tone, rgb("fff0c0") if phase == 0 else mix(tone, rgb("fff0c0"), lit), smooth(0.985, 1.0, r))
    return shrink(colour, 4), shrink(alpha, 4)


def render():
    for step in range(4):
        for name, (picture, alpha) in ((f"light{step + 1}", flight(step)), (f"light{step + 5}", burst(step))):
            save_jpeg(f"{name}.jpg", picture, dither=False)
            save_mask(f"{name}_.bmp", alpha)
    save_jpeg("light.jpg", head_light())
    for name, text in POPUPS.items():
        picture, alpha = popup(text)
        save_jpeg(f"{name}.jpg", picture, dither=False)
    save_mask("add_.bmp", alpha)
    for number, seed, phase in ((1, 46, 0), (2, 42, 0.55)):
        picture, alpha = moon(seed, phase)
        save_jpeg(f"Moon{number}.jpg", blur(picture, 0.3), dither=False)
        save_mask(f"Moon{number}_.bmp", alpha)
