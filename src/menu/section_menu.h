#pragma once

#include "app/section.h"
#include "gfx/image.h"
#include "gfx/text_image.h"
#include "menu/help_page.h"
#include "menu/menu.h"
#include "menu/menu_pictures.h"
#include "menu/settings.h"

#include <array>
#include <cstdint>

/// The product's page, relative to the program's folder, which is the current one.
constexpr char HOME_PAGE[] = "docs\\index.html";

/// The main menu and its pages: options, ranking, help. It also carries the settings, so it must outlive the
/// application object, which saves them.
class CSectionMenu : public CSection
{
public:
    ~CSectionMenu() override;
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
