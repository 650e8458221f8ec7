#include "app/frame_images.h"
#include "app/loading_steps.h"
#include "app/log.h"
#include "menu/section_menu.h"
#include "sound/sound.h"

using enum CSectionMenu::ItemId;

namespace
{

constexpr SoundFile menuSounds[] = {
    { SOUND_MENU_HOVER, "Wav\\popo.wav" },
    { SOUND_MENU_CLICK, "Wav\\select.wav" },
    { SOUND_MUSIC, "Wav\\loop.wav" },
    { SOUND_MENU_ENV_FIRST, "Wav\\env1.wav" },
    { SOUND_MENU_ENV_FIRST + 1, "Wav\\env8.wav" },
    { SOUND_MENU_ENV_FIRST + 2, "Wav\\env11.wav" },
    { SOUND_MENU_ENV_FIRST + 3, "Wav\\env12.wav" },
    { SOUND_MENU_ENV_LAST, "Wav\\env13.wav" },
};
static_assert(IdsAscend(menuSounds));

/// A part of a strip of pictures, from its top.
struct PictureView {
    int picture;
    int strip;
    int x;
    int width;
    int height;
};

constexpr PictureView pictureViews[] = {
    { PICTURE_HOVER_FIRST, PICTURE_MAIN_ITEMS, 0, 172, 36 },
    { PICTURE_HOVER_FIRST + 1, PICTURE_MAIN_ITEMS, 172, 154, 36 },
    { PICTURE_HOVER_FIRST + 2, PICTURE_MAIN_ITEMS, 326, 111, 36 },
    { PICTURE_HOVER_FIRST + 3, PICTURE_MAIN_ITEMS, 437, 94, 36 },
    { PICTURE_HOVER_FIRST + 4, PICTURE_MAIN_ITEMS, 531, 60, 36 },
    { PICTURE_HOVER_FIRST + 5, PICTURE_MAIN_ITEMS, 591, 60, 36 },
    { PICTURE_CHECKED_FIRST, PICTURE_OPTIONS_ITEMS, 0, 72, 23 },
    { PICTURE_CHECKED_FIRST + 1, PICTURE_OPTIONS_ITEMS, 72, 85, 23 },
    { PICTURE_CHECKED_FIRST + 2, PICTURE_OPTIONS_ITEMS, 157, 26, 23 },
    { PICTURE_CHECKED_FIRST + 3, PICTURE_OPTIONS_ITEMS, 183, 33, 23 },
};

struct MainButton {
    int id;
    MenuBox box;
    int hoverPicture;
};

constexpr MainButton mainButtons[] = {
    { BUTTON_HOME_PAGE, { 197, 457, 245, 22 }, PICTURE_HOME_PAGE },
    { BUTTON_ONE_PLAYER, { 116, 158, 172, 36 }, PICTURE_HOVER_FIRST },
    { BUTTON_TWO_PLAYERS, { 359, 158, 154, 36 }, PICTURE_HOVER_FIRST + 1 },
    { BUTTON_RANKING, { 76, 267, 111, 36 }, PICTURE_HOVER_FIRST + 2 },
    { BUTTON_OPTIONS, { 460, 267, 94, 36 }, PICTURE_HOVER_FIRST + 3 },
    { BUTTON_HELP, { 173, 379, 60, 36 }, PICTURE_HOVER_FIRST + 4 },
    { BUTTON_QUIT, { 407, 379, 60, 36 }, PICTURE_HOVER_FIRST + 5 },
};

/// The buttons in the foot of a page lie over words in its picture.
struct FootButton {
    CMenu CSectionMenu::*page;
    int id;
    MenuBox box;
};

constexpr FootButton footButtons[] = {
    { &CSectionMenu::optionsMenu, BUTTON_OPTIONS_OK, { 133, 203, 54, 14 } },
    { &CSectionMenu::optionsMenu, BUTTON_OPTIONS_CANCEL, { 203, 203, 54, 14 } },
    { &CSectionMenu::optionsMenu, BUTTON_OPTIONS_DEFAULT, { 63, 203, 54, 14 } },
    { &CSectionMenu::rankingMenu, BUTTON_RANKING_OK, { 133, 283, 54, 14 } },
};

struct OptionsToggle {
    int id;
    int group;
    MenuBox box;
    int checkedPicture;
};

constexpr OptionsToggle optionsToggles[] = {
    { TOGGLE_WINDOWED, GROUP_DISPLAY, { 90, 14, 72, 23 }, PICTURE_CHECKED_FIRST },
    { TOGGLE_FULL_SCREEN, GROUP_DISPLAY, { 180, 14, 85, 23 }, PICTURE_CHECKED_FIRST + 1 },
    { TOGGLE_SOUND_ON, GROUP_SOUND, { 90, 39, 26, 23 }, PICTURE_CHECKED_FIRST + 2 },
    { TOGGLE_SOUND_OFF, GROUP_SOUND, { 129, 39, 33, 23 }, PICTURE_CHECKED_FIRST + 3 },
};

constexpr int KEY_FIELD_SIZE = 33;
constexpr int KEY_NAME_LENGTH = 10;
constexpr int PLAYER_NAME_LENGTH = 20;

/// A column of the ranking: a field for each place, one below the other.
struct RankingColumn {
    int firstId;
    MenuBox top;
    int room;
};

constexpr RankingColumn rankingColumns[] = {
    { FIELD_NAME_FIRST, { 150, 48, 20, 16 }, 154 },
    { FIELD_SCORE_FIRST, { 260, 48, 20, 16 }, 0 },
};
constexpr int RANKING_ROW_HEIGHT = 20;

void CreateCentred(CMenu& page, CImage& picture)
{
    page.MenuCreate((backBuffer.width - picture.width) / 2, (backBuffer.height - picture.height) / 2, &picture);
}

}

bool CSectionMenu::LoadSounds()
{
    for (const SoundFile& sound : menuSounds)
        SoundLoad(sound.id, sound.path);
    return true; // a missing sound is silence, not a failed start
}

bool CSectionMenu::LoadFonts()
{
    // The text images keep using the fonts, so these are never deleted.
    return smallFont.TextImageCreate(CreateVerdana(13, 5), TEXT_GREY_LEVELS, TEXT_GLYPH_SLOTS) &&
           largeFont.TextImageCreate(CreateVerdana(18, 6), TEXT_GREY_LEVELS, TEXT_GLYPH_SLOTS);
}

bool CSectionMenu::LoadImages()
{
    const std::span<CImage> sets[] = { images };
    if (!LoadPictures(sets, menuPictures))
        return false;
    for (const PictureView& view : pictureViews)
        images[view.picture].CreateView(images[view.strip], view.x, 0, view.width, view.height);
    return true;
}

void CSectionMenu::BuildMainMenu()
{
    mainMenu.MenuCreate(0, 0, &images[PICTURE_MAIN_MENU]);
    for (const auto& [id, box, hoverPicture] : mainButtons)
        mainMenu.AddButton({ .id = id,
                             .box = box,
                             .hoverImage = &images[hoverPicture],
                             .hoverSound = SOUND_MENU_HOVER,
                             .clickSound = SOUND_MENU_CLICK });
}

void CSectionMenu::BuildOptionsPage()
{
    CreateCentred(optionsMenu, images[PICTURE_OPTIONS]);
    for (const auto& [id, group, box, checkedPicture] : optionsToggles)
        optionsMenu.AddToggle({ .id = id, .group = group, .box = box, .checkedImage = &images[checkedPicture] });
    for (int i = 0; i < KEY_BINDINGS; ++i)
        optionsMenu.AddText({ .id = FIELD_KEY_FIRST + i,
                              .box = { keyBindings[i].x, keyBindings[i].y, KEY_FIELD_SIZE, KEY_FIELD_SIZE },
                              .font = &largeFont,
                              .colour = TEXT_WHITE,
                              .focusColour = TEXT_YELLOW,
                              .maxLength = KEY_NAME_LENGTH,
                              .align = ALIGN_CENTRE,
                              .mode = KEY_CAPTURE });
}

void CSectionMenu::BuildRankingPage()
{
    CreateCentred(rankingMenu, images[PICTURE_RANKING]);
    for (const auto& [firstId, top, room] : rankingColumns) {
        for (int place = 0; place < RANKING_PLACES; ++place)
            rankingMenu.AddText({ .id = firstId + place,
                                  .box = { top.x, top.y + RANKING_ROW_HEIGHT * place, top.width, top.height },
                                  .font = &smallFont,
                                  .colour = TEXT_WHITE,
                                  .focusColour = TEXT_YELLOW,
                                  .maxLength = PLAYER_NAME_LENGTH,
                                  .room = room,
                                  .align = ALIGN_CENTRE });
    }
}

bool CSectionMenu::BuildPages()
{
    BuildMainMenu();
    BuildOptionsPage();
    BuildRankingPage();
    for (const auto& [page, id, box] : footButtons)
        (this->*page).AddButton({ .id = id, .box = box });
    for (int page = 0; page < HELP_PAGES; ++page) {
        CreateCentred(helpMenus[page], images[PICTURE_HELP_FIRST + page]);
        AddHelpButtons(helpMenus[page], BUTTON_HELP_FIRST, page);
    }
    return true;
}

bool CSectionMenu::DataLoad(bool& done)
{
    static constexpr LoadingStep<CSectionMenu> steps[] = {
        { &CSectionMenu::LoadSounds, "CSectionMenu::DataLoad 0" },
        { &CSectionMenu::LoadFonts, "CSectionMenu::DataLoad 1" },
        { &CSectionMenu::LoadImages, "CSectionMenu::DataLoad 2" },
        { &CSectionMenu::BuildPages, "CSectionMenu::DataLoad 3" },
    };
    return DoLoadingStep(*this, steps, loadStep, done);
}

void CSectionMenu::UnDataLoad()
{
    for (CImage& image : images)
        image.Free();
    mainMenu.MenuFree();
    optionsMenu.MenuFree();
    rankingMenu.MenuFree();
    for (CMenu& page : helpMenus)
        page.MenuFree();
    smallFont.TextImageFree();
    largeFont.TextImageFree();
    WriteLog("CSectionMenu::UnDataLoad");
}
