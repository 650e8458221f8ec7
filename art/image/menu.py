"""The main menu, the options page and the ranking page, with the pictures of their lit buttons."""
import numpy as np

from canvas import blur, box_distance, clip, cover, lay, mix, rgb, save_jpeg, smooth, text_alpha, write
from glass import DEEP, GOLD, RIM, SOFT, TEXT, button, heading, pane, rule, well
from icons import triangle
from layout import (HOME_PAGE, KEY_FIELD, KEY_FIELDS, MENU_BUTTONS, OPTIONS_BUTTONS, OPTIONS_SIZE,
                    RANKING_OK, RANKING_ROWS, RANKING_SIZE, TOGGLES)
from pond import trace_bed, under_water
from scenes import berry, snake

MENU_SIZE = (640, 480)
MIDDLE = (319, 278)


def title(picture, text, cx, cy, size):
    """Large letters like wet enamel: lit from above, rimmed, with a glow on the water behind them."""
    alpha = text_alpha(picture.shape, cx, cy, text, size, "Black", "ms", spacing=3)
    lay(picture, rgb("01100f"), clip(np.roll(blur(alpha, 5), (6, 5), (0, 1)) * 1.2) * 0.8)
    lay(picture, rgb("d8fff0"), clip(blur(alpha, 9) * 0.9) * 0.35)
    outline = clip(blur(alpha, 1.3) * 3.2)
    lay(picture, rgb("02302e"), outline)
    rows = np.mgrid[0:picture.shape[0], 0:picture.shape[1]][0]
    fall = clip((rows - (cy - size * 0.74)) / (size * 0.78))
    face = mix(mix(rgb("fffbe0"), rgb("ffdc6a"), smooth(0, 0.5, fall)), rgb("e07c12"), smooth(0.45, 1.0, fall))
    gy, gx = np.gradient(blur(alpha, 1.6))
    face = clip(face + ((gy + gx * 0.7) * 1.5)[..., None])
    face = mix(face, rgb("ffffff"), 0.28 * smooth(0.53, 0.50, fall) * smooth(0.0, 0.3, fall))
    lay(picture, face, alpha)


def ring(start, beads, step, radius_x, radius_y):
    """Middles of beads on an ellipse around the menu's middle, degrees clockwise from the right."""
    angles = np.radians(start - step * np.arange(beads))
    return [(MIDDLE[0] + radius_x * np.cos(t), MIDDLE[1] + radius_y * np.sin(t)) for t in angles]


def menu_ground():
    width, height = MENU_SIZE
    picture = under_water(trace_bed(width, height, 11), 17, calm=0.55)
    y, x = np.mgrid[0:height, 0:width]
    far = np.hypot((x - MIDDLE[0]) / 330.0, (y - MIDDLE[1]) / 250.0)
    picture = picture * (1.04 - 0.34 * smooth(0.35, 1.25, far))[..., None]
    for start, cool in ((-12, False), (168, True)):
        points = ring(start, 11, 13.6, 104, 82)
        snake(picture, points, 25, (start + 180) / 90.0, cool, head_size=40)
    for place, kind in enumerate(("red", "orange", "blue", "green", "purple")):
        t = np.radians(place * 72 - 90)
        berry(picture, kind, MIDDLE[0] + 46 * np.cos(t), MIDDLE[1] + 40 * np.sin(t), 30)
    berry(picture, "golden", *MIDDLE, 32)
    title(picture, "Tervalis", width / 2, 92, 92)
    write(picture, width / 2, 124, "Two snakes of light on a quiet pond", 16, TEXT, "Bold", "mm", 0.9)
    return picture


def home_page(picture, hot):
    label, (x, y, width, height) = HOME_PAGE
    edge = box_distance(picture.shape, x, y, width, height, 8)
    lay(picture, rgb("7a4a08") if hot else DEEP, cover(edge) * 0.62)
    lay(picture, GOLD if hot else RIM, cover(np.abs(edge + 1) - 0.5) * 0.6)
    write(picture, x + width / 2, y + height / 2, label, 13, GOLD if hot else SOFT, "Bold", "mm", 0.8)


def cut(picture, box):
    x, y, width, height = box
    return picture[y:y + height, x:x + width]


def main_menu():
    """The menu at rest and with every button lit; the hover pictures are cut from the second."""
    rest = menu_ground()
    lit = rest.copy()
    for picture, hot in ((rest, False), (lit, True)):
        home_page(picture, hot)
        for label, box in MENU_BUTTONS:
            button(picture, box, label, 19, hot, radius=17)
    save_jpeg("MainMenu.jpg", rest)
    save_jpeg("MainMenuHomepage.jpg", cut(lit, HOME_PAGE[1]))
    save_jpeg("MainMenuItems.jpg", np.concatenate([cut(lit, box) for _, box in MENU_BUTTONS], axis=1))


def toggle(picture, label, box, checked):
    """One choice of two: set into the glass at rest, lit when it holds."""
    x, y, width, height = box
    if checked:
        button(picture, box, label, 12, hot=True, radius=6)
        return
    well(picture, (x + 1, y + 1, width - 2, height - 3), 6, 0.45)
    write(picture, x + width / 2, y + height / 2, label, 12, SOFT, "Bold", "mm")


def key_field(picture, way, x, y):
    """A key: its top is the field, wide enough for a word and so dark that even a red one reads; its direction below."""
    skirt = box_distance(picture.shape, x - 2, y - 2, KEY_FIELD + 4, KEY_FIELD + 5, 6)
    top = box_distance(picture.shape, x, y, KEY_FIELD, KEY_FIELD, 4)
    rows = np.mgrid[0:picture.shape[0], 0:picture.shape[1]][0]
    down = clip((rows - y) / KEY_FIELD)
    lay(picture, mix(rgb("2f7f78"), rgb("0c3d3b"), down), cover(skirt))
    lay(picture, RIM, cover(np.abs(skirt + 0.5) - 0.5) * 0.8)
    lay(picture, mix(rgb("020e0e"), rgb("041817"), down), cover(top))
    triangle(picture, x + KEY_FIELD / 2, y + KEY_FIELD - 4, 2.7, way, GOLD)


def options():
    picture = pane(*OPTIONS_SIZE, seed=2)
    for caption, (_, (_, y, _, height)) in (("Display", TOGGLES[0]), ("Sound", TOGGLES[2])):
        write(picture, 80, y + height / 2, caption, 14, GOLD, "Bold", "rm")
    rule(picture, 14, 67, 292)
    for player, fields in KEY_FIELDS:
        _, x, y = fields[0]
        write(picture, x - 7, y + 14, player, 13, GOLD, "Bold", "rm")
        for field in fields:
            key_field(picture, *field)
    write(picture, 160, 184, "Press a key for each direction in turn", 11, SOFT, "Bold", "mm")
    for label, box in OPTIONS_BUTTONS:
        button(picture, box, label, 11)
    lit = picture.copy()
    for label, box in TOGGLES:
        toggle(picture, label, box, False)
        toggle(lit, label, box, True)
    save_jpeg("Options.jpg", picture)
    save_jpeg("OptionsItems.jpg", np.concatenate([cut(lit, box) for _, box in TOGGLES], axis=1))


def ranking():
    width, height = RANKING_SIZE
    picture = pane(width, height, seed=5)
    heading(picture, width / 2, 17, "Ranking", 20)
    for caption, x, anchor in (("Place", 46, "mm"), ("Name", RANKING_ROWS[0][0] + 10, "mm"),
                               ("Score", RANKING_ROWS[0][1] + 10, "mm")):
        write(picture, x, 37, caption, 12, SOFT, "Bold", anchor)
    medals = (rgb("ffd84a"), rgb("dfe8ea"), rgb("e09a58"))
    for place, (name_x, score_x, y) in enumerate(RANKING_ROWS):
        well(picture, (28, y - 1, 36, 18), 9, 0.45)
        well(picture, (name_x - 68, y - 1, 156, 18), 6, 0.45)
        well(picture, (score_x - 18, y - 1, 56, 18), 6, 0.45)
        colour = medals[place] if place < 3 else TEXT
        write(picture, 46, y + 8, str(place + 1), 13, colour, "Black", "mm")
    label, box = RANKING_OK
    button(picture, box, label, 11)
    save_jpeg("Ranking.jpg", picture)


def render():
    main_menu()
    options()
    ranking()
