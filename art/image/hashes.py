"""The list of the pictures' pixels as rendered: a committed file that differs was changed by hand or by other tools."""
import hashlib
import pathlib

from PIL import Image

LIST = pathlib.Path(__file__).with_name("hashes.txt")


def pixel_hash(path):
    """Of what is seen, whatever the file's bytes: size and decoded pixels."""
    with Image.open(path) as image:
        pixels = image.convert("RGBA")
    return hashlib.sha256(repr(pixels.size).encode() + pixels.tobytes()).hexdigest()[:32]


def recorded():
    """name -> hash."""
    return dict(line.split() for line in LIST.read_text().splitlines()) if LIST.exists() else {}


def record(paths, anew):
    """Puts the pictures just rendered on the list; a list made anew holds no others."""
    entries = ({} if anew else recorded()) | {path.name: pixel_hash(path) for path in paths}
    LIST.write_text("".join(f"{name} {value}\n" for name, value in sorted(entries.items())))
