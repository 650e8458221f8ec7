"""Drawing on arrays: pictures are float arrays of height x width x 3, 0..1, sRGB; alphas height x width.

Everything here is plain arithmetic with fixed seeds, so a picture comes out the same on every run.
"""
import pathlib

import numpy as np
from PIL import Image, ImageDraw, ImageFont
from scipy import ndimage

ROOT = pathlib.Path(__file__).resolve().parents[2]
IMAGES = ROOT / "assets" / "image"
FONTS = pathlib.Path("/usr/share/fonts/truetype/lato")
KEY = 1.0  # pure white is transparent in colour-keyed pictures
QUALITY = 96
CONTRAST = 4.5  # of letters with what lies behind them, at least


# ---- numbers -------------------------------------------------------------------------------------

def clip(v, low=0.0, high=1.0):
    return np.clip(v, low, high)


def smooth(low, high, v):
    """0 at low, 1 at high, with soft ends; low may lie above high."""
    t = clip((v - low) / (high - low))
    return t * t * (3 - 2 * t)


def rgb(text):
    """A colour from its six hexadecimal digits."""
    return np.array([int(text[i:i + 2], 16) for i in (0, 2, 4)]) / 255.0


def mix(a, b, t):
    """a where t is 0, b where t is 1; t may be an array over the pixels."""
    t = np.asarray(t, float)
    if t.ndim == 2:
        t = t[..., None]
    return np.asarray(a) * (1 - t) + np.asarray(b) * t


def ramp(stops, t):
    """Colours from a table of (position, colour), straight lines between."""
    at = [s[0] for s in stops]
    return np.stack([np.interp(t, at, [s[1][c] for s in stops]) for c in range(3)], axis=-1)


def noise(height, width, scale, seed, octaves=4):
    """Smooth noise, 0..1, its largest features about `scale` pixels."""
    dice = np.random.RandomState(seed)
    total, weight, sum_weight = np.zeros((height, width)), 1.0, 0.0
    for _ in range(octaves):
        rows, cols = int(height / scale) + 4, int(width / scale) + 4
        grid = dice.rand(rows, cols)
        y, x = np.mgrid[0:height, 0:width] / scale + 1.0
        total += weight * ndimage.map_coordinates(grid, [y, x], order=3, mode="nearest")
        sum_weight += weight
        weight, scale = weight * 0.5, max(scale * 0.5, 1.0)
    return clip(total / sum_weight)


def blur(picture, radius):
    sigma = (radius, radius, 0) if picture.ndim == 3 else radius
    return ndimage.gaussian_filter(picture, sigma, mode="nearest")


def shrink(picture, times):
    """The average of every block of times x times pixels."""
    h, w = picture.shape[0] // times, picture.shape[1] // times
    return picture.reshape(h, times, w, times, *picture.shape[2:]).mean(axis=(1, 3))


def disc_grid(size, fine):
    """Sample points of a size x size picture, each axis -1..1 from edge to edge, `fine` samples a pixel."""
    axis = (np.arange(size * fine) + 0.5) / (size * fine) * 2 - 1
    return np.meshgrid(axis, axis)


# ---- shapes --------------------------------------------------------------------------------------

def box_distance(shape, x, y, width, height, radius):
    """Distance of every pixel centre from a rounded rectangle's edge, negative inside."""
    py, px = np.mgrid[0:shape[0], 0:shape[1]] + 0.5
    qx = np.abs(px - (x + width / 2)) - (width / 2 - radius)
    qy = np.abs(py - (y + height / 2)) - (height / 2 - radius)
    outside = np.hypot(np.maximum(qx, 0), np.maximum(qy, 0))
    return outside + np.minimum(np.maximum(qx, qy), 0) - radius


def cover(distance):
    """Share of a pixel inside the edge."""
    return clip(0.5 - distance)


def polygon(shape, points, fine=8):
    """Coverage of a polygon given in pixels."""
    big = Image.new("L", (shape[1] * fine, shape[0] * fine))
    ImageDraw.Draw(big).polygon([(px * fine, py * fine) for px, py in points], fill=255)
    return shrink(np.asarray(big) / 255.0, fine)


def lay(picture, colour, alpha):
    """Lays a colour or a picture over another through an alpha, in place."""
    picture[...] = mix(picture, colour, alpha)


def put(picture, sprite, alpha, x, y, strength=1.0):
    """Lays a small picture over a large one with its top-left at (x, y), cut at the edges, in place."""
    x, y = int(x), int(y)
    top, left = max(0, -y), max(0, -x)
    h = min(alpha.shape[0], picture.shape[0] - y)
    w = min(alpha.shape[1], picture.shape[1] - x)
    if h > top and w > left:
        lay(picture[y + top:y + h, x + left:x + w], sprite[top:h, left:w], alpha[top:h, left:w] * strength)


# ---- letters -------------------------------------------------------------------------------------

def font(size, weight="Bold"):
    return ImageFont.truetype(str(FONTS / f"Lato-{weight}.ttf"), size)


def text_alpha(shape, x, y, text, size, weight="Bold", anchor="la", spacing=0):
    """Coverage of a line of text; anchors as in Pillow (first letter l m r, second a m s)."""
    face = font(size, weight)
    page = Image.new("L", (shape[1], shape[0]))
    pen = ImageDraw.Draw(page)
    if spacing:
        wide = sum(face.getlength(c) + spacing for c in text) - spacing
        x -= {"l": 0, "m": wide / 2, "r": wide}[anchor[0]]
        for c in text:
            pen.text((round(x), y), c, 255, face, "l" + anchor[1])
            x += face.getlength(c) + spacing
    else:
        pen.text((x, y), text, 255, face, anchor)
    return np.asarray(page) / 255.0


def luminance(colour):
    """Relative luminance as the contrast of text is reckoned, sRGB in."""
    colour = np.asarray(colour)
    linear = np.where(colour <= 0.04045, colour / 12.92, ((colour + 0.055) / 1.055) ** 2.4)
    return linear @ np.array([0.2126, 0.7152, 0.0722])


def contrast(picture, alpha, colour):
    """Contrast of letters with the ground that shows between and close around them; its worst quarter counts."""
    near = (ndimage.maximum_filter(alpha, 3) > 0.3) & (alpha < 0.1)
    ground, ink = luminance(picture[near]), luminance(colour)
    worst = np.percentile(ground, 25 if ink < ground.mean() else 75)
    return (max(worst, ink) + 0.05) / (min(worst, ink) + 0.05)


def write(picture, x, y, text, size, colour, weight="Bold", anchor="la", shadow=0.6, spacing=0):
    """Writes text with a soft dark edge that keeps it readable on any ground. Refuses too low a contrast."""
    alpha = text_alpha(picture.shape, x, y, text, size, weight, anchor, spacing)
    if shadow:
        dark = clip(np.roll(blur(alpha, 0.8), 1, axis=0) * 1.5) * shadow
        lay(picture, rgb("02100f"), dark)
    reached = contrast(picture, alpha, colour)
    if reached < CONTRAST:
        raise ValueError(f'"{text}" at {x}, {y} has a contrast of only {reached:.1f} to 1')
    lay(picture, colour, alpha)


# ---- files ---------------------------------------------------------------------------------------

written = []  # paths of the pictures saved in this run


def quantise(picture):
    """Colours as RGB565 keeps them, dithered so that soft gradients do not band.

    Each channel ends in the middle of its step, so that small JPEG errors do not change the step.
    """
    y, x = np.mgrid[0:picture.shape[0], 0:picture.shape[1]]
    grain = np.mod(52.9829189 * np.mod(0.06711056 * x + 0.00583715 * y, 1), 1)
    out = np.empty(picture.shape, np.uint8)
    for c, step in enumerate((8, 4, 8)):
        level = np.floor(clip(picture[..., c]) * (255 / step) + grain * 0.98)
        level = np.minimum(level, 256 // step - 1)
        out[..., c] = np.where(level == 0, 0, level * step + step // 2)
    return out


def exact(picture):
    return np.uint8(np.rint(clip(picture) * 255))


def save_jpeg(name, picture, dither=True):
    image = Image.fromarray(quantise(picture) if dither else exact(picture))
    image.save(IMAGES / name, quality=QUALITY, subsampling=0, optimize=True)
    written.append(IMAGES / name)


def save_bmp(name, picture):
    Image.fromarray(exact(picture)).save(IMAGES / name)
    written.append(IMAGES / name)


def save_mask(name, alpha):
    """A mask: pure white where opaque. Nearly opaque counts as opaque, so that rims stay solid."""
    save_bmp(name, np.repeat(np.where(alpha > 0.97, 1.0, alpha)[..., None], 3, axis=2))


def save_keyed(name, picture, alpha, ground):
    """A colour-keyed sprite: soft edges are blended into the ground it will lie on."""
    solid = mix(ground, picture, alpha) * 0.97
    solid[alpha < 0.35] = KEY
    save_bmp(name, solid)
