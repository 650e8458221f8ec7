"""Pieces of the game drawn at any size for the menu and the help pages."""
import numpy as np
from PIL import Image

from berries import object_picture
from canvas import IMAGES, box_distance, clip, cover, lay, put, rgb, smooth
from snakes import COOL, NEUTRAL, WARM, bead, head


def pond(width, height, x=0, y=0):
    """A piece of the pond's picture."""
    with Image.open(IMAGES / "bg0.jpg") as picture:
        return np.asarray(picture.crop((x, y, x + width, y + height))) / 255.0


def shade(picture, cx, cy, size, strength=0.55):
    """The shadow of a thing of that size on the bed, to its lower right."""
    y, x = np.mgrid[0:picture.shape[0], 0:picture.shape[1]] + 0.5
    d = np.hypot(x - cx - size * 0.42, y - cy - size * 0.42) / (size * 0.52)
    lay(picture, rgb("01100f"), smooth(1.15, 0.35, d) * strength)


def berry(picture, kind, cx, cy, size, shadow=True):
    """A berry, or the stone, by its middle."""
    if shadow:
        shade(picture, cx, cy, size)
    put(picture, *object_picture(kind, size), round(cx - size / 2), round(cy - size / 2))


def add_light(picture, light, x, y):
    x, y = round(x), round(y)
    part = picture[y:y + light.shape[0], x:x + light.shape[1]]
    part[...] = clip(part + light[:part.shape[0], :part.shape[1]])


def snake(picture, points, size, quarters, cool=False, look=NEUTRAL, head_size=None):
    """A snake through the given middles of its beads, head first."""
    light = bead(COOL if cool else WARM, size, cool)
    for cx, cy in points:
        shade(picture, cx, cy, size, 0.42)
    for cx, cy in points[:0:-1]:
        add_light(picture, light, cx - size / 2, cy - size / 2)
    head_size = head_size or size
    sprite, alpha = head(quarters, look, head_size)
    cx, cy = points[0]
    put(picture, sprite, alpha, round(cx - head_size / 2), round(cy - head_size / 2))


def cells(start, steps, size=16):
    """Middles of cells from the head backward: steps are letters of the way from each cell to the next."""
    ways = {"u": (0, -1), "d": (0, 1), "l": (-1, 0), "r": (1, 0)}
    points = [start]
    for step in steps:
        dx, dy = ways[step]
        points.append((points[-1][0] + dx * size, points[-1][1] + dy * size))
    return points


def window(picture, box, source=(80, 120), dim=1.0):
    """Opens a window onto the pond in a page and returns the part of the page to draw in."""
    x, y, w, h = box
    picture[y:y + h, x:x + w] = pond(w, h, *source) * dim
    return picture[y:y + h, x:x + w]


def frame(picture, box):
    """The rim of a window, drawn after what is in it."""
    x, y, w, h = box
    edge = box_distance(picture.shape, x, y, w, h, 5)
    lay(picture, rgb("062c2b"), cover(-edge) * smooth(4, 3, edge))
    lay(picture, rgb("010c0c"), smooth(-5, 0, edge) * cover(edge) * 0.45)
    lay(picture, rgb("8fe0cf"), cover(np.abs(edge) - 0.5) * 0.75)
