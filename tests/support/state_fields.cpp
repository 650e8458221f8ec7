#include "support/state_fields.h"

#include "app/frame_images.h"
#include "app/input.h"
#include "app/random.h"
#include "app/scenes.h"
#include "game/section_main.h"
#include "game/water.h"
#include "gfx/display.h"
#include "gfx/error.h"
#include "menu/section_menu.h"
#include "sound/sound.h"

#include <cstring>
#include <initializer_list>

namespace
{
using Row = std::pair<const char*, StateField>;
/// A field under its own name.
#define FIELD(owner, field) Row(#field, owner.field)

void Add(StateFields& fields, const std::string& owner, std::initializer_list<Row> rows)
{
    for (const auto& [name, field] : rows)
        fields.emplace(owner + "." + name, field);
}

void AddProgram(StateFields& fields)
{
    const auto sceneName = currentSection == &sectionMain   ? "game"
                           : currentSection == &sectionMenu ? "menu"
                                                            : "loading";
    fields.emplace("scene", sceneName);
    fields.emplace("muted", std::to_string(SoundGetMute()));
    fields.emplace("random", std::to_string(RandomState()));
    fields.emplace("windowed", isWindowed);
    fields.emplace("lastError", lastError);
    fields.emplace("captureScreen", captureScreen);
    const HCURSOR cursor = SetCursor(nullptr); // which tells the one before
    SetCursor(cursor);
    fields.emplace("cursor", std::to_string(requestedSection != nullptr && cursor != nullptr));
    fields.emplace("mouseIdleFrames", sectionMain.mouseIdleFrames);
    Add(fields, "input",
        { FIELD(input, mouseX), FIELD(input, mouseY), FIELD(input, mouseLeftDown), FIELD(input, mouseRightDown),
          FIELD(input, lastKeyDown), FIELD(input, lastKeyUp), FIELD(input, hasFocus) });
}

void AddSnake(StateFields& fields, const std::string& name, CSnake& s)
{
    Add(fields, name, { FIELD(s, isOut),           FIELD(s, isPaused),   FIELD(s, isWaiting),   FIELD(s, startPressed),
                        FIELD(s, slowDownPending), FIELD(s, isActive),   FIELD(s, length),      FIELD(s, arrowBlink),
                        FIELD(s, eyeFrame),        FIELD(s, isDying),    FIELD(s, deathFrames), FIELD(s, movedFrames),
                        FIELD(s, lives),           FIELD(s, lastColour), FIELD(s, streak),      FIELD(s, pendingEffect),
                        FIELD(s, score),           FIELD(s, rainTimer),  FIELD(s, shrinkCount), FIELD(s, speedUpTimer),
                        FIELD(s, turnCount),       FIELD(s, speed),      FIELD(s, frameCount),  FIELD(s, player) });
    for (int i = 0; i < s.length; ++i) {
        fields.emplace(At(name + ".x", i), s.segments[i].x);
        fields.emplace(At(name + ".y", i), s.segments[i].y);
        fields.emplace(At(name + ".dir", i), s.segments[i].dir);
    }
    for (int i = 0; i < s.turnCount; ++i)
        fields.emplace(At(name + ".turn", i), s.turnQueue[i]);
    fields.emplace(name + ".pictures", std::to_string(s.bodyImage.width + s.shadowImage.width) +
                                           (s.arrowImages[0].pixels ? "+arrows" : ""));
}

void AddMenu(StateFields& fields, const std::string& name, CMenu& menu)
{
    Add(fields, name,
        { FIELD(menu, x), FIELD(menu, y), FIELD(menu, isVisible), FIELD(menu, isActive), FIELD(menu, hoveredButton),
          FIELD(menu, hoveredToggle), FIELD(menu, cursorBlink) });
    for (int i = 0; i < menu.toggleCount; ++i)
        fields.emplace(At(name + ".checked", menu.toggles[i].id), menu.toggles[i].checked);
    for (int i = 0; i < menu.textCount; ++i) {
        MenuText& item = menu.texts[i];
        fields.emplace(At(name + ".text", item.id), item.text);
        fields.emplace(At(name + ".colour", item.id), std::to_string(item.colour));
        fields.emplace(At(name + ".focused", item.id), item.focused);
        fields.emplace(At(name + ".key", item.id), item.key);
    }
}

void AddStatusBar(StateFields& fields, CStatusBar& bar)
{
    Add(fields, "bar",
        { FIELD(bar, level), FIELD(bar, target), FIELD(bar, prevTarget), FIELD(bar, coilWait), FIELD(bar, countUp),
          FIELD(bar, panelOpen), FIELD(bar, berryCountdown) });
    for (int i = 0; i < 2; ++i)
        fields.emplace(At("bar.lifeMark", i), bar.lifeMark[i]);
    AddMenu(fields, "leftPanel", bar.leftPanel);
    AddMenu(fields, "pausedPanel", bar.pausedPanel);
    AddMenu(fields, "confirmPanel", bar.confirmPanel);
    AddMenu(fields, "levelClearedPanel", bar.levelClearedPanel);
    AddMenu(fields, "nextLevelPanel", bar.nextLevelPanel);
    for (int page = 0; page < HELP_PAGES; ++page)
        AddMenu(fields, At("helpPanel", page), bar.helpPanels[page]);
    AddMenu(fields, "gameOverPanel", bar.gameOverPanel);
}

void AddObjects(StateFields& fields, CPond& pond)
{
    for (int i = 0; auto& cell : pond.cells)
        Add(fields, At("cell", i++),
            { FIELD(cell, occupied), FIELD(cell, ripe), FIELD(cell, colour), FIELD(cell, age), FIELD(cell, growth),
              FIELD(cell, splashed) });
    for (int i = 0; auto& laser : pond.lasers)
        Add(fields, At("laser", i++),
            { FIELD(laser, active), FIELD(laser, x), FIELD(laser, y), FIELD(laser, heading), FIELD(laser, frame),
              FIELD(laser, hit) });
    for (int i = 0; auto& popup : pond.popups)
        Add(fields, At("popup", i++),
            { FIELD(popup, active), FIELD(popup, x), FIELD(popup, y), FIELD(popup, kind), FIELD(popup, opacity) });
    for (int i = 0; i < HIGHLIGHTS; ++i)
        fields.emplace(At("highlight", i), pond.highlight[i]);
}

void AddPond(StateFields& fields, CPond& pond)
{
    Add(fields, "pond",
        { FIELD(pond, players), FIELD(pond, gameOver), FIELD(pond, fadeOut), FIELD(pond, isDay),
          FIELD(pond, transition), FIELD(pond, dayTimer), FIELD(pond, introFrames), FIELD(pond, highlightNext),
          FIELD(scenery, moonToggle), FIELD(scenery, moonY) });
    fields.emplace("pond.blinkCounter", blinkCounter);
    Add(fields, "shockwave",
        { FIELD(pond.shockwave, x), FIELD(pond.shockwave, y), FIELD(pond.shockwave, radius),
          FIELD(pond.shockwave, maxRadius) });
    for (int i = 0; i < 2; ++i)
        fields.emplace(At("moon", i), pond.moonImages[i].opacity);
    AddSnake(fields, "snake[0]", pond.snake[0]);
    AddSnake(fields, "snake[1]", pond.snake[1]);
    AddStatusBar(fields, pond.statusBar);
    AddObjects(fields, pond);
}

/// Its heights are the pixels of two global images, which are gone once the program has ended.
void AddWater(StateFields& fields)
{
    if (waterBufferA.pixels == nullptr || water.current == nullptr)
        return;
    Checksum sum;
    sum.AddBytes(water.current, static_cast<size_t>(water.fieldBytes));
    sum.AddBytes(water.previous, static_cast<size_t>(water.fieldBytes));
    fields.emplace("water", std::to_string(sum.Value()));
}

void AddMenuScene(StateFields& fields)
{
    CSectionMenu& menu = sectionMenu;
    AddMenu(fields, "mainMenu", menu.mainMenu);
    AddMenu(fields, "optionsMenu", menu.optionsMenu);
    AddMenu(fields, "rankingMenu", menu.rankingMenu);
    for (int page = 0; page < HELP_PAGES; ++page)
        AddMenu(fields, At("helpMenu", page), menu.helpMenus[page]);
    Add(fields, "menu", { FIELD(menu, twoPlayers), FIELD(menu, rankEntryPending), FIELD(menu, keyConflict) });
    for (int i = 0; i < KEY_BINDINGS; ++i)
        fields.emplace(At("menu.key", i), menu.keys[static_cast<size_t>(i)]);
    for (int i = 0; i < RANKING_PLACES; ++i) {
        fields.emplace(At("menu.rankName", i), menu.rankNames[i]);
        fields.emplace(At("menu.rankScore", i), menu.rankScores[i]);
    }
}
}

std::string At(const std::string& name, int index)
{
    return name + '[' + std::to_string(index) + ']';
}

std::string StateField::Value() const
{
    return flag == nullptr && number == nullptr && !text.empty() ? text : std::to_string(Number());
}

void StateField::Set(int value) const
{
    if (flag != nullptr)
        *flag = value != 0;
    else if (number != nullptr)
        *number = value;
}

StateFields ProgramState()
{
    StateFields fields;
    AddProgram(fields);
    AddPond(fields, sectionMain.pond);
    AddWater(fields);
    AddMenuScene(fields);
    return fields;
}

void Checksum::Add(const std::string& text)
{
    AddBytes(text.data(), text.size());
    Add(text.size());
}

void Checksum::AddBytes(const void* bytes, size_t count)
{
    const auto* rest = static_cast<const uint8_t*>(bytes);
    for (size_t size = 0; count > 0; count -= size, rest += size) {
        size = count < sizeof(uint64_t) ? 1 : sizeof(uint64_t);
        uint64_t word = 0;
        std::memcpy(&word, rest, size);
        Add(word);
    }
}
