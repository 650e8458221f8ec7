#include "menu/menu.h"

#include "app/globals.h"
#include "doubles/fake_platform.h"
#include "sound/sound.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <string>

namespace
{
constexpr int HOVER_SOUND = 0;
constexpr int CLICK_SOUND = 1;
constexpr uint16_t BACKGROUND = 0x1111;
constexpr uint16_t IMAGE = 0x2222;
constexpr uint16_t HOVER = 0x3333;
constexpr uint16_t PRESSED = 0x4444;
constexpr uint16_t TEXT_COLOUR = 0xFFFF;
constexpr uint16_t FOCUS_COLOUR = 0xF800;
constexpr int MENU_X = 10;
constexpr int MENU_Y = 20;

/// A menu at (10, 20) on a black screen, with one-coloured pictures and two sounds.
class Menu : public testing::Test
{
protected:
    Menu()
    {
        input = InputState{};
        screen.Create(200, 120);
        Paint(background, 100, BACKGROUND);
        Paint(image, 10, IMAGE);
        Paint(hover, 10, HOVER);
        Paint(pressed, 10, PRESSED);
        text.TextImageCreate(font, TEXT_GREY_LEVELS, TEXT_GLYPH_SLOTS);
        menu.MenuCreate(MENU_X, MENU_Y, &background);
        menu.isVisible = true;
        menu.isActive = true;
    }
    ~Menu() override
    {
        text.TextImageFree();
        DeleteObject(font);
        SoundRelease();
    }
    static void Paint(CImage& picture, int size, uint16_t colour)
    {
        picture.Create(size, size);
        picture.Fill(colour);
    }
    void MakeSounds()
    {
        fake.Reset();
        SoundInit(FAKE_WINDOW);
        SoundSetMute(0);
        const WAVEFORMATEX format = { WAVE_FORMAT_PCM, 1, 22050, 44100, 2, 16, 0 };
        ASSERT_TRUE(SoundCreate(HOVER_SOUND, &format, 100));
        ASSERT_TRUE(SoundCreate(CLICK_SOUND, &format, 100));
    }
    int Plays(int sound) const { return fake.soundBuffers[static_cast<size_t>(sound)]->plays; }
    int Stops(int sound) const { return fake.soundBuffers[static_cast<size_t>(sound)]->stops; }

    void AddButton(int id, int x, int y)
    {
        ASSERT_TRUE(menu.AddButton(id, x, y, 10, 10, &image, &hover, &pressed, HOVER_SOUND, CLICK_SOUND));
    }
    MenuText& AddText(int mode, int maxLength, int align = ALIGN_LEFT)
    {
        const int id = menu.textCount;
        EXPECT_TRUE(menu.AddText(id, 5, 40, 80, 20, nullptr, &text, TEXT_COLOUR, FOCUS_COLOUR, align, mode, maxLength));
        return *menu.FindText(id);
    }
    void MouseTo(int x, int y)
    {
        input.mouseX = MENU_X + x;
        input.mouseY = MENU_Y + y;
    }
    uint16_t PixelAt(int x, int y) { return screen.Row(MENU_Y + y)[MENU_X + x]; }
    void Process()
    {
        screen.Fill(0);
        menu.MenuProcess(screen);
    }
    bool IsOnScreen(uint16_t colour)
    {
        return std::find(screen.pixels, screen.Row(screen.height), colour) != screen.Row(screen.height);
    }
    /// Something is drawn over the background, in a box of the menu.
    bool IsDrawnIn(int x, int y, int width, int height)
    {
        for (int row = y; row < y + height; ++row) {
            for (int column = x; column < x + width; ++column) {
                if (PixelAt(column, row) != BACKGROUND)
                    return true;
            }
        }
        return false;
    }

    CImage screen;
    CImage background;
    CImage image;
    CImage hover;
    CImage pressed;
    HFONT font = CreateVerdana(13, 5);
    CTextImage text;
    CMenu menu;
};
}

TEST_F(Menu, ShowsAndClicksAButtonByItsStateAndTheMouse)
{
    const struct {
        bool isVisible, isEnabled, isActive;
        int mouseX; ///< the box is 20 to 30, edges included
        bool isDown;
        uint16_t colour;
        bool isClicked;
        const char* why;
    } cases[] = {
        { true, true, true, 19, true, IMAGE, false, "left of the box" },
        { true, true, true, 20, false, HOVER, false, "left edge" },
        { true, true, true, 30, false, HOVER, false, "right edge" },
        { true, true, true, 31, true, IMAGE, false, "right of the box" },
        { true, true, true, 25, true, PRESSED, true, "pressed" },
        { true, false, true, 25, true, IMAGE, false, "disabled" },
        { false, true, true, 25, true, BACKGROUND, false, "invisible" },
        { true, true, false, 25, true, IMAGE, false, "menu without input" },
    };
    AddButton(7, 20, 30);
    MenuButton& button = *menu.FindButton(7);
    for (const auto& c : cases) {
        button.isVisible = c.isVisible;
        button.isEnabled = c.isEnabled;
        menu.isActive = c.isActive;
        MouseTo(c.mouseX, 35);
        input.mouseLeftDown = c.isDown;
        Process();
        EXPECT_EQ(PixelAt(25, 35), c.colour) << c.why;
        EXPECT_EQ(button.clicked, c.isClicked) << c.why;
        EXPECT_EQ(input.mouseLeftDown, c.isDown && !c.isClicked) << c.why;
    }
    button.clicked = true;
    menu.isVisible = false;
    Process();
    EXPECT_FALSE(button.clicked) << "a click lasts one frame, hidden or not";
}

TEST_F(Menu, SoundsOnceForEachButtonTheMouseComesToAndForAPress)
{
    MakeSounds();
    AddButton(1, 20, 30);
    AddButton(2, 40, 30);
    AddButton(3, 45, 30); // over the second: the last one wins
    const struct {
        int x, hovered, plays;
    } moves[] = { { 25, 1, 1 }, { 26, 1, 1 }, { 42, 2, 2 }, { 47, 3, 3 }, { 90, -1, 3 }, { 47, 3, 4 } };
    for (const auto& [x, hovered, plays] : moves) {
        MouseTo(x, 35);
        Process();
        EXPECT_EQ(menu.hoveredButton, hovered) << x;
        EXPECT_EQ(Plays(HOVER_SOUND), plays) << x;
    }
    input.mouseLeftDown = true;
    Process();
    Process(); // the mouse button is still held
    EXPECT_FALSE(menu.FindButton(3)->clicked);
    EXPECT_EQ(PixelAt(50, 35), HOVER);
    EXPECT_EQ(Plays(CLICK_SOUND), 1);
    EXPECT_EQ(Stops(CLICK_SOUND), 1) << "stopped before it is played";
}

TEST_F(Menu, ChecksOneToggleOfAGroup)
{
    for (const auto& [id, group, x] : { std::array{ 0, 5, 0 }, { 1, 5, 20 }, { 2, 6, 40 } })
        ASSERT_TRUE(menu.AddToggle(id, group, x, 30, 10, 10, &image, &hover, &pressed, SOUND_NONE, SOUND_NONE));
    menu.FindToggle(0)->checked = true;
    menu.FindToggle(2)->checked = true;
    MouseTo(25, 35);
    input.mouseLeftDown = true;
    Process();
    EXPECT_FALSE(menu.FindToggle(0)->checked);
    EXPECT_TRUE(menu.FindToggle(1)->checked);
    EXPECT_TRUE(menu.FindToggle(2)->checked) << "another group";
    EXPECT_FALSE(input.mouseLeftDown);
    MouseTo(90, 90);
    Process();
    EXPECT_EQ(PixelAt(5, 35), IMAGE);
    EXPECT_EQ(PixelAt(25, 35), PRESSED) << "checked";
}

TEST_F(Menu, TakesTypedText)
{
    const struct {
        const char* before;
        int key;
        char character;
        const char* after;
        bool isTaken;
    } cases[] = {
        { "", 'A', 'a', "a", true },
        { "a", 0xBD, '_', "a_", true },
        { "a", 0xDE, '\'', "a'", true },
        { "a", 0xBE, '.', "a.", true },
        { "a", ' ', ' ', "a ", true },
        { "a", '1', '!', "a", false },
        { "a", 'E', '\xE9', "a", false },
        { "abcde", 'F', 'f', "abcdef", true },
        { "abcdef", 'G', 'g', "abcdef", false },
        { "abcdef", 8, 8, "abcde", true },
        { "", 8, 8, "", false },
    };
    MenuText& item = AddText(TEXT_ENTRY, 6);
    item.focused = true;
    for (const auto& c : cases) {
        SCOPED_TRACE(std::string(c.before) + " + " + std::to_string(c.character));
        std::snprintf(item.text.get(), MENU_TEXT_SIZE, "%s", c.before);
        input.lastKeyDown = c.key;
        input.lastChar = c.character;
        Process();
        EXPECT_STREQ(item.text.get(), c.after);
        EXPECT_EQ(item.changed, c.isTaken);
        EXPECT_EQ(input.lastKeyDown, c.isTaken ? 0 : c.key);
    }
    item.maxLength = 1000;
    input.lastKeyDown = 0;
    for (int i = 0; i < 300; ++i) {
        input.lastChar = 'x';
        Process();
    }
    EXPECT_EQ(std::string(item.text.get()).size(), MENU_TEXT_SIZE - 1U) << "never past the buffer";
}

TEST_F(Menu, CapturesKeys)
{
    const struct {
        int key;
        const char* text; ///< null = not taken
    } cases[] = {
        { 'A', "A" },   { 'Z', "Z" },    { 96, "`" },    { 105, "i" },    { 38, "Up" },     { 40, "Down" },
        { 37, "Left" }, { 39, "Right" }, { 0, nullptr }, { 13, nullptr }, { 106, nullptr }, { '9', nullptr }
    };
    MenuText& item = AddText(KEY_CAPTURE, 0);
    for (const auto& [key, name] : cases) {
        item.focused = true;
        item.key = 'Q';
        input.lastKeyDown = key;
        Process();
        EXPECT_STREQ(item.text.get(), name ? name : "Q") << key;
        EXPECT_EQ(item.key, name ? key : 'Q');
        EXPECT_EQ(item.changed, name != nullptr) << key;
        EXPECT_EQ(input.lastKeyDown, name ? 0 : key);

        item.focused = false;
        item.key = key;
        Process();
        EXPECT_STREQ(item.text.get(), name ? name : "Q") << "shown from a stored key " << key;
    }
}

TEST_F(Menu, AlignsTextInItsBox)
{
    const int width = text.TextWidth("HH");
    const struct {
        int align, left;
    } cases[] = { { ALIGN_LEFT, 0 }, { ALIGN_CENTRE, (80 - width) / 2 }, { ALIGN_RIGHT, 80 - width } };
    for (const auto& [align, left] : cases) {
        MenuText& item = AddText(TEXT_ENTRY, 6, align);
        item.text[0] = item.text[1] = 'H';
        Process();
        CImage expected;
        expected.Create(screen.width, screen.height);
        background.Draw(expected, MENU_X, MENU_Y);
        text.TextDraw(expected, MENU_X + 5 + left, MENU_Y + 40 + (20 - 13) / 2, TEXT_COLOUR, "HH");
        EXPECT_TRUE(std::equal(screen.pixels, screen.Row(screen.height), expected.pixels)) << "align " << align;
        item.isVisible = false;
    }
}

TEST_F(Menu, BlinksTheCursorBehindAFocusedText)
{
    MenuText& item = AddText(TEXT_ENTRY, 6);
    item.text[0] = 'H';
    item.focused = true;
    std::string frames;
    for (int i = 0; i < 20; ++i) {
        Process();
        EXPECT_FALSE(IsOnScreen(TEXT_COLOUR));
        frames += IsDrawnIn(5 + text.TextWidth("H"), 40, 10, 20) ? '|' : '.';
    }
    EXPECT_EQ(frames, "|||||....||||||....|") << "the counter starts at 1";
    menu.isActive = false;
    Process();
    EXPECT_TRUE(IsOnScreen(TEXT_COLOUR)) << "without input it is a plain label";
}

TEST_F(Menu, CutsATextToItsRoom)
{
    constexpr int LEFT = 15, ROOM = 60; // around the middle of the box
    MenuText& item = AddText(TEXT_ENTRY, 20, ALIGN_CENTRE);
    const int cursorWidth = text.TextWidth("|");
    for (int length = 0; length <= 20; ++length) {
        const std::string typed(static_cast<size_t>(length), 'W');
        snprintf(item.text.get(), MENU_TEXT_SIZE, "%s", typed.c_str());
        for (const auto& [focused, hasCursor] : { std::pair{ false, false }, { true, false }, { true, true } }) {
            SCOPED_TRACE(typed + (hasCursor ? "|" : focused ? "." : ""));
            item.focused = focused;
            CImage uncut;
            for (const int room : { 0, ROOM }) {
                uncut.Copy(screen);
                item.room = room;
                menu.cursorBlink = hasCursor ? 0 : 6;
                Process();
            }
            const int end = 45 + text.TextWidth(typed.c_str()) / 2 + (focused ? cursorWidth : 0);
            const bool fits = end <= LEFT + ROOM;
            EXPECT_EQ(std::equal(screen.pixels, screen.Row(screen.height), uncut.pixels), fits);
            EXPECT_STREQ(item.text.get(), typed.c_str());
            EXPECT_FALSE(IsDrawnIn(0, 0, LEFT, 100) || IsDrawnIn(LEFT + ROOM, 0, 100 - LEFT - ROOM, 100));
            if (!fits && focused) {
                EXPECT_EQ(IsDrawnIn(LEFT + ROOM - cursorWidth, 40, cursorWidth, 20), hasCursor);
            }
        }
    }
}

TEST_F(Menu, HoldsNoMoreItemsThanItHasRoomFor)
{
    for (int i = 0; i < 40; ++i) {
        EXPECT_EQ(menu.AddButton(i % 2, 0, 0, 1, 1, nullptr, nullptr, nullptr, -1, -1), i < 16);
        EXPECT_EQ(menu.AddToggle(i % 2, 0, 0, 0, 1, 1, nullptr, nullptr, nullptr, -1, -1), i < 16);
        EXPECT_EQ(menu.AddText(i % 2, 0, 0, 1, 1, nullptr, &text, 0, 0, 0, 0, 6), i < 20);
    }
    EXPECT_EQ(menu.FindButton(1), &menu.buttons[1]) << "the first of that id";
    EXPECT_EQ(menu.FindText(2), nullptr);
    ASSERT_TRUE(menu.MenuCreate(0, 0, nullptr));
    EXPECT_EQ(menu.FindButton(1), nullptr) << "creating it anew replaces its items";
    menu.MenuFree();
    EXPECT_FALSE(menu.AddButton(1, 0, 0, 1, 1, nullptr, nullptr, nullptr, -1, -1));
}
