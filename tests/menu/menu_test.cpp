#include "menu/menu.h"

#include "app/input.h"

#include <gtest/gtest.h>

TEST(Menu, AButtonFollowsTheMouseAndItsState)
{
    constexpr struct {
        int mouseX, mouseY; ///< on the menu; the button's box is 20 to 30 and 30 to 40, edges included
        bool isVisible, isEnabled, isActive;
        bool isHovered;
        const char* why;
    } cases[] = {
        { 19, 35, true, true, true, false, "left of the box" },
        { 20, 30, true, true, true, true, "left top corner" },
        { 30, 40, true, true, true, true, "right bottom corner" },
        { 31, 35, true, true, true, false, "right of the box" },
        { 25, 29, true, true, true, false, "above the box" },
        { 25, 41, true, true, true, false, "below the box" },
        { 25, 35, true, false, true, false, "disabled" },
        { 25, 35, false, true, true, false, "invisible" },
        { 25, 35, true, true, false, false, "menu without input" },
    };
    CImage screen;
    CMenu menu;
    ASSERT_TRUE(screen.Create(50, 60) && menu.MenuCreate(10, 20, nullptr));
    menu.Show();
    ASSERT_TRUE(menu.AddButton({ .id = 7, .box = { 20, 30, 10, 10 } }));
    MenuButton& button = menu.buttons[0];
    for (const auto& given : cases)
        for (const bool isDown : { false, true }) {
            button.isVisible = given.isVisible;
            button.isEnabled = given.isEnabled;
            menu.isActive = given.isActive;
            menu.hoveredButton = -1;
            input.mouseX = menu.x + given.mouseX;
            input.mouseY = menu.y + given.mouseY;
            input.mouseLeftDown = isDown;
            menu.MenuProcess(screen);
            EXPECT_EQ(menu.hoveredButton, given.isHovered ? 7 : -1) << given.why;
            EXPECT_EQ(button.clicked, given.isHovered && isDown) << given.why;
            EXPECT_EQ(input.mouseLeftDown, isDown && !given.isHovered) << given.why << ": a click is taken";
        }
}
