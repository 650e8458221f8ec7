"""The four help pages: steering, berries, stones and gold, levels."""
import numpy as np

from canvas import box_distance, clip, cover, lay, mix, put, rgb, save_jpeg, smooth, write
from effects import flight, moon, popup
from glass import GOLD, RIM, SOFT, TEXT, button, pane, rule, well
from icons import heart, key_cap, triangle
from layout import HELP_BACK, HELP_SIZE, HELP_TABS
from panels import progress
from scenes import berry, cells, frame, snake, window
from snakes import COOL, LEFT_FRONT, TURNS, WARM, arrow, bead, bumped_head

TABS = ("Steering", "Berries", "Stones", "Levels")
LINE = 16


def tab(picture, box, label, current):
    """A tab; the page's own is lit and open toward the page."""
    x, y, width, height = box
    edge = box_distance(picture.shape, x + 1, y + 1, width - 2, height + 8, 7)
    rows = np.mgrid[0:picture.shape[0], 0:picture.shape[1]][0]
    inside = cover(edge) * (rows < y + height)
    down = clip((rows - y) / height)
    top, bottom = (rgb("217f74"), rgb("135653")) if current else (rgb("0c3d3b"), rgb("041d1c"))
    lay(picture, mix(top, bottom, down), inside * 0.92)
    lay(picture, RIM, cover(np.abs(edge + 0.5) - 0.5) * (rows < y + height) * (0.95 if current else 0.45))
    write(picture, x + width / 2, y + height / 2 + 1, label, 15, GOLD if current else SOFT, "Bold", "mm")


def page(number):
    picture = pane(*HELP_SIZE, seed=6)
    for place, (box, label) in enumerate(zip(HELP_TABS, TABS)):
        tab(picture, box, label, place == number)
    bottom = HELP_TABS[0][1] + HELP_TABS[0][3]
    x, _, width, _ = HELP_TABS[number]
    line = np.ones((1, HELP_SIZE[0] - 6))
    line[0, x - 2:x + width - 5] = 0
    lay(picture[bottom:bottom + 1, 3:-3], RIM, line * 0.7)
    button(picture, HELP_BACK[1], HELP_BACK[0], 11)
    return picture


def lines(picture, x, y, texts, size=13, colour=TEXT, anchor="lm"):
    for number, text in enumerate(texts):
        write(picture, x, y + number * LINE, text, size, colour, "Bold", anchor)


def section(picture, x, y, text):
    write(picture, x, y, text, 16, GOLD, "Black", "lm", 0.9)


def arrow_glyph(picture, cx, cy, way):
    """A slim arrow printed on a key."""
    ink = rgb("0c302e")
    dx, dy = {"up": (0, -1), "down": (0, 1), "left": (-1, 0), "right": (1, 0)}[way]
    triangle(picture, cx + dx * 2, cy + dy * 2, 4, way, ink)
    x0, y0 = cx - dx * 5, cy - dy * 5
    half = 1.0
    left, right = sorted((x0, cx))
    top, bottom = sorted((y0, cy))
    box = (left - half * abs(dy), top - half * abs(dx), right - left + 2 * half * abs(dy),
           bottom - top + 2 * half * abs(dx))
    lay(picture, ink, cover(box_distance(picture.shape, *box, 0)))


def steering_keys(picture, x, y, labels=None):
    """Four keys in a cross."""
    for way, dx, dy in (("up", 32, 0), ("left", 0, 32), ("down", 32, 32), ("right", 64, 32)):
        key_cap(picture, x + dx, y + dy, 30, 30, labels[way] if labels else "", 14)
        if not labels:
            arrow_glyph(picture, x + dx + 15, y + dy + 14, way)


def steering():
    picture = page(0)
    section(picture, 22, 56, "Your snake never stops - steer it to the berries")
    for x, name, cool, labels in ((40, "Player 1", False, None),
                                  (180, "Player 2", True, {"up": "W", "left": "A", "down": "S", "right": "D"})):
        light = bead(COOL if cool else WARM, 14, cool)
        picture[73:87, x:x + 14] = clip(picture[73:87, x:x + 14] + light)
        write(picture, x + 20, 80, name, 14, TEXT, "Bold", "lm")
        steering_keys(picture, x, 94, labels)
    write(picture, 92, 172, "Other keys: see Options", 12, SOFT, "Bold", "lm")

    box = (318, 72, 160, 112)
    view = window(picture, box, (180, 190))
    berry(view, "red", 40, 72, 16)
    snake(view, cells((72, 56), "ddrrrruu"), 16, TURNS["up"], look=LEFT_FRONT)
    berry(view, "blue", 120, 24, 16)
    frame(picture, box)

    rule(picture, 20, 194, 460)
    box = (22, 206, 160, 80)
    view = window(picture, box, (100, 240))
    snake(view, cells((24, 40), "ll"), 16, TURNS["right"])
    snake(view, [(152, 40), (152, 40), (136, 40), (120, 40), (104, 40)], 16, TURNS["right"])
    frame(picture, box)
    lines(picture, 22, 300, ("Out on one side,", "in on the other."), 13)

    box = (206, 206, 80, 80)
    view = window(picture, box, (150, 150))
    snake(view, [(40, 40)], 16, TURNS["up"])
    for way, x, y in (("up", 32, 14), ("down", 32, 50), ("left", 14, 32), ("right", 50, 32)):
        sign = arrow(way)
        put(view, sign, (sign.min(axis=2) < 1).astype(float), x, y)
    frame(picture, box)
    lines(picture, 206, 300, ("Arrows blink: turn it,", "then press the key of", "its heading to start."), 13)

    for row, (key, width, text) in enumerate((("Space", 58, "pause"), ("F1", 34, "help"), ("Esc", 38, "quit"))):
        y = 208 + 30 * row
        key_cap(picture, 390 - width, y, width, 26, key, 13)
        write(picture, 402, y + 12, text, 14, TEXT, "Bold", "lm")
    lines(picture, 352, 308, ("or the buttons left", "of the pond"), 12, SOFT)
    return picture


EFFECTS = (
    ("red", "Speed-up", "Twice as fast and 5 more points a berry,", "until you eat a red one again."),
    ("green", "Fade", "The five oldest stones in the pond", "turn back into berries."),
    ("blue", "Rain", "Five more berries fall, and while it rains", "every berry is worth 10 points more."),
    ("orange", "Laser", "A ball of light flies ahead of you and turns", "the first thing it hits into gold."),
    ("purple", "Shrink", "Half of your tail pops off,", "bead by bead."),
)


def berries():
    picture = page(1)
    section(picture, 22, 56, "Every berry: 5 points, and one bead more")
    lines(picture, 22, 78, ("Eat five of one colour in a row and its effect begins:",), 14)
    for row, (kind, name, first, second) in enumerate(EFFECTS):
        y = 94 + 52 * row
        well(picture, (18, y, 464, 47), 8, 0.34)
        for place in range(5):
            berry(picture, kind, 38 + 21 * place, y + 23, 18)
        write(picture, 152, y + 23, name, 16, GOLD, "Black", "lm")
        lines(picture, 236, y + 16, (first, second), 12)
    return picture


def stones():
    picture = page(2)
    box = (22, 50, 140, 88)
    view = window(picture, box, (160, 200))
    beads = cells((126, 68), "u" + "l" * 7 + "u" + "r" * 7 + "u" + "l" * 7)
    for cx, cy in beads[5:]:
        berry(view, "stone", cx, cy, 16)
    snake(view, beads[:5], 16, TURNS["down"])
    frame(picture, box)
    section(picture, 180, 60, "Too long freezes")
    lines(picture, 180, 82, ("At 25 beads the tail freezes: 20 beads become",
                             "stones, and 5 swim on. At 24 your heart beats",
                             "and the length blinks - shrink in time!"))

    rule(picture, 20, 148, 460)
    box = (22, 158, 140, 64)
    view = window(picture, box, (90, 330))
    berry(view, "stone", 96, 32, 16)
    snake(view, cells((80, 32), "lllll"), 16, TURNS["right"])
    put(view, *bumped_head(TURNS["right"], 24), 68, 20)
    frame(picture, box)
    section(picture, 180, 168, "Stones and snakes are hard")
    lines(picture, 180, 190, ("Running into a stone, into yourself or into the", "other snake costs a life."))

    rule(picture, 20, 232, 460)
    box = (22, 242, 140, 100)
    view = window(picture, box, (240, 300))
    snake(view, cells((40, 28), "lll"), 16, TURNS["right"])
    put(view, *flight(1), 56, 13)
    berry(view, "golden", 108, 28, 16)
    for place, kind in enumerate(("stone", "red", "golden")):
        berry(view, kind, (28, 60, 112)[place], 74, 18)
    arrow_sign = arrow("right")
    put(view, arrow_sign, (arrow_sign.min(axis=2) < 1).astype(float), 78, 66)
    frame(picture, box)
    section(picture, 180, 252, "Gold")
    lines(picture, 180, 274, ("A golden berry is worth 35 points, but it breaks",
                              "your streak. Only the laser makes gold, of stones",
                              "and of berries. A laser that hits gold sets off",
                              "a wave that sweeps the water around it clear."))
    return picture


def levels():
    picture = page(3)
    section(picture, 22, 56, "Levels")
    lines(picture, 22, 78, ("Fill the bar up to the target to clear the level:",
                            "500, 1500, 3000, 5000 ... Two players share it.",
                            "The snakes curl up, new berries fall -", "but the stones stay."))
    x = 402
    well(picture, (x, 48, 19, 92), 6, 0.75)
    bar = progress()[313 - 60:]
    picture[79:139, x:x + 19] = bar
    write(picture, x + 30, 55, "Target", 12, GOLD, "Bold", "lm")
    rule(picture, 20, 148, 460)

    section(picture, 22, 164, "Lives")
    for place in range(2):
        put(picture, *heart(21, 18), 90 + 25 * place, 156)
    lines(picture, 22, 186, ("You start with two spare lives, and every", "5000 points bring one more."))
    badge, alpha = popup("+1")
    put(picture, badge, alpha, 414, 176)
    snake(picture, cells((430, 206), "rr"), 16, TURNS["left"])
    rule(picture, 20, 216, 460)

    section(picture, 22, 232, "Scores")
    lines(picture, 22, 254, ("Rain, speed and gold add up to 50 points a berry.",
                             "The ten best one-player games enter the ranking."))
    for place, text in enumerate(("+5", "+10", "+35", "+45")):
        badge, alpha = popup(text)
        put(picture, badge, alpha, 376 + 48 * (place % 2), 236 + 22 * (place // 2))
    rule(picture, 20, 282, 460)

    section(picture, 22, 298, "Night")
    lines(picture, 22, 320, ("After a while dusk falls. Then only the snakes'",
                             "own light and the rising moon show the way."))
    box = (352, 290, 126, 66)
    view = window(picture, box, (60, 60), dim=0.24)
    sprite, alpha = moon(41, 0)
    put(view, sprite, alpha * 0.45, 30, -16)
    y, x = np.mgrid[0:66, 0:126]
    for cx, cy, cool in ((36, 44, False), (92, 44, True)):
        view += (smooth(46, 0, np.hypot(x - cx, y - cy)) ** 1.6)[..., None] * np.array([0.42, 0.40, 0.29])
    view[...] = clip(view)
    snake(view, cells((36, 44), "lll"), 16, TURNS["right"])
    snake(view, cells((92, 44), "rrr"), 16, TURNS["left"], cool=True)
    frame(picture, box)
    return picture


def render():
    for number, make in enumerate((steering, berries, stones, levels), 1):
        save_jpeg(f"Help{number}.jpg", make())
