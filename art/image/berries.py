"""Berries, the stone, their falling frames and their shadow.

All seven share one round mask; what tells them apart besides the colour is the pattern inside:
red plain and glossy, green with meridian stripes, blue with a star crown, orange in segments,
purple a cluster, golden polished metal, the stone dry and matt.
"""
import numpy as np

from canvas import blur, clip, disc_grid, mix, noise, ramp, rgb, save_jpeg, save_mask, shrink, smooth
from manifest import COLOURS, falling_size

CELL = 16
FRAMES = 14
RADIUS = 0.955  # of the berry, half a cell being 1
LIGHT = np.array([-0.46, -0.56, 0.69])  # from the upper left, above the water

# deep (in the shade), body, light gathered at the far side
TINTS = {
    "red": (rgb("5a0010"), rgb("e0142a"), rgb("ff8a6a")),
    "green": (rgb("0c3a0c"), rgb("5cb81e"), rgb("b8f05a")),
    "blue": (rgb("0a1c78"), rgb("2f62f0"), rgb("8cd0ff")),
    "orange": (rgb("b45000"), rgb("ffa81e"), rgb("ffe070")),
    "purple": (rgb("3a0660"), rgb("a434d8"), rgb("ffb0ff")),
}


def sphere(u, v, radius=1.0, cx=0.0, cy=0.0):
    """Normal of a sphere seen from above, and its height; zero outside."""
    x, y = (u - cx) / radius, (v - cy) / radius
    z = np.sqrt(clip(1 - x * x - y * y))
    return x, y, z


def shine(x, y, z, sharp):
    """A highlight that looks at the light half way between it and the eye."""
    hx, hy, hz = LIGHT + np.array([0, 0, 1.0])
    size = np.sqrt(hx * hx + hy * hy + hz * hz)
    return clip((x * hx + y * hy + z * hz) / size) ** sharp


def translucent(x, y, z, tint):
    """Clear skin over coloured flesh: shaded body, light gathered opposite to the sun, a soft dark rim."""
    deep, body, far = tint
    lit = clip(x * LIGHT[0] + y * LIGHT[1] + z * LIGHT[2])
    colour = mix(deep, body, 0.30 + 0.70 * lit)
    through = smooth(0.05, 0.95, x * 0.62 + y * 0.74) * smooth(0.02, 0.45, z)
    colour = mix(colour, far, 0.72 * through)
    return mix(colour, deep * 0.55, 0.85 * smooth(0.42, 0.10, z))


def gloss(colour, x, y, z, strength=1.0):
    soft, hard = shine(x, y, z, 14) * 0.30, smooth(0.45, 0.8, shine(x, y, z, 40))
    return mix(colour, rgb("ffffff"), clip(soft + hard) * strength)


def red(u, v):
    x, y, z = sphere(u, v, RADIUS)
    return gloss(translucent(x, y, z, TINTS["red"]), x, y, z)


def green(u, v):
    x, y, z = sphere(u, v, RADIUS)
    colour = translucent(x, y, z, TINTS["green"])
    a, across = (x + y) * 0.7071, (x - y) * 0.7071
    meridian = np.arctan2(across, np.sqrt(clip(1 - a * a - across * across)) + 1e-6)
    stripe = smooth(0.30, 0.75, np.abs(np.sin(meridian * 2.6 + 1.57))) * smooth(1.0, 0.6, np.abs(a))
    colour = mix(colour, rgb("f0ffc4"), 0.80 * (1 - stripe) * smooth(0.05, 0.4, z) * smooth(1.0, 0.55, np.abs(a)))
    return gloss(colour, x, y, z, 0.9)


def blue(u, v):
    x, y, z = sphere(u, v, RADIUS)
    colour = translucent(x, y, z, TINTS["blue"])
    cx, cy = u - 0.12, v - 0.14
    r, angle = np.hypot(cx, cy), np.arctan2(cy, cx)
    edge = 0.40 + 0.26 * np.abs(np.cos(angle * 2 + 0.785)) ** 1.5
    colour = mix(colour, rgb("d4f2ff"), 0.95 * smooth(edge + 0.08, edge - 0.02, r))
    colour = mix(colour, rgb("04083a"), 0.97 * smooth(edge - 0.15, edge - 0.25, r))
    return gloss(colour, x, y, z, 0.85)


def orange(u, v):
    x, y, z = sphere(u, v, RADIUS)
    colour = translucent(x, y, z, TINTS["orange"])
    r, angle = np.hypot(u, v), np.arctan2(v, u)
    wall = np.abs(np.sin(angle * 3 + 0.5)) * r  # six segments
    seam = smooth(0.28, 0.08, wall) * smooth(0.80, 0.66, r)
    colour = mix(colour, rgb("a03800"), 0.62 * smooth(0.64, 0.72, r) * smooth(0.86, 0.78, r))
    colour = mix(colour, rgb("fff6c8"), 0.95 * seam)
    return gloss(colour, x, y, z, 0.7)


def purple(u, v):
    """Drupelets around one in the middle, each a small sphere on the large one."""
    deep = TINTS["purple"][0]
    colour = np.broadcast_to(deep * 0.45, u.shape + (3,)).copy()
    places = [(0.56 * np.cos(t), 0.56 * np.sin(t)) for t in np.arange(6) * np.pi / 3 + 0.52] + [(0.0, 0.0)]
    for cx, cy in places:
        x, y, z = sphere(u, v, 0.385, cx, cy)
        drop = translucent(x * 0.8 + cx * 0.35, y * 0.8 + cy * 0.35, z, TINTS["purple"])
        drop = mix(drop, rgb("ffffff"), smooth(0.5, 0.9, shine(x, y, z, 18)) * 0.8)
        colour = mix(colour, drop, smooth(0.0, 0.30, z))
    return colour


METAL = [(0.0, rgb("3a2000")), (0.18, rgb("a06608")), (0.36, rgb("ffd648")), (0.43, rgb("5c3400")),
         (0.55, rgb("b87c0c")), (0.74, rgb("ffd84a")), (0.90, rgb("fff4b8")), (1.0, rgb("ffffff"))]


def golden(u, v):
    """Polished gold mirrors a banded sky: bright above, a dark horizon, a warm ground."""
    x, y, z = sphere(u, v, RADIUS)
    lit = x * LIGHT[0] + y * LIGHT[1] + z * LIGHT[2]
    colour = ramp(METAL, clip(lit * 0.60 + 0.33))
    ring = smooth(0.10, 0.0, np.abs(np.hypot(u + 0.02, v + 0.02) - 0.52))
    colour = mix(colour, rgb("fff6c8"), 0.55 * ring)
    colour = mix(colour, rgb("4a2a00"), 0.7 * smooth(0.30, 0.02, z))
    cx, cy = u + 0.30, v + 0.34
    star = smooth(0.055, 0.0, np.abs(cx * cy)) * smooth(0.42, 0.05, np.hypot(cx, cy))
    return mix(colour, rgb("ffffff"), clip(star + smooth(0.16, 0.06, np.hypot(cx, cy))))


def stone(u, v):
    """Dry grey: rough, faceted, no highlight."""
    x, y, z = sphere(u, v, RADIUS)
    rough = noise(*u.shape, u.shape[0] / 4.5, 31, 4)
    gy, gx = np.gradient(blur(rough, u.shape[0] / 60), 2.0 / u.shape[0])
    lit = clip((x - gx * 0.42) * LIGHT[0] + (y - gy * 0.42) * LIGHT[1] + z * 0.62 + 0.16)
    colour = mix(rgb("26282a"), rgb("c6c8c4"), clip(lit ** 1.15))
    colour = mix(colour, rgb("6c6a64"), 0.5 * smooth(0.60, 0.42, rough))
    return mix(colour, rgb("2c2e30"), 0.85 * smooth(0.38, 0.06, z))


DRAW = {"red": red, "green": green, "blue": blue, "orange": orange, "purple": purple,
        "golden": golden, "stone": stone}


def object_picture(kind, size):
    """A berry or stone with its alpha, size x size pixels; the colour reaches past the rim."""
    fine = max(4, 192 // size)
    u, v = disc_grid(size, fine)
    r = np.hypot(u, v)
    inward = np.where(r > RADIUS, RADIUS * 0.985 / np.maximum(r, 1e-6), 1.0)
    alpha = smooth(RADIUS + 0.5 / (size * fine), RADIUS - 0.5 / (size * fine), r)
    return shrink(DRAW[kind](u * inward, v * inward), fine), shrink(alpha, fine)


def ripe(kind):
    """The picture in the pond. Black outside its rim, since the game also adds it to itself to make it blink."""
    picture, alpha = object_picture(kind, CELL)
    return picture * clip(2 * alpha)[..., None], alpha


def falling_frame(kind, frame):
    """A berry on its way down: frame 1 large and soft, frame 14 the ripe berry itself.

    Frames are drawn with the top-left on the cell, so a larger frame lies further right and down:
    the berry comes in on a slant over its own shadow, which approaches from the same side.
    """
    left = FRAMES - frame
    if not left:
        return ripe(kind)
    picture, alpha = object_picture(kind, falling_size(frame))
    return blur(picture, 0.12 * left), blur(np.pad(alpha, 4), 0.14 * left)[4:-4, 4:-4]


def shadow():
    """What is taken from the water under a thing: a soft disc, a little warm so that a blue shade stays."""
    u, v = disc_grid(CELL, 8)
    dark = shrink(smooth(1.0, 0.05, np.hypot(u, v)), 8)
    return dark[..., None] * np.array([0.20, 0.22, 0.18])


def render():
    for kind in COLOURS + ("golden",):
        save_jpeg(f"bean_{kind}.jpg", ripe(kind)[0], dither=False)
    picture, alpha = ripe("stone")
    save_jpeg("stone.jpg", picture, dither=False)
    save_mask("mask.bmp", alpha)
    for frame in range(1, FRAMES + 1):
        for kind in COLOURS:
            picture, alpha = falling_frame(kind, frame)
            save_jpeg(f"bean_{kind}{frame}.jpg", picture, dither=False)
        save_mask(f"mask{frame}.bmp", alpha)
    save_jpeg("shadow.jpg", shadow(), dither=False)
