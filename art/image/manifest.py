"""Every picture the program loads, as its own tables say: tables.txt is what tools/print_tables prints."""
import pathlib

COLOURS = ("red", "green", "blue", "orange", "purple")
ICONS = ["packaging/tervalis.ico",
         *(f"packaging/icons/tervalis-{size}.png" for size in (16, 24, 32, 48, 64, 128, 256, 512))]
TABLES = pathlib.Path(__file__).with_name("tables.txt")


def rows(kind):
    """The words of each line of that kind, behind it."""
    lines = (line.split() for line in TABLES.read_text().splitlines())
    return [words[1:] for words in lines if words[0] == kind]


def pictures():
    """name -> ((width, height), name of its mask or None), masks included."""
    return {name: ((int(width), int(height)), mask if mask.endswith(".bmp") else None)
            for name, width, height, mask in rows("picture")}


def keyed():
    """Names of the pictures that are drawn without their white pixels."""
    return {name for name, _, _, mask in rows("picture") if mask == "keyed"}


def boxes():
    """name -> set of the boxes (x, y, width, height) on it that the program handles."""
    found = {}
    for name, *box in rows("box"):
        found.setdefault(name, set()).add(tuple(map(int, box)))
    return found


def falling_size(frame):
    """Side of falling frame 1 to 14: the last is the ripe berry itself, earlier ones are nearer the eye."""
    return pictures()[f"mask{frame}.bmp"][0][0]
