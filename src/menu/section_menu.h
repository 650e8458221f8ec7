#pragma once

#include "app/section.h"
#include "gfx/image.h"
#include "gfx/text_image.h"
#include "menu/help_page.h"
#include "menu/key_bindings.h"
#include "menu/menu.h"
#include "menu/menu_pictures.h"

#include <array>
#include <cstdint>

/// The product's page, relative to the program's folder, which is the current one.
constexpr char HOME_PAGE[] = "docs\\index.html";

constexpr int RANKING_PLACES = 10;
constexpr int NAME_BYTES = 256;

// Text colours, RGB565.
constexpr uint16_t TEXT_WHITE = 0xFFFF;
constexpr uint16_t TEXT_YELLOW = 0xFFE0;
constexpr uint16_t TEXT_RED = 0xF800;

/// The main menu and its pages: options, ranking, help. It also carries the settings, so it must outlive the
/// application object, which saves them.
class CSectionMenu : public CSection
{
public:
    /// Items of the pages.
    enum ItemId : int {
        BUTTON_HOME_PAGE = 0,
        BUTTON_ONE_PLAYER = 1,
        BUTTON_TWO_PLAYERS = 2,
        BUTTON_RANKING = 3,
        BUTTON_OPTIONS = 4,
        BUTTON_HELP = 5,
        BUTTON_QUIT = 6,
        BUTTON_OPTIONS_OK = 7,
        BUTTON_OPTIONS_CANCEL = 8,
        BUTTON_OPTIONS_DEFAULT = 9,
        GROUP_DISPLAY = 10,
        TOGGLE_WINDOWED = 11,
        TOGGLE_FULL_SCREEN = 12,
        GROUP_SOUND = 13,
        TOGGLE_SOUND_ON = 14,
        TOGGLE_SOUND_OFF = 15,
        FIELD_KEY_FIRST = 16, ///< eight key fields
        BUTTON_RANKING_OK = 24,
        FIELD_NAME_FIRST = 25,  ///< ten places
        FIELD_SCORE_FIRST = 35, ///< ten places
        BUTTON_HELP_FIRST = 45, ///< those of the help pages
    };

    ~CSectionMenu() override { UnDataLoad(); }
    bool SectionBegin() override;
    bool SectionEnd() override;
    bool SectionProcess() override;

    /// One loading step a call, until `done` is set. False when a font or a picture cannot be loaded.
    bool DataLoad(bool& done);
    void UnDataLoad();

    /// Reads every stored value and applies it; an absent one gives its default. Returns the store's result code.
    int SettingsLoad();
    /// Writes every value; nothing until they have been read, for it would replace what is stored by defaults.
    int SettingsSave();
    /// Enters a one-player score that beats the tenth place, and asks for the player's name.
    void RankingInsert(int32_t score);
    /// The record into the ranking page's fields, and the typed names back.
    void RankingPageFill();
    void RankingPageStore();

    // The options page.
    void OptionsPageOpen();
    void OptionsPageProcess();
    void OptionsApply();
    void OptionsDefault();

    CImage images[MENU_IMAGES];
    CMenu mainMenu;
    CMenu optionsMenu;
    CMenu rankingMenu;
    CMenu helpMenus[HELP_PAGES];
    CTextImage smallFont;
    CTextImage largeFont;
    uint32_t twoPlayers = 0; ///< 0 = one-player game, 1 = two-player game
    char rankNames[RANKING_PLACES][NAME_BYTES] = {};
    int32_t rankScores[RANKING_PLACES] = {}; ///< descending
    uint32_t rankEntryPending = 0;           ///< a new score waits for its name
    std::array<uint32_t, KEY_BINDINGS> keys = DefaultKeys();
    bool keyConflict = false;  ///< two bindings on the options page are equal
    bool settingsRead = false; ///< SettingsLoad has succeeded
    bool modeSeen = true;      ///< `isWindowed` when the options page last showed a display mode

private:
    bool LoadSounds();
    bool LoadFonts();
    bool LoadImages();
    bool BuildPages();
    void BuildMainMenu();
    void BuildOptionsPage();
    void BuildRankingPage();

    void DrawBackground();
    bool MainMenuProcess();
    void StartGame(uint32_t secondPlayer);
    void OpenRanking();
    void OpenOptions();
    void OpenHelp();
    void OpenPage(CMenu& page);
    void ClosePage(CMenu& page);
    void HelpPageProcess(int page);
    void PlayAmbience();

    MenuText* FocusedName();
    void RankingPageProcess();

    MenuText& KeyField(int binding);
    void ShowDisplayMode(bool windowed);
    void ShowOptions(bool windowed, bool soundOn, const std::array<uint32_t, KEY_BINDINGS>& shownKeys);
    void MarkKeyConflicts();
    void AdvanceKeyFocus();

    int32_t loadStep = 0; ///< the next step of DataLoad
};

extern CSectionMenu sectionMenu;
