"""Every picture the program loads: file name -> (width, height), and the mask that goes with it.

A mask has the size of its pictures. The falling frames share one size per frame.
"""
COLOURS = ("red", "green", "blue", "orange", "purple")
POPUPS = ("add5", "add10", "add15", "add30", "add35", "add40", "add45", "lifeup")
ICON = "packaging/tervalis.ico"


def falling_size(frame):
    """Side of falling frame 1 to 14: the last is the ripe berry itself, earlier ones are nearer the eye."""
    return 16 + 2 * round((14 - frame) * 0.75)


def masked():
    """(picture, size, mask) of every picture that has one."""
    for name in [f"bean_{colour}" for colour in COLOURS + ("golden",)] + ["stone"]:
        yield f"{name}.jpg", (16, 16), "mask.bmp"
    for frame in range(1, 15):
        for colour in COLOURS:
            yield f"bean_{colour}{frame}.jpg", (falling_size(frame),) * 2, f"mask{frame}.bmp"
    for number in range(1, 9):
        yield f"light{number}.jpg", (30, 30) if number < 5 else (56, 56), f"light{number}_.bmp"
    for name in POPUPS:
        yield f"{name}.jpg", (32, 16), "add_.bmp"
    for number in (1, 2):
        yield f"Moon{number}.jpg", (130, 130), f"Moon{number}_.bmp"
    for number in range(1, 25):
        yield f"snakeeye{number:02}.jpg", (16, 16), f"snakeeye{number:02}_.bmp"
    for number in range(1, 5):
        yield f"bumpeye{number}.jpg", (24, 24), f"bumpeye{number}_.bmp"


# Pictures without a mask: drawn whole, added, subtracted or colour-keyed.
PLAIN = {
    "bg0.jpg": (480, 480), "shadow.jpg": (16, 16), "light.jpg": (160, 160),
    "snakebody.jpg": (16, 16), "snakebody2nd.jpg": (16, 16),
    "ArrowUp.bmp": (16, 16), "ArrowDown.bmp": (16, 16), "ArrowLeft.bmp": (16, 16), "ArrowRight.bmp": (16, 16),
    "LeftPanel.bmp": (160, 480), "Progress.jpg": (19, 313), "heart.bmp": (14, 12),
    "beanred.bmp": (11, 11), "beangreen.bmp": (11, 11), "beanblue.bmp": (11, 11), "beanorange.bmp": (11, 11),
    "beanpurple.bmp": (11, 11),
    "MessagePaused.jpg": (160, 90), "MessageConfirm.jpg": (160, 90), "MessageLevelCleared.jpg": (160, 90),
    "MessageNextLevel.jpg": (160, 110), "MessageGameOver.jpg": (160, 90),
    "Help1.jpg": (500, 390), "Help2.jpg": (500, 390), "Help3.jpg": (500, 390), "Help4.jpg": (500, 390),
    "MainMenu.jpg": (640, 480), "MainMenuHomepage.jpg": (245, 22), "MainMenuItems.jpg": (651, 36),
    "Options.jpg": (320, 230), "OptionsItems.jpg": (216, 23), "Ranking.jpg": (320, 310),
}
KEYED = ("Arrow", "bean", "heart")  # beginnings of the names of colour-keyed bitmaps


def pictures():
    """name -> ((width, height), name of its mask or None), masks included."""
    found = {name: (size, None) for name, size in PLAIN.items()}
    for name, size, mask in masked():
        found[name] = (size, mask)
        found[mask] = (size, None)
    return found
