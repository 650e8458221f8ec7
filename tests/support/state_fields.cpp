#include "support/state_fields.h"

#include "app/frame_images.h"
#include "app/input.h"
#include "app/random.h"
#include "app/scenes.h"
#include "app/section_load.h"
#include "game/section_main.h"
#include "game/water.h"
#include "gfx/display.h"
#include "gfx/error.h"
#include "menu/section_menu.h"
#include "sound/sound.h"

#include <cstring>
#include <initializer_list>
#include <stdexcept>

namespace
{
/// What a field may refer to.
struct Target {
    Target(bool& value) : flag(&value) {}
    Target(int32_t& value) : number(&value) {}
    Target(uint32_t& value) : number(reinterpret_cast<int32_t*>(&value)) {}

    bool* flag = nullptr;
    int32_t* number = nullptr;
};

/// A row of FieldList::Add, named after the field.
#define FIELD(owner, field)                                                                                            \
    {                                                                                                                  \
#field, owner.field                                                                                            \
    }

class FieldList
{
public:
    void Add(const std::string& name, Target target) { fields.push_back({ name, target.flag, target.number, {} }); }
    void Add(const std::string& owner, std::initializer_list<std::pair<const char*, Target>> rows)
    {
        for (const auto& [name, target] : rows)
            Add(owner + "." + name, target);
    }
    void AddText(const std::string& name, std::string text) { fields.push_back({ name, {}, {}, std::move(text) }); }

    std::vector<StateField> fields;
};

void AddProgram(FieldList& list)
{
    const auto sceneName = currentSection == &sectionMain   ? "game"
                           : currentSection == &sectionMenu ? "menu"
                                                            : "loading";
    list.AddText("scene", sceneName);
    list.AddText("muted", std::to_string(SoundGetMute()));
    list.AddText("random", std::to_string(RandomState()));
    list.Add("windowed", isWindowed);
    list.Add("lastError", lastError);
    list.Add("captureScreen", captureScreen);
    list.Add("input",
             { FIELD(input, mouseX), FIELD(input, mouseY), FIELD(input, mouseLeftDown), FIELD(input, mouseRightDown),
               FIELD(input, lastKeyDown), FIELD(input, lastKeyUp), FIELD(input, hasFocus) });
}

void AddSnake(FieldList& list, const std::string& name, CSnake& s)
{
    list.Add(name, { FIELD(s, isOut),           FIELD(s, isPaused),   FIELD(s, isWaiting),   FIELD(s, startPressed),
                     FIELD(s, slowDownPending), FIELD(s, isActive),   FIELD(s, length),      FIELD(s, arrowBlink),
                     FIELD(s, eyeFrame),        FIELD(s, isDying),    FIELD(s, deathFrames), FIELD(s, movedFrames),
                     FIELD(s, lives),           FIELD(s, lastColour), FIELD(s, streak),      FIELD(s, pendingEffect),
                     FIELD(s, score),           FIELD(s, rainTimer),  FIELD(s, shrinkCount), FIELD(s, speedUpTimer),
                     FIELD(s, turnCount),       FIELD(s, speed),      FIELD(s, frameCount),  FIELD(s, player) });
    for (int i = 0; i < s.length; ++i) {
        list.Add(At(name + ".x", i), s.segments[i].x);
        list.Add(At(name + ".y", i), s.segments[i].y);
        list.Add(At(name + ".dir", i), s.segments[i].dir);
    }
    for (int i = 0; i < s.turnCount; ++i)
        list.Add(At(name + ".turn", i), s.turnQueue[i]);
    list.AddText(name + ".pictures",
                 std::to_string(s.bodyImage.width + s.shadowImage.width) + (s.arrowImages[0].pixels ? "+arrows" : ""));
}

void AddMenu(FieldList& list, const std::string& name, CMenu& menu)
{
    list.Add(name, { FIELD(menu, x), FIELD(menu, y), FIELD(menu, isVisible), FIELD(menu, isActive),
                     FIELD(menu, hoveredButton), FIELD(menu, hoveredToggle), FIELD(menu, cursorBlink) });
    for (int i = 0; i < menu.toggleCount; ++i)
        list.Add(At(name + ".checked", menu.toggles[i].id), menu.toggles[i].checked);
    for (int i = 0; i < menu.textCount; ++i) {
        MenuText& item = menu.texts[i];
        list.AddText(At(name + ".text", item.id), item.text);
        list.AddText(At(name + ".colour", item.id), std::to_string(item.colour));
        list.Add(At(name + ".focused", item.id), item.focused);
        list.Add(At(name + ".key", item.id), item.key);
    }
}

void AddStatusBar(FieldList& list, CStatusBar& bar)
{
    list.Add("bar", { FIELD(bar, level), FIELD(bar, target), FIELD(bar, prevTarget), FIELD(bar, coilWait),
                      FIELD(bar, countUp), FIELD(bar, panelOpen), FIELD(bar, berryCountdown) });
    for (int i = 0; i < 2; ++i)
        list.Add(At("bar.lifeMark", i), bar.lifeMark[i]);
    AddMenu(list, "leftPanel", bar.leftPanel);
    AddMenu(list, "pausedPanel", bar.pausedPanel);
    AddMenu(list, "confirmPanel", bar.confirmPanel);
    AddMenu(list, "levelClearedPanel", bar.levelClearedPanel);
    AddMenu(list, "nextLevelPanel", bar.nextLevelPanel);
    for (int page = 0; page < HELP_PAGES; ++page)
        AddMenu(list, At("helpPanel", page), bar.helpPanels[page]);
    AddMenu(list, "gameOverPanel", bar.gameOverPanel);
}

void AddObjects(FieldList& list, CPond& pond)
{
    for (int i = 0; i < CELL_COUNT; ++i) {
        Cell& cell = pond.cells[i];
        list.Add(At("cell", i), { FIELD(cell, occupied), FIELD(cell, ripe), FIELD(cell, colour), FIELD(cell, age),
                                  FIELD(cell, growth), FIELD(cell, splashed) });
    }
    for (int i = 0; i < static_cast<int>(std::size(pond.lasers)); ++i) {
        Laser& laser = pond.lasers[i];
        list.Add(At("laser", i), { FIELD(laser, active), FIELD(laser, x), FIELD(laser, y), FIELD(laser, heading),
                                   FIELD(laser, frame), FIELD(laser, hit) });
    }
    for (int i = 0; i < static_cast<int>(std::size(pond.popups)); ++i) {
        Popup& popup = pond.popups[i];
        list.Add(At("popup", i),
                 { FIELD(popup, active), FIELD(popup, x), FIELD(popup, y), FIELD(popup, kind), FIELD(popup, opacity) });
    }
    for (int i = 0; i < HIGHLIGHTS; ++i)
        list.Add(At("highlight", i), pond.highlight[i]);
}

void AddPond(FieldList& list, CPond& pond)
{
    list.Add("pond", { FIELD(pond, players), FIELD(pond, gameOver), FIELD(pond, fadeOut), FIELD(pond, isDay),
                       FIELD(pond, transition), FIELD(pond, dayTimer), FIELD(pond, introFrames),
                       FIELD(pond, highlightNext), FIELD(scenery, moonToggle), FIELD(scenery, moonY) });
    list.Add("pond.blinkCounter", blinkCounter);
    list.Add("shockwave", { FIELD(pond.shockwave, x), FIELD(pond.shockwave, y), FIELD(pond.shockwave, radius),
                            FIELD(pond.shockwave, maxRadius) });
    for (int i = 0; i < 2; ++i)
        list.AddText(At("moon", i), std::to_string(pond.moonImages[i].opacity));
    AddSnake(list, "snake[0]", pond.snake[0]);
    AddSnake(list, "snake[1]", pond.snake[1]);
    AddStatusBar(list, pond.statusBar);
    AddObjects(list, pond);
}

/// Its heights are the pixels of two global images, which are gone once the program has ended.
void AddWater(FieldList& list)
{
    if (waterBufferA.pixels == nullptr || water.current == nullptr)
        return;
    Checksum sum;
    sum.AddBytes(water.current, static_cast<size_t>(water.fieldBytes));
    sum.AddBytes(water.previous, static_cast<size_t>(water.fieldBytes));
    list.AddText("water", std::to_string(sum.Value()));
}

void AddMenuScene(FieldList& list)
{
    CSectionMenu& menu = sectionMenu;
    AddMenu(list, "mainMenu", menu.mainMenu);
    AddMenu(list, "optionsMenu", menu.optionsMenu);
    AddMenu(list, "rankingMenu", menu.rankingMenu);
    for (int page = 0; page < HELP_PAGES; ++page)
        AddMenu(list, At("helpMenu", page), menu.helpMenus[page]);
    list.Add("menu", { FIELD(menu, twoPlayers), FIELD(menu, rankEntryPending), FIELD(menu, keyConflict) });
    for (int i = 0; i < KEY_BINDINGS; ++i)
        list.Add(At("menu.key", i), menu.keys[static_cast<size_t>(i)]);
    for (int i = 0; i < RANKING_PLACES; ++i) {
        list.AddText(At("menu.rankName", i), menu.rankNames[i]);
        list.Add(At("menu.rankScore", i), menu.rankScores[i]);
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
    else
        throw std::runtime_error(name + " cannot be set");
}

std::vector<StateField> StateFields()
{
    FieldList list;
    AddProgram(list);
    AddPond(list, sectionMain.pond);
    AddWater(list);
    AddMenuScene(list);
    return std::move(list.fields);
}

const StateField* FindField(const std::vector<StateField>& fields, const std::string& name)
{
    for (const StateField& field : fields)
        if (field.name == name)
            return &field;
    return nullptr;
}

void Checksum::Add(const std::string& text)
{
    AddBytes(text.data(), text.size());
    Add(text.size());
}

void Checksum::AddBytes(const void* bytes, size_t count)
{
    const auto* rest = static_cast<const uint8_t*>(bytes);
    for (; count >= sizeof(uint64_t); count -= sizeof(uint64_t), rest += sizeof(uint64_t)) {
        uint64_t word = 0;
        std::memcpy(&word, rest, sizeof word);
        Add(word);
    }
    for (; count > 0; --count)
        Add(uint64_t{ *rest++ });
}
