#include "app/globals.h"
#include "app/log.h"
#include "menu/menu_items.h"
#include "menu/section_menu.h"
#include "platform/gdi.h"
#include "res/image_loader.h"
#include "sound/sound.h"

#include <new>

namespace
{

constexpr SoundFile menuSounds[] = {
    { 0, "Wav\\popo.wav" }, { 1, "Wav\\select.wav" }, { 2, "Wav\\loop.wav" },  { 3, "Wav\\env1.wav" },
    { 4, "Wav\\env8.wav" }, { 5, "Wav\\env11.wav" },  { 6, "Wav\\env12.wav" }, { 7, "Wav\\env13.wav" },
};

struct MenuFont {
    CTextImage CSectionMenu::*text;
    int height; ///< pixels
    int width;
};

constexpr MenuFont menuFonts[] = {
    { &CSectionMenu::smallFont, 13, 5 },
    { &CSectionMenu::largeFont, 18, 6 },
};

constexpr int GREY_LEVELS = 16;
constexpr int GLYPH_SLOTS = 128;

struct PictureFile {
    int picture;
    const char* path;
};

constexpr PictureFile pictureFiles[] = {
    { PICTURE_MAIN_MENU, "Dat\\Image/MainMenu.jpg" },         { PICTURE_HOME_PAGE, "Dat\\Image/MainMenuHomepage.jpg" },
    { PICTURE_MAIN_ITEMS, "Dat\\Image/MainMenuItems.jpg" },   { PICTURE_OPTIONS, "Dat\\Image/Options.jpg" },
    { PICTURE_OPTIONS_ITEMS, "Dat\\Image/OptionsItems.jpg" }, { PICTURE_RANKING, "Dat\\Image/Ranking.jpg" },
    { PICTURE_HELP_FIRST, "Dat\\Image/Help1.jpg" },           { PICTURE_HELP_FIRST + 1, "Dat\\Image/Help2.jpg" },
    { PICTURE_HELP_FIRST + 2, "Dat\\Image/Help3.jpg" },       { PICTURE_HELP_FIRST + 3, "Dat\\Image/Help4.jpg" },
};

/// A part of a strip of pictures, from its top.
struct PictureView {
    int picture;
    int strip;
    int x;
    int width;
    int height;
};

constexpr PictureView pictureViews[] = {
    { 10, PICTURE_MAIN_ITEMS, 0, 172, 36 },     { 11, PICTURE_MAIN_ITEMS, 172, 154, 36 },
    { 12, PICTURE_MAIN_ITEMS, 326, 111, 36 },   { 13, PICTURE_MAIN_ITEMS, 437, 94, 36 },
    { 14, PICTURE_MAIN_ITEMS, 531, 60, 36 },    { 15, PICTURE_MAIN_ITEMS, 591, 60, 36 },
    { 16, PICTURE_OPTIONS_ITEMS, 0, 72, 23 },   { 17, PICTURE_OPTIONS_ITEMS, 72, 85, 23 },
    { 18, PICTURE_OPTIONS_ITEMS, 157, 26, 23 }, { 19, PICTURE_OPTIONS_ITEMS, 183, 33, 23 },
};

struct MainButton {
    int id;
    int x;
    int y;
    int width;
    int height;
    int hoverPicture;
};

constexpr MainButton mainButtons[] = {
    { BUTTON_HOME_PAGE, 197, 457, 245, 22, PICTURE_HOME_PAGE },
    { BUTTON_ONE_PLAYER, 116, 158, 172, 36, PICTURE_HOVER_FIRST },
    { BUTTON_TWO_PLAYERS, 359, 158, 154, 36, PICTURE_HOVER_FIRST + 1 },
    { BUTTON_RANKING, 76, 267, 111, 36, PICTURE_HOVER_FIRST + 2 },
    { BUTTON_OPTIONS, 460, 267, 94, 36, PICTURE_HOVER_FIRST + 3 },
    { BUTTON_HELP, 173, 379, 60, 36, PICTURE_HOVER_FIRST + 4 },
    { BUTTON_QUIT, 407, 379, 60, 36, PICTURE_HOVER_FIRST + 5 },
};

/// The buttons in the foot of a page: hot areas of one size over words in its picture.
constexpr int FOOT_BUTTON_WIDTH = 54;
constexpr int FOOT_BUTTON_HEIGHT = 14;

struct FootButton {
    int id;
    int x;
};

constexpr FootButton optionsButtons[] = {
    { BUTTON_OPTIONS_OK, 133 },
    { BUTTON_OPTIONS_CANCEL, 203 },
    { BUTTON_OPTIONS_DEFAULT, 63 },
};

struct OptionsToggle {
    int id;
    int group;
    int x;
    int y;
    int width;
    int checkedPicture;
};

constexpr OptionsToggle optionsToggles[] = {
    { TOGGLE_WINDOWED, GROUP_DISPLAY, 90, 14, 72, PICTURE_CHECKED_FIRST },
    { TOGGLE_FULL_SCREEN, GROUP_DISPLAY, 180, 14, 85, PICTURE_CHECKED_FIRST + 1 },
    { TOGGLE_SOUND_ON, GROUP_SOUND, 90, 39, 26, PICTURE_CHECKED_FIRST + 2 },
    { TOGGLE_SOUND_OFF, GROUP_SOUND, 129, 39, 33, PICTURE_CHECKED_FIRST + 3 },
};

constexpr int KEY_FIELD_SIZE = 33;

void CreateCentred(CMenu& page, CImage& picture)
{
    page.MenuCreate((backBuffer.width - picture.width) / 2, (backBuffer.height - picture.height) / 2, &picture);
}

void AddFootButton(CMenu& page, int id, int x, int y)
{
    page.AddButton(id, x, y, FOOT_BUTTON_WIDTH, FOOT_BUTTON_HEIGHT, nullptr, nullptr, nullptr, SOUND_NONE, SOUND_NONE);
}

}

bool CSectionMenu::LoadFonts()
{
    for (const MenuFont& row : menuFonts) {
        // The text image keeps using the font, so it is never deleted.
        const HFONT font = CreateFontA(row.height, row.width, 0, 0, FW_BOLD, 0, 0, 0, DEFAULT_CHARSET, 0, 0,
                                       PROOF_QUALITY, 0, "Verdana");
        if (!(this->*row.text).TextImageCreate(font, GREY_LEVELS, GLYPH_SLOTS))
            return false;
    }
    return true;
}

bool CSectionMenu::LoadPictures()
{
    images.reset(new (std::nothrow) CImage[MENU_IMAGES]);
    if (!images)
        return false;
    for (const PictureFile& file : pictureFiles) {
        if (!LoadJpegFile(images[file.picture], file.path))
            return false;
    }
    for (const PictureView& view : pictureViews)
        images[view.picture].CreateView(images[view.strip], view.x, 0, view.width, view.height);
    return true;
}

void CSectionMenu::BuildMainMenu()
{
    mainMenu.MenuCreate(0, 0, &images[PICTURE_MAIN_MENU]);
    for (const MainButton& button : mainButtons)
        mainMenu.AddButton(button.id, button.x, button.y, button.width, button.height, nullptr,
                           &images[button.hoverPicture], nullptr, SOUND_MENU_HOVER, SOUND_MENU_CLICK);
}

void CSectionMenu::BuildOptionsPage()
{
    CreateCentred(optionsMenu, images[PICTURE_OPTIONS]);
    for (const FootButton& button : optionsButtons)
        AddFootButton(optionsMenu, button.id, button.x, 203);
    for (const OptionsToggle& toggle : optionsToggles) {
        CImage& checked = images[toggle.checkedPicture];
        optionsMenu.AddToggle(toggle.id, toggle.group, toggle.x, toggle.y, toggle.width, 23, nullptr, nullptr, &checked,
                              SOUND_NONE, SOUND_NONE);
    }
    for (const KeyBinding& binding : keyBindings)
        optionsMenu.AddText(binding.field, binding.x, binding.y, KEY_FIELD_SIZE, KEY_FIELD_SIZE, nullptr, &largeFont,
                            TEXT_WHITE, TEXT_YELLOW, ALIGN_CENTRE, KEY_CAPTURE, 10);
}

void CSectionMenu::BuildRankingPage()
{
    constexpr int NAME_LENGTH = 20;
    CreateCentred(rankingMenu, images[PICTURE_RANKING]);
    AddFootButton(rankingMenu, BUTTON_RANKING_OK, 133, 283);
    const auto addColumn = [this](int firstId, int x) {
        for (int place = 0; place < RANKING_PLACES; ++place)
            rankingMenu.AddText(firstId + place, x, 48 + 20 * place, 20, 16, nullptr, &smallFont, TEXT_WHITE,
                                TEXT_YELLOW, ALIGN_CENTRE, TEXT_ENTRY, NAME_LENGTH);
    };
    addColumn(FIELD_NAME_FIRST, 150);
    addColumn(FIELD_SCORE_FIRST, 260);
}

void CSectionMenu::BuildHelpPages()
{
    for (int page = 0; page < MENU_HELP_PAGES; ++page)
        CreateCentred(helpMenus[page], images[PICTURE_HELP_FIRST + page]);
    for (const HelpButton& button : helpButtons) {
        CMenu& page = helpMenus[button.page];
        if (button.opens == HELP_BACK)
            AddFootButton(page, button.id, 223, 363);
        else
            page.AddButton(button.id, 3 + 123 * button.opens, 3, 123, 32, nullptr, nullptr, nullptr, SOUND_NONE,
                           SOUND_NONE);
    }
}

bool CSectionMenu::DataLoad(bool& done)
{
    switch (loadStep) {
    case 0:
        for (const SoundFile& sound : menuSounds)
            SoundLoad(sound.id, sound.path); // a missing sound is silence, not a failed start
        WriteLog("CSectionMenu::DataLoad 0");
        break;
    case 1:
        if (!LoadFonts())
            return false;
        WriteLog("CSectionMenu::DataLoad 1");
        break;
    case 2:
        if (!LoadPictures())
            return false;
        WriteLog("CSectionMenu::DataLoad 2");
        break;
    case 3:
        BuildMainMenu();
        BuildOptionsPage();
        BuildRankingPage();
        BuildHelpPages();
        done = true;
        WriteLog("CSectionMenu::DataLoad 3");
        break;
    default:
        done = true;
        return true;
    }
    ++loadStep;
    return true;
}

void CSectionMenu::UnDataLoad()
{
    images.reset();
    mainMenu.MenuFree();
    optionsMenu.MenuFree();
    rankingMenu.MenuFree();
    for (CMenu& page : helpMenus)
        page.MenuFree();
    smallFont.TextImageFree();
    largeFont.TextImageFree();
    WriteLog("CSectionMenu::UnDataLoad");
}
