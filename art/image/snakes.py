"""The snakes: beads of light for the bodies, heads with faces, the arrows of a waiting snake."""
import numpy as np

from berries import CELL, shine, sphere
from canvas import clip, disc_grid, mix, polygon, rgb, save_bmp, save_jpeg, save_mask, shrink, smooth

FINE = 12
DIRECTIONS = ("up", "down", "left", "right")
TURNS = {"up": 0, "right": 1, "down": 2, "left": 3}  # quarter turns to the right

# What the head images show, in file order. "left" and "right" are the snake's own sides; heading down
# the pictures for the right side come first.
NEUTRAL, EAT, LEFT_FRONT, LEFT, RIGHT_FRONT, RIGHT = range(6)
ORDER = {
    "up": (NEUTRAL, EAT, LEFT_FRONT, LEFT, RIGHT_FRONT, RIGHT),
    "down": (NEUTRAL, EAT, RIGHT_FRONT, RIGHT, LEFT_FRONT, LEFT),
    "left": (NEUTRAL, EAT, LEFT_FRONT, LEFT, RIGHT_FRONT, RIGHT),
    "right": (NEUTRAL, EAT, LEFT_FRONT, LEFT, RIGHT_FRONT, RIGHT),
}
# To the side a head turns its whole face: the eye on that side narrows, the other comes toward the middle.
# Eyes as (across, along, size), the one drawn last over the other; then the pupils' direction.
EYE_X, EYE_Y, EYE = 0.47, -0.16, 0.47
FACE = {
    NEUTRAL: (((-EYE_X, EYE_Y, EYE), (EYE_X, EYE_Y, EYE)), (0.0, -0.30)),
    LEFT_FRONT: (((-0.56, -0.30, 0.40), (0.31, -0.20, 0.50)), (-0.72, -0.72)),
    LEFT: (((-0.60, -0.12, 0.37), (0.23, -0.06, 0.52)), (-1.0, 0.12)),
}
MIRRORED = {RIGHT_FRONT: LEFT_FRONT, RIGHT: LEFT}

SKIN, SKIN_SHADE, SKIN_LIGHT = rgb("8ee23c"), rgb("14561c"), rgb("f2ffb0")
INK = rgb("06140e")


def turned(u, v, quarters):
    """Points turned clockwise about the middle by so many quarter turns, which need not be whole."""
    cos, sin = np.cos(quarters * np.pi / 2), np.sin(quarters * np.pi / 2)
    return u * cos - v * sin, u * sin + v * cos


def skin(u, v, a, b):
    """The head itself: a smooth ovoid, broad at the eyes, lit from the upper left whatever its heading."""
    r = np.hypot(a / (0.95 - 0.06 * b), b / 0.95)
    x, y = u / 0.97, v / 0.97
    z = np.sqrt(clip(1 - r * r))
    lit = clip(-0.46 * x - 0.56 * y + 0.69 * z)
    colour = mix(SKIN_SHADE, SKIN, 0.25 + 0.85 * lit)
    colour = mix(colour, SKIN_LIGHT, 0.5 * smooth(0.35, 1.0, x * 0.6 + y * 0.7) * smooth(0.05, 0.4, z))
    colour = mix(colour, SKIN_SHADE, 0.75 * smooth(0.62, 0.45, z))
    colour = mix(colour, SKIN_LIGHT, 0.85 * smooth(0.45, 0.28, z))  # a rim of light parts it from the water
    return mix(colour, rgb("ffffff"), 0.5 * shine(x, y, z, 30)), r


def face(look):
    """The open eyes of an expression and where they look; the right side's are the left's in a mirror."""
    eyes, (gx, gy) = FACE[MIRRORED.get(look, look)]
    if look not in MIRRORED:
        return eyes, (gx, gy)
    return tuple((-cx, cy, size) for cx, cy, size in eyes), (-gx, gy)


def eye(colour, a, b, place, gaze, up_left, pupil=0.56):
    """One open eye at its place in the snake's own coordinates, looking along gaze.

    `up_left` is the picture's upper left in those coordinates: there the light glints.
    """
    cx, cy, size = place
    r = np.hypot(a - cx, b - cy) / size
    x, y, z = sphere(a, b, size, cx, cy)
    white = mix(rgb("aebfc4"), rgb("ffffff"), smooth(0.15, 0.75, z))
    colour = mix(colour, INK, smooth(1.16, 1.02, r))
    colour = mix(colour, white, smooth(1.0, 0.90, r))
    gx, gy = gaze
    reach = 0.50
    px, py = (a - cx) / size - gx * reach, (b - cy) / size - gy * reach
    colour = mix(colour, rgb("0a1a2c"), smooth(pupil + 0.06, pupil - 0.06, np.hypot(px, py)) * smooth(1.0, 0.92, r))
    glint = np.hypot(a - cx - up_left[0] * 0.25, b - cy - up_left[1] * 0.25)
    return mix(colour, rgb("ffffff"), 0.95 * smooth(0.14, 0.08, glint))


def closed_eye(colour, a, b, cx):
    """Squeezed shut with delight: an arc, open toward the back."""
    r = np.hypot(a - cx, b - EYE_Y - 0.20)
    arc = smooth(0.14, 0.07, np.abs(r - 0.29)) * smooth(0.10, -0.02, b - EYE_Y - 0.16)
    return mix(colour, INK, arc)


def mouth(colour, a, b):
    """The open mouth at the front, with a tongue."""
    r = np.hypot(a / 0.46, (b + 0.66) / 0.30)
    colour = mix(colour, rgb("3c0410"), smooth(1.06, 0.92, r))
    return mix(colour, rgb("ff7088"), smooth(1.0, 0.8, np.hypot(a / 0.28, (b + 0.56) / 0.17)))


def head(quarters, look, size):
    """A head with its alpha, size x size pixels, heading up turned clockwise by `quarters`."""
    fine = max(4, 192 // size)
    u, v = disc_grid(size, fine)
    a, b = turned(u, v, -quarters)
    up_left = turned(-0.68, -0.73, -quarters)
    colour, r = skin(u, v, a, b)
    alpha = smooth(1.01, 0.97, r)
    if look == EAT:
        colour = mouth(colour, a, b)
        for side in (-1, 1):
            colour = closed_eye(colour, a, b, side * EYE_X)
    else:
        eyes, gaze = face(look)
        for place in eyes:
            colour = eye(colour, a, b, place, gaze, up_left)
            cx, cy, eye_size = place
            alpha = np.maximum(alpha, smooth(1.16, 1.12, np.hypot(a - cx, b - cy) / eye_size))
    return shrink(colour, fine), shrink(alpha, fine)


def bumped_head(quarters, size):
    """The head that has run into something: flattened at the front, eyes crossed, stars around it."""
    fine = max(4, 192 // size)
    u, v = disc_grid(size, fine)
    a, b = turned(u, v, -quarters)
    a, b = a * 1.22, b * 1.62 - 0.18  # broad and squashed
    colour, r = skin(*turned(a, b, quarters), a, b)
    alpha = smooth(1.02, 0.96, r)
    for side in (-1, 1):
        cx, turn = side * EYE_X, side
        e = np.hypot(a - cx, b - EYE_Y) / 0.52
        colour = mix(colour, INK, smooth(1.16, 1.02, e))
        colour = mix(colour, rgb("ffffff"), smooth(1.0, 0.9, e))
        angle = np.arctan2(b - EYE_Y, a - cx) * turn
        spiral = np.cos(angle - e * 8.6)
        colour = mix(colour, INK, smooth(0.05, 0.45, spiral) * smooth(0.90, 0.80, e))
        alpha = np.maximum(alpha, smooth(1.16, 1.10, e))
    tongue = np.hypot((a - 0.20) / 0.17, (b - 0.94) / 0.34)
    colour = mix(colour, rgb("ff7088"), smooth(1.04, 0.9, tongue))
    alpha = np.maximum(alpha, smooth(1.08, 0.98, tongue))
    for t in (-2.30, -1.57, -0.84):
        sx, sy = 0.86 * 1.22 * np.cos(t), 0.80 * 1.62 * np.sin(t) - 0.08
        ra, rr = np.arctan2(b - sy, a - sx), np.hypot((a - sx) / 1.22, (b - sy) / 1.62)
        star = 0.125 + 0.10 * np.cos(ra * 5 + 1.57)
        colour = mix(colour, rgb("7a4a00"), smooth(star + 0.07, star + 0.02, rr))
        colour = mix(colour, rgb("ffe850"), smooth(star + 0.03, star - 0.02, rr))
        alpha = np.maximum(alpha, smooth(star + 0.08, star + 0.03, rr))
    return shrink(colour, fine), shrink(alpha, fine)


WARM = (rgb("ff4600"), rgb("ff9826"), rgb("ffdc88"))
COOL = (rgb("0a3cff"), rgb("3c98ff"), rgb("c8ecff"))


def bead(light, size, ring):
    """Light to add to the water. Not only the colour tells the players apart: one has solid orbs with a glowing
    heart, the other hollow rings, like bubbles with a point of light."""
    fine = max(4, 192 // size)
    u, v = disc_grid(size, fine)
    r = np.hypot(u, v)
    edge, heart, spark = light
    if ring:
        body = 0.46 * smooth(0.98, 0.80, r) + 0.45 * smooth(0.28, 0.06, np.abs(r - 0.76))
        core = 0.50 * smooth(0.22, 0.04, np.abs(r - 0.76))
    else:
        body = 0.72 * smooth(1.0, 0.72, r) * (0.78 + 0.22 * smooth(0.5, 0.9, r))
        core = 0.52 * smooth(0.70, 0.10, r)
    glowing = edge * body[..., None] + heart * core[..., None] * 0.75
    glowing += spark * (0.80 * smooth(0.26, 0.10, np.hypot(u + 0.32, v + 0.36)))[..., None]
    glowing += spark * (0.25 * smooth(0.4, 0.9, u * 0.6 + v * 0.7) * smooth(0.94, 0.80, r))[..., None]
    return clip(shrink(glowing, fine))


# An arrow pointing up, in sixteenths of its cell.
ARROW = [(8, 2.2), (13.6, 8.6), (10.4, 8.6), (10.4, 13.8), (5.6, 13.8), (5.6, 8.6), (2.4, 8.6)]


def arrow(direction):
    """A bright arrow with a dark edge; everything else is the key colour."""
    points = np.array(ARROW) - 8
    for _ in range(TURNS[direction]):
        points = np.stack([-points[:, 1], points[:, 0]], axis=1)
    inner = polygon((CELL, CELL), points + 8)
    outer = np.zeros_like(inner)
    for dx, dy in ((-1, 0), (1, 0), (0, -1), (0, 1), (-1, -1), (1, 1), (-1, 1), (1, -1)):
        outer = np.maximum(outer, polygon((CELL, CELL), points * 1.02 + 8 + np.array([dx, dy]) * 0.9))
    y = np.mgrid[0:CELL, 0:CELL][0] / (CELL - 1.0)
    colour = mix(rgb("043230"), mix(rgb("fffbd0"), rgb("ffc428"), y), inner)
    colour[outer < 0.5] = 1.0
    return colour


def render():
    number = 0
    for direction in DIRECTIONS:
        for look in ORDER[direction]:
            number += 1
            picture, alpha = head(TURNS[direction], look, CELL)
            save_jpeg(f"snakeeye{number:02}.jpg", picture, dither=False)
            save_mask(f"snakeeye{number:02}_.bmp", alpha)
    for number, direction in enumerate(DIRECTIONS, 1):
        picture, alpha = bumped_head(TURNS[direction], 24)
        save_jpeg(f"bumpeye{number}.jpg", picture, dither=False)
        save_mask(f"bumpeye{number}_.bmp", alpha)
        save_bmp(f"Arrow{direction.capitalize()}.bmp", arrow(direction))
    save_jpeg("snakebody.jpg", bead(WARM, CELL, ring=False), dither=False)
    save_jpeg("snakebody2nd.jpg", bead(COOL, CELL, ring=True), dither=False)
