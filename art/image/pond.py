"""The pond: the ray-traced bed of pond.pov seen through clear water with sunlight gathered on it."""
import pathlib
import subprocess
import tempfile

import numpy as np
from PIL import Image
from scipy import ndimage

from canvas import blur, clip, noise, save_jpeg, shrink, smooth

HERE = pathlib.Path(__file__).parent
FINE = 2  # the bed is traced at twice the size
ABSORBED = np.array([1.10, 0.26, 0.38])  # light lost per unit of depth
SCATTERED = np.array([0.002, 0.044, 0.046])  # colour of deep water, linear light


def trace_bed(width, height, seed):
    """The bed in linear light, FINE samples a pixel each way."""
    with tempfile.NamedTemporaryFile(suffix=".png") as out:
        subprocess.run(
            ["povray", "-D", "-GA", f"+I{HERE / 'pond.pov'}", f"+O{out.name}", "+FN8", "+A0.2", "+AM1", "-J",
             f"+W{width * FINE}", f"+H{height * FINE}",
             f"Declare=Seed={seed}", f"Declare=Wide={width}", f"Declare=High={height}"],
            check=True, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        with Image.open(out.name) as picture:
            return (np.asarray(picture.convert("RGB")) / 255.0) ** 2.2


def waves(width, height, seed):
    """Height of the calm surface: a few dozen long low waves from all sides."""
    dice = np.random.RandomState(seed)
    y, x = np.mgrid[0:height, 0:width].astype(float)
    surface = np.zeros((height, width))
    for _ in range(42):
        length, angle, phase = dice.uniform(22, 64), dice.uniform(0, 6.283), dice.uniform(0, 6.283)
        k = 6.283 / length
        surface += length ** 1.3 * np.sin(k * (x * np.cos(angle) + y * np.sin(angle)) + phase)
    return surface / np.abs(surface).max()


def caustics(surface, reach):
    """Where the surface sends the light: each sample carries its share along the slope."""
    height, width = surface.shape
    sy, sx = np.gradient(surface)
    y, x = np.mgrid[0:height, 0:width].astype(float)
    light = np.zeros((height, width))
    px, py = x - sx * reach, y - sy * reach
    ix, iy = np.floor(px).astype(int), np.floor(py).astype(int)
    fx, fy = px - ix, py - iy
    for dy, dx, share in ((0, 0, (1 - fx) * (1 - fy)), (0, 1, fx * (1 - fy)), (1, 0, (1 - fx) * fy), (1, 1, fx * fy)):
        ok = (ix + dx >= 0) & (ix + dx < width) & (iy + dy >= 0) & (iy + dy < height)
        np.add.at(light, (iy[ok] + dy, ix[ok] + dx), share[ok])
    return light


def under_water(bed, seed, calm):
    """The bed as seen through the water, sRGB, at the picture's own size; `calm` 0..1 lowers its contrast."""
    height, width = bed.shape[0], bed.shape[1]
    margin = 80  # light also comes from outside the picture
    surface = waves(width // FINE + 2 * margin, height // FINE + 2 * margin, seed)
    light = blur(caustics(ndimage.zoom(surface, FINE, order=3), 1500), 2.2)
    cut = margin * FINE
    light = light[cut:cut + height, cut:cut + width]
    sy, sx = np.gradient(ndimage.zoom(surface, FINE, order=3)[cut:cut + height, cut:cut + width])
    y, x = np.mgrid[0:height, 0:width].astype(float)
    bent = np.stack([ndimage.map_coordinates(bed[..., c], [y + sy * 110, x + sx * 110], order=1, mode="reflect")
                     for c in range(3)], axis=-1)

    ny, nx = (y / height - 0.5) * 2, (x / width - 0.5) * 2
    middle = 1 - smooth(0.25, 1.15, np.hypot(nx, ny))
    depth = 0.95 + 0.75 * middle + 0.7 * (noise(height, width, 190 * FINE, seed + 1, 3) - 0.5)
    soft = blur(bent, 3.0 * FINE)
    bent = bent + (soft - bent) * (calm * (0.35 + 0.5 * middle))[..., None]
    bent *= (0.66 + 0.34 * clip(light, 0, 2.4))[..., None]
    passed = np.exp(-depth[..., None] * ABSORBED)
    seen = bent * passed * 0.66 + SCATTERED * (1 - np.exp(-0.8 * depth))[..., None]
    sheen = smooth(1.5, -1.2, nx + ny * 1.1) * 0.035  # sky mirrored toward the upper left
    seen = seen + sheen[..., None] * np.array([0.55, 0.85, 0.9])
    seen *= (1 - 0.30 * smooth(0.75, 1.5, np.hypot(nx, ny)))[..., None]
    seen = shrink(seen, FINE)
    grey = seen.mean(axis=2, keepdims=True)
    return clip(grey + (seen - grey) * 1.22) ** (1 / 2.2)


def render():
    save_jpeg("bg0.jpg", under_water(trace_bed(480, 480, 7), 3, calm=0.62))
