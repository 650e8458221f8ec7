#pragma once

#include "gfx/image.h"
#include "gfx/text_image.h"

#include <algorithm>
#include <cstdint>

/// Where an item is, in pixels relative to the menu.
struct MenuBox {
    int x;
    int y;
    int width;
    int height;
};

/// A click area with up to three pictures; one without any lies over a button that is part of the background.
struct MenuButton {
    int32_t id = 0;
    MenuBox box = {};
    CImage* image = nullptr;        ///< pictures are not owned; null = none
    CImage* hoverImage = nullptr;   ///< over it while the mouse is on the box
    CImage* pressedImage = nullptr; ///< instead, with the left button down
    int32_t hoverSound = -1;        ///< sound ids, -1 = none
    int32_t clickSound = -1;
    bool clicked = false; ///< for the frame of the click
    bool isVisible = true;
    bool isEnabled = true;
};

/// A radio button: a click unchecks its group and checks it.
struct MenuToggle {
    int32_t id = 0;
    int32_t group = 0;
    MenuBox box = {};
    CImage* image = nullptr;
    CImage* hoverImage = nullptr;
    CImage* checkedImage = nullptr; ///< instead of `image` while checked
    int32_t hoverSound = -1;
    int32_t clickSound = -1;
    bool checked = false;
    bool isVisible = true;
    bool isEnabled = true;
};

enum TextAlign : int { ALIGN_LEFT = 0, ALIGN_CENTRE = 1, ALIGN_RIGHT = 2 };
enum TextMode : int { TEXT_ENTRY = 0, KEY_CAPTURE = 1 };
constexpr int MENU_TEXT_SIZE = 256;

/// A label, text-entry field or key-capture field.
struct MenuText {
    int32_t id = 0;
    MenuBox box = {};
    CImage* image = nullptr;
    CTextImage* font = nullptr;     ///< not owned
    uint16_t colour = 0;            ///< RGB565
    uint16_t focusColour = 0;       ///< of text and cursor while focused
    char text[MENU_TEXT_SIZE] = {}; ///< zero-terminated; the owner may write it
    int32_t key = 0;                ///< in key capture: the virtual-key code captured last
    int32_t maxLength = 0;          ///< of typed text
    int32_t room = 0;               ///< width around the box's middle beyond which nothing is drawn; 0 = any
    int32_t align = ALIGN_LEFT;
    int32_t mode = TEXT_ENTRY;
    bool focused = false; ///< takes the keyboard; set and cleared by the owner
    bool isVisible = true;
    bool isEnabled = true;
    bool changed = false; ///< for the frame in which typing or a capture changed the text
};

/// The one widget: a panel with a background and up to 16 buttons, 16 toggles and 20 texts. The owner calls
/// MenuProcess once a frame, then reads and writes the items' flags.
class CMenu
{
public:
    static constexpr int MAX_BUTTONS = 16;
    static constexpr int MAX_TOGGLES = 16;
    static constexpr int MAX_TEXTS = 20;

    CMenu() = default;
    virtual ~CMenu() = default;
    CMenu(const CMenu&) = delete;
    CMenu& operator=(const CMenu&) = delete;

    /// Position and background (not owned, may be null) of a menu without items yet. Always true.
    bool MenuCreate(int menuX, int menuY, CImage* picture);
    /// Drops the items.
    void MenuFree() { buttonCount = toggleCount = textCount = 0; }
    /// The Add operations append a copy and answer false when their list is full.
    bool AddButton(const MenuButton& button) { return AddItem(buttons, buttonCount, button); }
    bool AddToggle(const MenuToggle& toggle) { return AddItem(toggles, toggleCount, toggle); }
    bool AddText(const MenuText& text) { return AddItem(texts, textCount, text); }
    /// The first item with that id, or null.
    MenuButton* FindButton(int id) { return FindItem(buttons, buttonCount, id); }
    MenuToggle* FindToggle(int id) { return FindItem(toggles, toggleCount, id); }
    MenuText* FindText(int id) { return FindItem(texts, textCount, id); }
    /// Shown and hidden, the menu also takes and loses mouse and keyboard.
    void Show() { isVisible = isActive = true; }
    void Hide() { isVisible = isActive = false; }
    bool IsOpen() const { return isVisible && isActive; }
    /// One frame: draws the panel onto `target` and handles mouse and keyboard.
    void MenuProcess(CImage& target);

    int32_t x = 0; ///< pixels of the target
    int32_t y = 0;
    CImage* background = nullptr;
    bool isVisible = false;
    bool isActive = false; ///< takes mouse and keyboard
    int32_t buttonCount = 0;
    int32_t toggleCount = 0;
    int32_t textCount = 0;
    MenuButton buttons[MAX_BUTTONS];
    MenuToggle toggles[MAX_TOGGLES];
    MenuText texts[MAX_TEXTS];
    int32_t hoveredButton = -1; ///< ids under the mouse in the last frame, -1 none
    int32_t hoveredToggle = -1;
    int32_t cursorBlink = 1;

private:
    template <typename Item, int capacity>
    static bool AddItem(Item (&items)[capacity], int32_t& count, const Item& item)
    {
        if (count == capacity)
            return false;
        items[count++] = item;
        return true;
    }

    template <typename Item>
    static Item* FindItem(Item* items, int count, int id)
    {
        Item* item = std::find_if(items, items + count, [id](const Item& each) { return each.id == id; });
        return item == items + count ? nullptr : item;
    }

    void DrawButtons(CImage& target) const;
    void DrawToggles(CImage& target) const;
    void DrawTexts(CImage& target);
    void ProcessButtons(CImage& target);
    void ProcessToggles(CImage& target);
    void ProcessTexts(CImage& target);
    bool TakesKeyboard(const MenuText& item) const { return item.focused && isActive; }
    int TextLeft(const MenuText& item) const;
    /// Draws the item's text at its place in the box, with the cursor behind it if that shows.
    void DrawTextItem(CImage& target, const MenuText& item, uint16_t colour, bool hasCursor) const;
};
