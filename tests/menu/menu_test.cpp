#include "menu/menu.h"

#include "app/input.h"

#include <gtest/gtest.h>

namespace
{
struct MouseCase {
    int mouseX, mouseY; ///< on the menu; the item's box is 20 to 30 and 30 to 40, edges included
    bool isDown, isVisible, isEnabled, isActive;
    bool isHovered, isClicked;
    const char* why;
};
constexpr MouseCase mouseCases[] = {
    { 19, 35, true, true, true, true, false, false, "left of the box" },
    { 20, 30, false, true, true, true, true, false, "left top corner" },
    { 30, 40, false, true, true, true, true, false, "right bottom corner" },
    { 31, 35, true, true, true, true, false, false, "right of the box" },
    { 25, 29, true, true, true, true, false, false, "above the box" },
    { 25, 41, true, true, true, true, false, false, "below the box" },
    { 30, 40, true, true, true, true, true, true, "pressed" },
    { 25, 35, true, true, false, true, false, false, "disabled" },
    { 25, 35, true, false, true, true, false, false, "invisible" },
    { 25, 35, true, true, true, false, false, false, "menu without input" },
};

template <typename Item>
void Check(CMenu& menu, Item& item, const int32_t& hovered, bool& isClicked)
{
    CImage screen;
    screen.Create(50, 60);
    for (const MouseCase& given : mouseCases) {
        isClicked = false;
        item.isVisible = given.isVisible;
        item.isEnabled = given.isEnabled;
        menu.isActive = given.isActive;
        input.mouseX = menu.x + given.mouseX;
        input.mouseY = menu.y + given.mouseY;
        input.mouseLeftDown = given.isDown;
        menu.MenuProcess(screen);
        if (given.isActive) {
            EXPECT_EQ(hovered, given.isHovered ? item.id : -1) << given.why;
        }
        EXPECT_EQ(isClicked, given.isClicked) << given.why;
        EXPECT_EQ(input.mouseLeftDown, given.isDown && !given.isClicked) << given.why;
    }
}

TEST(Menu, ItemsFollowTheMouseAndTheirState)
{
    CMenu menu;
    ASSERT_TRUE(menu.MenuCreate(10, 20, nullptr));
    menu.Show();
    ASSERT_TRUE(menu.AddButton({ .id = 7, .box = { 20, 30, 10, 10 } }));
    Check(menu, menu.buttons[0], menu.hoveredButton, menu.buttons[0].clicked);
    menu.buttons[0].isVisible = false;
    for (const int x : { 20, 40 })
        ASSERT_TRUE(menu.AddToggle({ .id = x, .group = 1, .box = { x, 30, 10, 10 } }));
    menu.toggles[1].checked = true;
    input.mouseLeftDown = true;
    Check(menu, menu.toggles[0], menu.hoveredToggle, menu.toggles[0].checked);
    EXPECT_FALSE(menu.toggles[1].checked) << "one of a group";
}
}
