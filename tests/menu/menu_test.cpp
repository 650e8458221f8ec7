#include "menu/menu.h"

#include "app/input.h"
#include "sound/sound.h"

#include <gtest/gtest.h>
#include <string>

namespace
{
constexpr uint16_t BACKGROUND = 0x1111;
constexpr uint16_t IMAGE = 0x2222;
constexpr uint16_t HOVER = 0x3333;
constexpr uint16_t PRESSED = 0x4444;
constexpr int MENU_X = 10;
constexpr int MENU_Y = 20;

/// A menu at (10, 20), with one-coloured pictures.
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
        menu.Show();
    }
    ~Menu() override
    {
        text.TextImageFree();
        DeleteObject(font);
    }
    static void Paint(CImage& picture, int size, uint16_t colour)
    {
        picture.Create(size, size);
        picture.Fill(colour);
    }
    void AddButton(int id, int x)
    {
        ASSERT_TRUE(menu.AddButton({ id, { x, 30, 10, 10 }, &image, &hover, &pressed, SOUND_NONE, SOUND_NONE }));
    }
    void AddToggle(int id, int group, int x)
    {
        ASSERT_TRUE(menu.AddToggle({ id, group, { x, 30, 10, 10 }, &image, &hover, &pressed, SOUND_NONE, SOUND_NONE }));
    }
    MenuText& AddText(int mode, int maxLength)
    {
        EXPECT_TRUE(menu.AddText({ .box = { 5, 40, 80, 20 },
                                   .font = &text,
                                   .colour = 1,
                                   .focusColour = 2,
                                   .maxLength = maxLength,
                                   .mode = mode }));
        return *menu.FindText(0);
    }
    /// A frame with the mouse there; the colour in the middle of the item at (x, 30).
    uint16_t Process(int mouseX, int mouseY, bool isDown = false, int x = 20)
    {
        input.mouseX = MENU_X + mouseX;
        input.mouseY = MENU_Y + mouseY;
        input.mouseLeftDown = isDown;
        menu.MenuProcess(screen);
        return screen.Row(MENU_Y + 35)[MENU_X + x + 5];
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

TEST_F(Menu, ItemsFollowTheMouseAndTheirState)
{
    const struct {
        int mouseX, mouseY; ///< the box is 20 to 30 and 30 to 40, edges included
        bool isDown, isVisible, isEnabled, isActive;
        uint16_t colour;
        bool isClicked;
        const char* why;
    } cases[] = {
        { 19, 35, true, true, true, true, IMAGE, false, "left of the box" },
        { 20, 30, false, true, true, true, HOVER, false, "left top corner" },
        { 30, 40, false, true, true, true, HOVER, false, "right bottom corner" },
        { 31, 35, true, true, true, true, IMAGE, false, "right of the box" },
        { 25, 29, true, true, true, true, IMAGE, false, "above the box" },
        { 25, 41, true, true, true, true, IMAGE, false, "below the box" },
        { 30, 40, true, true, true, true, PRESSED, true, "pressed" },
        { 25, 35, true, true, false, true, IMAGE, false, "disabled" },
        { 25, 35, true, false, true, true, BACKGROUND, false, "invisible" },
        { 25, 35, true, true, true, false, IMAGE, false, "menu without input" },
    };
    const auto check = [&](auto& item, bool& isClicked) {
        for (const auto& c : cases) {
            isClicked = false;
            item.isVisible = c.isVisible;
            item.isEnabled = c.isEnabled;
            menu.isActive = c.isActive;
            EXPECT_EQ(Process(c.mouseX, c.mouseY, c.isDown), c.colour) << c.why;
            EXPECT_EQ(isClicked, c.isClicked) << c.why;
            EXPECT_EQ(input.mouseLeftDown, c.isDown && !c.isClicked) << c.why;
        }
        item.isVisible = false;
    };
    AddButton(7, 20);
    check(*menu.FindButton(7), menu.FindButton(7)->clicked);
    AddToggle(7, 1, 20);
    check(*menu.FindToggle(7), menu.FindToggle(7)->checked);
    menu.FindButton(7)->clicked = true;
    menu.isVisible = false;
    Process(0, 0);
    EXPECT_FALSE(menu.FindButton(7)->clicked) << "a click lasts one frame, hidden or not";
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
        Process(0, 0);
        EXPECT_STREQ(item.text.get(), c.after);
        EXPECT_EQ(item.changed, c.isTaken);
        EXPECT_EQ(input.lastKeyDown, c.isTaken ? 0 : c.key);
    }
    item.maxLength = 1000;
    input.lastKeyDown = 0;
    for (int i = 0; i < 300; ++i) {
        input.lastChar = 'x';
        Process(0, 0);
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
        Process(0, 0);
        EXPECT_STREQ(item.text.get(), name ? name : "Q") << key;
        EXPECT_EQ(item.key, name ? key : 'Q');
        EXPECT_EQ(item.changed, name != nullptr) << key;
        EXPECT_EQ(input.lastKeyDown, name ? 0 : key);

        item.focused = false;
        item.key = key;
        Process(0, 0);
        EXPECT_STREQ(item.text.get(), name ? name : "Q") << "shown from a stored key " << key;
    }
}

TEST_F(Menu, CutsATextToItsRoom)
{
    constexpr int LEFT = 15;
    constexpr int ROOM = 60; // around the middle of the box
    MenuText& item = AddText(TEXT_ENTRY, 20);
    item.align = ALIGN_CENTRE;
    item.room = ROOM;
    const auto isDrawnIn = [this](int x, int width) {
        for (int y = MENU_Y + 40; y < MENU_Y + 60; ++y)
            for (int column = MENU_X + x; column < MENU_X + x + width; ++column)
                if (screen.Row(y)[column] != BACKGROUND)
                    return true;
        return false;
    };
    const int cursorWidth = text.TextWidth("|");
    for (const char* typed : { "W", "WWWWWWWWWWWWWWWWWWWW" }) {
        for (const auto& [focused, hasCursor] : { std::pair{ false, false }, { true, false }, { true, true } }) {
            std::snprintf(item.text.get(), MENU_TEXT_SIZE, "%s", typed);
            item.focused = focused;
            menu.cursorBlink = hasCursor ? 0 : 6;
            Process(0, 0);
            EXPECT_TRUE(isDrawnIn(LEFT, ROOM)) << typed;
            EXPECT_FALSE(isDrawnIn(0, LEFT) || isDrawnIn(LEFT + ROOM, 100 - LEFT - ROOM)) << typed;
            if (typed[1] != 0 && focused) {
                EXPECT_EQ(isDrawnIn(LEFT + ROOM - cursorWidth, cursorWidth), hasCursor) << "the end is shown";
            }
        }
    }
}
