"""Small signs used on the panels and pages: hearts, key caps, triangles."""
import numpy as np
from scipy import ndimage

from canvas import box_distance, clip, cover, lay, mix, polygon, rgb, shrink, smooth, write


def heart(width, height=None):
    """A glossy heart with its alpha."""
    height = height or width
    fine = 12
    y, x = np.mgrid[0:height * fine, 0:width * fine] + 0.5
    u, v = (x / (width * fine) * 2 - 1) * 1.22, (1 - y / (height * fine) * 2) * 1.18 + 0.12
    field = (u * u + v * v - 1) ** 3 - u * u * v ** 3
    alpha = smooth(0.02, -0.02, field)
    depth = ndimage.distance_transform_edt(alpha > 0.5) / (fine * height) * 4
    colour = mix(rgb("8a0014"), rgb("ff3a4e"), smooth(0.0, 0.55, depth))
    colour = mix(colour, rgb("ffb0a0"), 0.5 * smooth(0.2, -0.9, v) * smooth(0.1, 0.6, depth))
    colour = mix(colour, rgb("ffffff"), 0.9 * smooth(0.26, 0.12, np.hypot(u + 0.52, (v - 0.50) * 1.2)))
    return shrink(colour, fine), shrink(alpha, fine)


def key_cap(picture, x, y, width, height, label="", size=12, tint="e8f4ee"):
    """A key of a keyboard, seen from above: a bright top on a dark skirt."""
    skirt = box_distance(picture.shape, x, y, width, height, 4)
    top = box_distance(picture.shape, x + 2, y + 1, width - 4, height - 5, 3)
    rows = np.mgrid[0:picture.shape[0], 0:picture.shape[1]][0]
    lay(picture, rgb("02100f"), 0.5 * smooth(3.5, -1, box_distance(picture.shape, x, y + 2, width, height, 4)))
    lay(picture, mix(rgb("7d9a94"), rgb("4c6862"), clip((rows - y) / height)), cover(skirt))
    lay(picture, mix(rgb("ffffff"), rgb(tint), clip((rows - y) / height)), cover(top))
    if label:
        write(picture, x + width / 2, y + height / 2 - 1, label, size, rgb("0c302e"), "Bold", "mm", shadow=0)


def triangle(picture, cx, cy, size, direction, colour, alpha=1.0):
    """A small solid triangle pointing up, down, left or right."""
    points = np.array([(0, -1), (0.95, 0.75), (-0.95, 0.75)]) * size
    turned = {"up": points, "down": -points, "right": np.stack([-points[:, 1], points[:, 0]], axis=1),
              "left": np.stack([points[:, 1], points[:, 0]], axis=1)}[direction]
    lay(picture, colour, polygon(picture.shape, turned + np.array([cx, cy])) * alpha)
