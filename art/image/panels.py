"""The strip beside the pond and the message panels over it."""
import numpy as np

from berries import CELL, COLOURS, object_picture
from canvas import (box_distance, clip, cover, lay, mix, put, quantise, rgb, save_bmp, save_jpeg, save_keyed, smooth,
                    write)
from glass import GOLD, RIM, SOFT, button, heading, pane, rule, well
from icons import heart
from layout import (CENSUS, CONFIRM_BUTTONS, LENGTH, LEVEL, LIVES, MESSAGE_SIZE, NEXT_LEVEL_FIELDS, NEXT_LEVEL_SIZE,
                    PAUSED_BUTTONS, PLAYER_STEP, PROGRESS, SCORE, STREAK, STREAK_STEP, STRIP_BUTTONS, STRIP_SIZE,
                    TARGET)
from snakes import COOL, WARM, bead, bumped_head

HEART, HEART_STEP, STREAK_ICON = (14, 12), 15, 11
FIGURE_MIDDLE = 6  # of a line of figures, below its top


def berry(picture, kind, x, y, size=CELL):
    sprite, alpha = object_picture(kind, size)
    put(picture, sprite, alpha, x, y)


def player_block(picture, number, drop):
    """Captions and wells of one player's figures; the program draws the figures over the wells."""
    light = bead(COOL if number == 2 else WARM, 12, number == 2)
    y = 46 + drop
    picture[y:y + 12, 11:23] = clip(picture[y:y + 12, 11:23] + light)
    write(picture, 28, 52 + drop, f"Player {number}", 13, GOLD, "Bold", "lm")
    rule(picture, 4, 140 + drop, 112)
    for caption, (x, y) in (("Lives", LIVES), ("Length", LENGTH), ("Streak", STREAK), ("Score", SCORE)):
        middle = y + drop + {"Lives": HEART[1] / 2, "Streak": STREAK_ICON / 2}.get(caption, FIGURE_MIDDLE)
        write(picture, 42, middle, caption, 10, SOFT, "Bold", "rm")
        if caption in ("Length", "Score"):
            well(picture, (x - 3, y + drop - 1, 78, 14), 3, 0.45)
    for step in range(5):
        heart_socket(picture, LIVES[0] + HEART_STEP * step, LIVES[1] + drop)
        cx, cy = STREAK[0] + STREAK_STEP * step + 5.5, STREAK[1] + drop + 5.5
        well(picture, (cx - 5, cy - 5, 10, 10), 5, 0.45)


def heart_socket(picture, x, y):
    """A heart-shaped hollow for a life, dark with a thin light lower edge."""
    _, alpha = heart(*HEART)
    put(picture, np.broadcast_to(RIM, alpha.shape + (3,)), alpha, x, y + 1, 0.35)
    put(picture, np.broadcast_to(rgb("031a19"), alpha.shape + (3,)), alpha, x, y, 0.9)


def strip():
    width, height = STRIP_SIZE
    picture = pane(width, height, 1)
    heading(picture, 64, 20, "Tervalis", 22)
    rule(picture, 8, 34, 112)
    player_block(picture, 1, 0)
    player_block(picture, 2, PLAYER_STEP)

    write(picture, 64, 301, "In the pond", 12, GOLD, "Bold", "mm")
    for kind, x, y in CENSUS:
        well(picture, (x - 3, y - 1, 22, 14), 3, 0.45)
        berry(picture, kind, x - 22, y - 2)

    write(picture, TARGET[0], TARGET[1] - 9, "Target", 11, SOFT, "Bold", "mm")
    well(picture, (TARGET[0] - 21, TARGET[1] - 1, 42, 14), 3)
    x, y, w, h = PROGRESS
    well(picture, (x - 2, y, w + 4, h), 6, 0.75)
    write(picture, LEVEL[0], LEVEL[1] - 7, "Level", 11, SOFT, "Bold", "mm")
    well(picture, (LEVEL[0] - 19, LEVEL[1] - 1, 38, 14), 3)
    for label, box in STRIP_BUTTONS:
        button(picture, box, label, 10)
    for key, (_, (x, y, w, h)) in zip(("Space", "F1", "Esc"), STRIP_BUTTONS):
        write(picture, x + w / 2, y + 22, key, 10, SOFT, "Bold", "mm")
    rule(picture, 8, 466, 144)
    return picture


def progress():
    """The full bar: a column of lit water with bubbles, gold at the top; the program shows its lower part."""
    width, height = PROGRESS[2:]
    y, x = np.mgrid[0:height, 0:width] + 0.5
    up = 1 - y / height
    across = (x / width) * 2 - 1
    colour = mix(rgb("0aa08c"), rgb("7ef0a0"), smooth(0.0, 0.7, up))
    colour = mix(colour, rgb("ffd850"), smooth(0.55, 1.0, up))
    colour = colour * (0.45 + 0.55 * np.sqrt(clip(1 - across ** 2)))[..., None]
    colour = mix(colour, rgb("ffffff"), 0.45 * smooth(0.22, 0.05, np.abs(across + 0.42)))
    dice = np.random.RandomState(5)
    for _ in range(46):
        cx, cy, size = dice.uniform(3, width - 3), dice.uniform(4, height - 4), dice.uniform(0.8, 2.4)
        d = np.hypot(x - cx, y - cy)
        colour = mix(colour, rgb("ffffff"), 0.40 * smooth(0.9, 0.1, np.abs(d - size)))
    edge = box_distance((height, width), 0, 0, width, height, 5)
    lay(colour, rgb("02211f"), cover(np.abs(edge + 0.5) - 0.5) * 0.8)
    lay(colour, rgb("010c0c"), 1 - cover(edge))
    return colour


def message(size, title, y, title_size=19):
    picture = pane(*size, seed=3)
    heading(picture, size[0] / 2, y, title, title_size)
    return picture


def messages():
    paused = message(MESSAGE_SIZE, "Paused", 27)
    confirm = message(MESSAGE_SIZE, "Quit game?", 27)
    for picture, buttons in ((paused, PAUSED_BUTTONS), (confirm, CONFIRM_BUTTONS)):
        rule(picture, 14, 47, 132)
        for label, box in buttons:
            button(picture, box, label, 11)
    cleared = message(MESSAGE_SIZE, "Level cleared!", 32)
    for place, kind in enumerate(COLOURS + ("golden",)):
        berry(cleared, kind, 20 + 21 * place, 56)
    over = message(MESSAGE_SIZE, "Game over", 29)
    put(over, *bumped_head(0, 36), 62, 45)
    following = pane(*NEXT_LEVEL_SIZE, seed=4)
    for caption, (x, y, w, h) in NEXT_LEVEL_FIELDS:
        heading(following, x + w / 2, y - 11, caption, 14)
        well(following, (x + 40, y, w - 80, h), 4)
    rule(following, 14, 47, 132)
    write(following, 80, 97, "Watch the arrows", 10, SOFT, "Bold", "mm")
    return {"Paused": paused, "Confirm": confirm, "LevelCleared": cleared, "NextLevel": following, "GameOver": over}


def render():
    picture = strip()
    save_bmp("LeftPanel.bmp", quantise(picture) / 255.0)
    save_jpeg("Progress.jpg", progress())
    for name, panel in messages().items():
        save_jpeg(f"Message{name}.jpg", panel)
    ground = picture[LIVES[1] + 6, LIVES[0] + 20]
    for colour in COLOURS:
        save_keyed(f"bean{colour}.bmp", *object_picture(colour, STREAK_ICON), ground)
    save_keyed("heart.bmp", *heart(*HEART), ground)
