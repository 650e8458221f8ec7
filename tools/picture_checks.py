"""What can be wrong with the program's pictures, as lists of texts. Used by contact_sheet."""
import pathlib
import re
import struct
import sys

from PIL import Image

ROOT = pathlib.Path(__file__).resolve().parents[1]
sys.path.insert(0, str(ROOT / "art" / "image"))
import hashes  # noqa: E402
import manifest  # noqa: E402

BITMAP_BITS = (8, 16, 24)
CODE_NAME = re.compile(r'"Dat\\\\Image/([^"]+\.(?:jpg|bmp))"')
NUMBER = re.compile(r"%(?:0(\d))?d")


def bitmap_fault(data):
    """Why a BMP file is not one the program reads, or None."""
    if data[:2] != b"BM" or len(data) < 54:
        return "not a bitmap"
    height, _, bits, compression = struct.unpack_from("<iHHI", data, 22)
    if height < 0:
        return "rows stored from the top"
    if bits not in BITMAP_BITS:
        return f"{bits} bits a pixel"
    return "compressed" if compression not in ((0, 3) if bits == 16 else (0,)) else None


def jpeg_fault(image):
    if image.format != "JPEG":
        return "not a JPEG file"
    if image.info.get("progressive"):
        return "progressive"
    return None if image.mode in ("RGB", "L") else f"colour mode {image.mode}"


def opened(path, size):
    """The picture, or None, and what is wrong with it."""
    try:
        with Image.open(path) as image:
            fault = bitmap_fault(path.read_bytes()) if path.suffix == ".bmp" else jpeg_fault(image)
            picture = image.convert("RGB")
    except FileNotFoundError:
        return None, "missing"
    except OSError as error:
        return None, f"unreadable: {error}"
    if picture.size != size:
        fault = f"{picture.width} x {picture.height}, wanted {size[0]} x {size[1]}"
    return picture, fault


def gather(folder):
    """name -> (picture or None, fault or None) of every picture in the manifest."""
    return {name: opened(folder / name, size) for name, (size, _) in manifest.pictures().items()}


def loaded_by_code():
    """What the program's sources load: file names, or patterns with a number in them, each with its source file."""
    names = {}
    for source in sorted((ROOT / "src").rglob("*.cpp")):
        for name in CODE_NAME.findall(source.read_text()):
            names.setdefault(name, source.relative_to(ROOT))
    return names


def matches(pattern, names):
    """Those of the names that the pattern may stand for."""
    parts = NUMBER.split(re.sub(r"\.", r"\\.", pattern))  # every second part is the number's width, or None
    form = "".join(part if place % 2 == 0 else rf"\d{{{part}}}" if part else r"[1-9]\d*"
                   for place, part in enumerate(parts))
    return [name for name in names if re.fullmatch(form, name)]


def code_faults(present):
    """Differences between what the sources load, the manifest and the files that are there."""
    wanted, sources = manifest.pictures(), loaded_by_code()
    loaded = {name for pattern in sources for name in matches(pattern, set(wanted) | present)}
    faults = [f"{pattern}: loaded by {source}, but there is none" for pattern, source in sources.items()
              if not matches(pattern, present)]
    faults += [f"{name}: no code loads it" for name in sorted((present | set(wanted)) - loaded)]
    return faults + [f"{name}: not in the manifest" for name in sorted((present & loaded) - set(wanted))]


def mask_faults(found, present):
    wanted = manifest.pictures()
    faults = [f"{mask}: a mask without its picture {name}" for name, (_, mask) in wanted.items()
              if mask and found[mask][0] and not found[name][0]]
    return faults + [f"{name}: a mask without its picture" for name in sorted(present)
                     if name.endswith("_.bmp") and name not in wanted]


def pixel_faults(folder, present):
    """Pictures other than art/render made them."""
    paths = {name: folder / name for name in present} | {pathlib.Path(manifest.ICON).name: ROOT / manifest.ICON}
    recorded, faults = hashes.recorded(), []
    for name, path in sorted(paths.items()):
        if not path.exists():
            faults.append(f"{name}: missing")
        elif name not in recorded:
            faults.append(f"{name}: not in {hashes.LIST.name}")
        elif readable(path) and hashes.pixel_hash(path) != recorded[name]:
            faults.append(f"{name}: other pixels than rendered")
    return faults + [f"{name}: in {hashes.LIST.name}, but no picture" for name in sorted(set(recorded) - set(paths))]


def readable(path):
    """Unreadable ones are reported already."""
    try:
        with Image.open(path) as image:
            image.load()
    except OSError:
        return False
    return True


def all_faults(folder, found):
    present = {path.name for path in folder.iterdir()}
    faults = [f"{name}: {fault}" for name, (_, fault) in found.items() if fault]
    return faults + code_faults(present) + mask_faults(found, present) + pixel_faults(folder, present)
