"""The program's icon: the snake's face over a ring of light, in a file with four sizes."""
import io
import struct

import numpy as np
from PIL import Image

from berries import object_picture
from canvas import ROOT, clip, disc_grid, exact, put, rgb, shrink, smooth, written
from snakes import NEUTRAL, RIGHT_FRONT, WARM, bead, head

ICON = ROOT / "packaging" / "tervalis.ico"
SIZES = (16, 32, 48, 256)
PNG_FROM = 256  # smaller ones are stored as plain bitmaps, which every reader understands


def drawn(size):
    """One size as RGBA. The smallest is the face alone, larger ones add beads and a berry."""
    if size < 32:
        picture, alpha = head(0, NEUTRAL, size)
        return np.concatenate([picture, alpha[..., None]], axis=2)
    picture, alpha = np.zeros((size, size, 3)), np.zeros((size, size))

    def place(sprite, mask, cx, cy):
        x, y = round(cx * size - mask.shape[1] / 2), round(cy * size - mask.shape[0] / 2)
        put(picture, sprite, mask, x, y)
        part = alpha[max(y, 0):y + mask.shape[0], max(x, 0):x + mask.shape[1]]
        part[...] = np.maximum(part, mask[max(-y, 0):, max(-x, 0):][:part.shape[0], :part.shape[1]])

    unit = round(size * 0.27)
    u, v = disc_grid(unit, 4)
    disc = shrink(smooth(1.0, 0.9, np.hypot(u, v)), 4)
    light = clip(bead(WARM, unit, False) + rgb("2a4a30"))
    for cx, cy in ((0.66, 0.86), (0.86, 0.74), (0.84, 0.50)):
        place(light, disc, cx, cy)
    place(*object_picture("red", unit), 0.80, 0.15)
    face = round(size * 0.70)
    place(*head(0.35, RIGHT_FRONT, face), 0.37, 0.54)
    return np.concatenate([picture, alpha[..., None]], axis=2)


def encoded(size):
    """One image as it stands in the file: a PNG, or a bitmap without its file header."""
    image = Image.fromarray(exact(drawn(size)), "RGBA")
    stream = io.BytesIO()
    if size >= PNG_FROM:
        image.save(stream, "PNG", optimize=True)
        return stream.getvalue()
    header = struct.pack("<IiiHHIIiiII", 40, size, size * 2, 1, 32, 0, 0, 0, 0, 0, 0)
    pixels = np.asarray(image)[::-1, :, [2, 1, 0, 3]].tobytes()
    mask = bytes(((size + 31) // 32 * 4) * size)  # unused beside an alpha channel, but must be there
    return header + pixels + mask


def render():
    images = [encoded(size) for size in SIZES]
    offset = 6 + 16 * len(images)
    entries = b""
    for size, data in zip(SIZES, images):
        entries += struct.pack("<BBBBHHII", size % 256, size % 256, 0, 0, 1, 32, len(data), offset)
        offset += len(data)
    ICON.parent.mkdir(exist_ok=True)
    ICON.write_bytes(struct.pack("<HHH", 0, 1, len(images)) + entries + b"".join(images))
    written.append(ICON)
    ICON.with_suffix(".png").write_bytes(images[-1])  # the largest, for desktops that take no icon file
