"""The program's icon in all its sizes, from the one drawing packaging/tervalis.svg."""
import io
import re
import struct
import subprocess

from PIL import Image

from canvas import ROOT, written

DRAWING = ROOT / "packaging" / "tervalis.svg"
SIZES = (16, 24, 32, 48, 64, 128, 256, 512)
WINDOWS_SIZES = (16, 24, 32, 48, 256)
PNG_FROM = 256  # smaller ones are stored as plain bitmaps, which every reader understands
FACE_ALONE = 24  # up to this size there is room for nothing else
FACE_BOX = "8 96 364 364"


def drawn(size):
    """One size, as the bytes of a PNG."""
    drawing = DRAWING.read_text()
    if size <= FACE_ALONE:
        drawing = re.sub(r'<g id="surroundings">.*?</g>', "", drawing, flags=re.DOTALL)
        drawing = re.sub(r'viewBox="[^"]*"', f'viewBox="{FACE_BOX}"', drawing)
    picture = subprocess.run(["rsvg-convert", "-w", str(size)], input=drawing.encode(), capture_output=True, check=True)
    stream = io.BytesIO()
    Image.open(io.BytesIO(picture.stdout)).convert("RGBA").save(stream, "PNG", optimize=True)
    return stream.getvalue()


def as_bitmap(size, png):
    """As a bitmap without its file header."""
    header = struct.pack("<IiiHHIIiiII", 40, size, size * 2, 1, 32, 0, 0, 0, 0, 0, 0)
    with Image.open(io.BytesIO(png)) as image:
        pixels = image.transpose(Image.Transpose.FLIP_TOP_BOTTOM).tobytes("raw", "BGRA")
    mask = bytes(((size + 31) // 32 * 4) * size)  # unused beside an alpha channel, but must be there
    return header + pixels + mask


def windows_file(images):
    images = {size: images[size] if size >= PNG_FROM else as_bitmap(size, images[size]) for size in WINDOWS_SIZES}
    offset = 6 + 16 * len(images)
    entries = b""
    for size, data in images.items():
        entries += struct.pack("<BBBBHHII", size % 256, size % 256, 0, 0, 1, 32, len(data), offset)
        offset += len(data)
    return struct.pack("<HHH", 0, 1, len(images)) + entries + b"".join(images.values())


def render():
    images = {size: drawn(size) for size in SIZES}
    files = {f"icons/tervalis-{size}.png": data for size, data in images.items()}
    for name, data in (files | {"tervalis.ico": windows_file(images)}).items():
        path = ROOT / "packaging" / name
        path.parent.mkdir(exist_ok=True)
        path.write_bytes(data)
        written.append(path)
