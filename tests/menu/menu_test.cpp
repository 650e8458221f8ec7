#include "menu/menu.h"

#include "app/input.h"
#include "sound/sound.h"

#include <gtest/gtest.h>

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
        menu.MenuCreate(MENU_X, MENU_Y, &background);
        menu.Show();
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
