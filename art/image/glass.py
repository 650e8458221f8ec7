"""The one material of menus and panels: frosted deep-teal glass with a light rim, and what is set into it."""
import functools

import numpy as np
from PIL import Image

from canvas import IMAGES, blur, box_distance, clip, cover, lay, mix, noise, rgb, smooth, write

TEXT, SOFT, GOLD = rgb("f2fff8"), rgb("a9d8cc"), rgb("ffe07a")
RIM, DEEP, PANE = rgb("8fe0cf"), rgb("03201f"), rgb("0b4947")


@functools.lru_cache(maxsize=None)
def frosted_pond():
    """The pond far out of focus: what shows through the glass."""
    with Image.open(IMAGES / "bg0.jpg") as pond:
        return blur(np.asarray(pond) / 255.0, 14)


def pane(width, height, seed=0):
    """A whole panel: glass over the frosted pond, darker downward, with its rim."""
    behind = frosted_pond()
    rows = (np.arange(height) * 480 // max(height, 480)) % 480
    columns = (np.arange(width) * 480 // max(width, 480) + seed * 53) % 480
    picture = behind[np.ix_(rows, np.abs((columns + 480) % 960 - 480) % 480)]
    y = np.mgrid[0:height, 0:width][0] / height
    picture = mix(picture, mix(PANE, DEEP, y), 0.80)
    picture += (noise(height, width, 2, 90 + seed, 1)[..., None] - 0.5) * 0.014
    rim(picture, 0, 0, width, height, 0)
    return clip(picture)


def rim(picture, x, y, width, height, radius):
    """The edge of a pane: a dark outline, then light caught by the bevel, strongest at the upper left."""
    edge = box_distance(picture.shape, x, y, width, height, radius)
    py, px = np.mgrid[0:picture.shape[0], 0:picture.shape[1]]
    toward = clip(1.15 - 0.62 * ((px - x) / width + (py - y) / height))
    lay(picture, rgb("010c0c"), cover(np.abs(edge + 0.5) - 0.5))
    lay(picture, RIM, cover(np.abs(edge + 1.5) - 0.5) * toward * 0.85)
    lay(picture, RIM, smooth(-9, -1.5, edge) * cover(edge + 2) * 0.10 * toward)


def well(picture, box, radius=3, depth=0.62):
    """A sunken field for figures: dark, shaded from above, with a thin light lower edge."""
    x, y, width, height = box
    edge = box_distance(picture.shape, x, y, width, height, radius)
    rows = np.mgrid[0:picture.shape[0], 0:picture.shape[1]][0]
    lay(picture, RIM, cover(np.abs(edge - 0.5) - 0.5) * clip((rows - y) / height) * 0.45)
    lay(picture, rgb("010c0c"), cover(edge) * depth)
    lay(picture, rgb("000404"), cover(edge) * smooth(4, 0, rows - y) * 0.5)


def button(picture, box, label, size=11, hot=False, radius=None):
    """A raised glass pill; hot, it is lit from within."""
    x, y, width, height = box
    radius = min(height / 2, 9) if radius is None else radius
    edge = box_distance(picture.shape, x + 0.5, y + 0.5, width - 1, height - 1, radius)
    rows = np.mgrid[0:picture.shape[0], 0:picture.shape[1]][0]
    down = clip((rows - y) / height)
    top, bottom = (rgb("ffe890"), rgb("e08a18")) if hot else (rgb("1d7c72"), rgb("07403e"))
    lay(picture, mix(top, bottom, down), cover(edge) * 0.94)
    lay(picture, rgb("ffffff"), cover(edge + 1.5) * smooth(0.52, 0.40, down) * (0.30 if hot else 0.10))
    lay(picture, rgb("fff8d8") if hot else RIM, cover(np.abs(edge + 0.5) - 0.5) * 0.9)
    colour = rgb("3a1c00") if hot else TEXT
    write(picture, x + width / 2, y + height / 2, label, size, colour, "Bold", "mm", shadow=0 if hot else 0.7)


def heading(picture, x, y, text, size=18, colour=GOLD, anchor="mm"):
    write(picture, x, y, text, size, colour, "Black", anchor, shadow=0.9)


def rule(picture, x, y, width):
    """A fine line engraved into the glass, fading out to both sides."""
    columns = np.arange(width) / (width - 1.0)
    fade = np.sin(columns * np.pi)[None, :] ** 0.6
    lay(picture[y:y + 1, x:x + width], rgb("010c0c"), fade * 0.6)
    lay(picture[y + 1:y + 2, x:x + width], RIM, fade * 0.35)
