"""Lights in the water: the laser and its burst, the glow around a head at night, popups, the two moons."""
import numpy as np

from canvas import (blur, box_distance, clip, cover, disc_grid, mix, noise, put, rgb, save_jpeg, save_mask, shrink,
                    smooth, write)
from icons import heart

FLIGHT, BURST, LIGHT, MOON = 30, 56, 160, 130
POPUP = (32, 16)
POPUPS = {"add5": "+5", "add10": "+10", "add15": "+15", "add30": "+30", "add35": "+35", "add40": "+40",
          "add45": "+45", "lifeup": "+1"}


def flight(step):
    """A ball of light with four turning arms; four steps make a quarter turn, so the loop closes."""
    u, v = disc_grid(FLIGHT, 8)
    r, angle = np.hypot(u, v), np.arctan2(v, u) - step * np.pi / 8
    arms = np.abs(np.cos(angle * 2 + 3.2 * r)) ** 6 * smooth(1.0, 0.25, r)
    core, halo = smooth(0.40, 0.14, r), smooth(0.80, 0.10, r) ** 1.5
    colour = mix(rgb("ff5a00"), rgb("ffd84a"), clip(halo + 0.6 * arms))
    colour = mix(colour, rgb("ffffff"), core)
    alpha = clip(0.85 * halo + 0.85 * arms * smooth(0.98, 0.5, r) + core)
    return shrink(colour, 8), shrink(alpha, 8)


def burst(step):
    """Rings of golden light running outward; the last step leads back into the first."""
    u, v = disc_grid(BURST, 6)
    r, angle = np.hypot(u, v), np.arctan2(v, u)
    rim = smooth(0.97, 0.72, r)
    ring = np.zeros_like(r)
    for age in (step / 4, step / 4 + 1):
        ring += smooth(0.13, 0.0, np.abs(r - 0.16 - 0.40 * age)) * (1.15 - 0.5 * age)
    rays = np.abs(np.cos(angle * 6 + step * np.pi / 4)) ** 10 * smooth(0.90, 0.2, r) * smooth(0.1, 0.3, r)
    heart_light = smooth(0.42 + 0.05 * (step % 2), 0.05, r)
    colour = mix(rgb("ff8a10"), rgb("fff0a0"), clip(ring + heart_light))
    colour = mix(colour, rgb("ffffff"), smooth(0.26, 0.06, r))
    alpha = clip((0.75 * ring + 0.65 * rays) * rim + 0.80 * heart_light)
    return shrink(colour, 6), shrink(alpha, 6)


def head_light():
    """The light a snake carries at night: added to the water, black before it reaches the rim."""
    u, v = disc_grid(LIGHT, 2)
    r = shrink(np.hypot(u, v), 2)
    fall = smooth(0.98, 0.0, r) ** 1.6
    return fall[..., None] * np.array([0.42, 0.43, 0.27])


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


def craters(u, v, seed, count):
    """Height of a cratered ground, rims raised."""
    dice = np.random.RandomState(seed)
    ground = np.zeros_like(u)
    for _ in range(count):
        cx, cy, size = dice.uniform(-1, 1), dice.uniform(-1, 1), 0.03 + 0.15 * dice.rand() ** 3
        d = np.hypot(u - cx, v - cy) / size
        ground += size * (np.exp(-((d - 1) / 0.28) ** 2) * 0.5 - smooth(1.0, 0.6, d) * 0.45)
    return ground


def moon(seed, phase):
    """A moon with seas and craters; `phase` moves the shadow's edge across it (0 full)."""
    u, v = disc_grid(MOON, 4)
    size = 0.86
    x, y = u / size, v / size
    r = np.hypot(x, y)
    z = np.sqrt(clip(1 - r * r))
    ground = craters(x, y, seed, 70)
    gy, gx = np.gradient(ground, 2.0 / u.shape[0])
    seas = smooth(0.50, 0.62, noise(*u.shape, u.shape[0] / 3.2, seed + 1, 4))
    tone = mix(rgb("fff8dc"), rgb("8f9788"), 0.85 * seas)
    tone = tone * (0.80 + 0.20 * z + clip(-(gx + gy) * 0.05, -0.10, 0.08))[..., None]
    lit = np.ones_like(r) if phase == 0 else smooth(-0.10, 0.14, -x + phase * z - 0.10)
    tone = mix(tone * np.array([0.16, 0.22, 0.27]), tone, lit)
    halo = smooth(1.16, 0.98, r) * 0.45 * (lit if phase else 1)
    alpha = np.maximum(smooth(1.005, 0.985, r) * (0.35 + 0.65 * lit), halo)
    colour = mix(tone, rgb("ffeeb8"), smooth(0.985, 1.0, r))
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
    for number, phase in ((1, 0), (2, 0.35)):
        picture, alpha = moon(40 + number, phase)
        save_jpeg(f"Moon{number}.jpg", blur(picture, 0.3), dither=False)
        save_mask(f"Moon{number}_.bmp", alpha)
