"""What can be wrong with the program's pictures, as lists of texts. Used by contact_sheet."""
import pathlib
import struct
import sys

from PIL import Image

ROOT = pathlib.Path(__file__).resolve().parents[1]
sys.path.insert(0, str(ROOT / "art" / "image"))
import hashes  # noqa: E402
import layout  # noqa: E402
import manifest  # noqa: E402

BITMAP_BITS = (8, 16, 24)


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


def table_faults(present):
    """Differences between the program's tables, the files that are there and what the pages are drawn for."""
    names = [name for name, *_ in manifest.rows("picture")]
    faults = [f"{name}: two sizes or masks in the code's tables" for name in sorted(set(names)) if names.count(name) > 1]
    faults += [f"{name}: no code loads it" for name in sorted(present - set(names))]
    drawn, handled = layout.boxes(), manifest.boxes()
    for name in sorted(drawn | handled):
        faults += [f"{name}: drawn for {box}, where the program has nothing"
                   for box in sorted(drawn.get(name, set()) - handled.get(name, set()))]
        faults += [f"{name}: not drawn for {box}, which the program has"
                   for box in sorted(handled.get(name, set()) - drawn.get(name, set()))]
    return faults


def mask_faults(found, present):
    wanted = manifest.pictures()
    faults = [f"{mask}: a mask without its picture {name}" for name, (_, mask) in wanted.items()
              if mask and found[mask][0] and not found[name][0]]
    return faults + [f"{name}: a mask without its picture" for name in sorted(present)
                     if name.endswith("_.bmp") and name not in wanted]


def pixel_faults(folder, present):
    """Pictures other than art/render made them."""
    icons = {pathlib.Path(icon).name: ROOT / icon for icon in manifest.ICONS}
    paths = {name: folder / name for name in present} | icons
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
    return faults + table_faults(present) + mask_faults(found, present) + pixel_faults(folder, present)
