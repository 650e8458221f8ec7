"""Where the program has its hot areas and draws its figures: the one table every page is drawn from.

Boxes are (x, y, width, height) in the pixels of their own picture.
"""

# Main menu: label and box of each button. The order is that of the hover strip, after the home page.
HOME_PAGE = ("Visit the Tervalis home page", (197, 457, 245, 22))
MENU_BUTTONS = (
    ("One Player", (116, 158, 172, 36)),
    ("Two Players", (359, 158, 154, 36)),
    ("Ranking", (76, 267, 111, 36)),
    ("Options", (460, 267, 94, 36)),
    ("Help", (173, 379, 60, 36)),
    ("Quit", (407, 379, 60, 36)),
)

# Options page.
OPTIONS_SIZE = (320, 230)
TOGGLES = (
    ("Windowed", (90, 14, 72, 23)),
    ("Full screen", (180, 14, 85, 23)),
    ("On", (90, 39, 26, 23)),
    ("Off", (129, 39, 33, 23)),
)
OPTIONS_BUTTONS = (("Default", (63, 203, 54, 14)), ("OK", (133, 203, 54, 14)), ("Cancel", (203, 203, 54, 14)))
KEY_FIELD = 33
KEY_FIELDS = (
    ("Player 1", (("up", 78, 88), ("down", 78, 128), ("left", 38, 128), ("right", 118, 128))),
    ("Player 2", (("up", 208, 88), ("down", 208, 128), ("left", 168, 128), ("right", 248, 128))),
)

# Ranking page: (x of the name, x of the score, y) of the ten rows; text is centred 10 pixels right of x.
RANKING_SIZE = (320, 310)
RANKING_ROWS = tuple((150, 260, 48 + 20 * place) for place in range(10))
RANKING_OK = ("OK", (133, 283, 54, 14))

# Help pages.
HELP_SIZE = (500, 390)
HELP_TABS = tuple((3 + 123 * page, 3, 123, 32) for page in range(4))
HELP_BACK = ("Back", (223, 363, 54, 14))

# The strip beside the pond.
STRIP_SIZE = (160, 480)
STRIP_BUTTONS = (("Pause", (10, 433, 39, 14)), ("Help", (61, 433, 39, 14)), ("Quit", (112, 433, 39, 14)))
PROGRESS = (128, 66, 19, 313)
TARGET = (137, 50)  # centre and top of the figure
LEVEL = (137, 396)
PLAYER_STEP = 120  # the second player's block lies this much lower
LIVES, LENGTH, STREAK, SCORE = (48, 63), (48, 81), (52, 105), (48, 122)
STREAK_STEP = 12
CENSUS = (("red", 38, 318), ("green", 98, 318), ("blue", 38, 338), ("purple", 98, 338),
          ("orange", 38, 358), ("golden", 98, 358), ("stone", 38, 398))

# Message panels.
MESSAGE_SIZE, NEXT_LEVEL_SIZE = (160, 90), (160, 110)
PAUSED_BUTTONS = (("Resume", (18, 63, 54, 14)), ("Help", (88, 63, 54, 14)))
CONFIRM_BUTTONS = (("Yes", (18, 63, 54, 14)), ("No", (88, 63, 54, 14)))
NEXT_LEVEL_FIELDS = (("Level", (4, 25, 152, 14)), ("Target", (4, 70, 152, 14)))


def boxes():
    """name -> set of the boxes that the picture of that name is drawn for."""
    parts = {
        "MainMenu.jpg": (HOME_PAGE, *MENU_BUTTONS),
        "Options.jpg": (*TOGGLES, *OPTIONS_BUTTONS),
        "Ranking.jpg": (RANKING_OK,),
        "LeftPanel.bmp": STRIP_BUTTONS,
        "MessagePaused.jpg": PAUSED_BUTTONS,
        "MessageConfirm.jpg": CONFIRM_BUTTONS,
        "MessageNextLevel.jpg": NEXT_LEVEL_FIELDS,
    }
    found = {name: {box for _, box in labelled} for name, labelled in parts.items()}
    found["Options.jpg"] |= {(x, y, KEY_FIELD, KEY_FIELD) for _, keys in KEY_FIELDS for _, x, y in keys}
    found["Ranking.jpg"] |= {(x, y, 20, 16) for *columns, y in RANKING_ROWS for x in columns}
    for page in range(4):
        found[f"Help{page + 1}.jpg"] = {HELP_BACK[1], *HELP_TABS} - {HELP_TABS[page]}
    return found
