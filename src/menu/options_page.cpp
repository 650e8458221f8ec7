#include "app/input.h"
#include "app/mode_switch.h"
#include "gfx/display.h"
#include "menu/section_menu.h"
#include "platform/window.h"
#include "sound/sound.h"

MenuText& CSectionMenu::KeyField(int binding)
{
    return *optionsMenu.FindText(FIELD_KEY_FIRST + binding);
}

void CSectionMenu::ShowDisplayMode(bool windowed)
{
    optionsMenu.FindToggle(TOGGLE_WINDOWED)->checked = windowed;
    optionsMenu.FindToggle(TOGGLE_FULL_SCREEN)->checked = !windowed;
    modeSeen = isWindowed;
}

void CSectionMenu::ShowOptions(bool windowed, bool soundOn, const std::array<uint32_t, KEY_BINDINGS>& shownKeys)
{
    ShowDisplayMode(windowed);
    optionsMenu.FindToggle(TOGGLE_SOUND_ON)->checked = soundOn;
    optionsMenu.FindToggle(TOGGLE_SOUND_OFF)->checked = !soundOn;
    for (int i = 0; i < KEY_BINDINGS; ++i) {
        KeyField(i).focused = i == 0;
        KeyField(i).key = static_cast<int32_t>(shownKeys[static_cast<size_t>(i)]);
    }
}

void CSectionMenu::OptionsPageOpen()
{
    ShowOptions(isWindowed, SoundGetMute() == 0, keys);
}

void CSectionMenu::OptionsDefault()
{
    ShowOptions(true, true, DefaultKeys());
}

void CSectionMenu::OptionsPageProcess()
{
    if (isWindowed != modeSeen) // Alt+Enter is the player's latest choice; OK must not take it back
        ShowDisplayMode(isWindowed);
    MenuButton& ok = *optionsMenu.FindButton(BUTTON_OPTIONS_OK);
    MenuButton& cancel = *optionsMenu.FindButton(BUTTON_OPTIONS_CANCEL);
    // None of these keys can be bound.
    if (input.TakeKey({ VK_SPACE, VK_RETURN }))
        ok.clicked = true;
    else if (input.TakeKey({ VK_ESCAPE }))
        cancel.clicked = true;

    if (ok.clicked) {
        if (!keyConflict) {
            ClosePage(optionsMenu);
            OptionsApply();
            SettingsSave();
        }
    } else if (cancel.clicked) {
        ClosePage(optionsMenu);
    } else if (optionsMenu.FindButton(BUTTON_OPTIONS_DEFAULT)->clicked) {
        OptionsDefault();
    }
    MarkKeyConflicts();
    AdvanceKeyFocus();
}

void CSectionMenu::MarkKeyConflicts()
{
    keyConflict = false;
    for (int i = 0; i < KEY_BINDINGS; ++i)
        KeyField(i).colour = TEXT_WHITE;
    for (int i = 0; i < KEY_BINDINGS; ++i) {
        for (int k = i + 1; k < KEY_BINDINGS; ++k) {
            if (KeyField(i).key != KeyField(k).key)
                continue;
            keyConflict = true;
            KeyField(i).colour = TEXT_RED;
            KeyField(k).colour = TEXT_RED;
        }
    }
}

/// A captured key hands the focus to the next field.
void CSectionMenu::AdvanceKeyFocus()
{
    for (int i = 0; i < KEY_BINDINGS; ++i) {
        if (!KeyField(i).changed)
            continue;
        KeyField(i).focused = false;
        KeyField((i + 1) % KEY_BINDINGS).focused = true;
        return;
    }
}

void CSectionMenu::OptionsApply()
{
    if (optionsMenu.FindToggle(TOGGLE_WINDOWED)->checked)
        ApplyDisplayMode(true);
    else if (optionsMenu.FindToggle(TOGGLE_FULL_SCREEN)->checked)
        ApplyDisplayMode(false);
    // While muted, play and stop do nothing: unmute before the music starts, stop it before muting.
    if (optionsMenu.FindToggle(TOGGLE_SOUND_ON)->checked) {
        SoundSetMute(0);
        SoundPlay(SOUND_MUSIC, true);
    } else if (optionsMenu.FindToggle(TOGGLE_SOUND_OFF)->checked) {
        SoundStop(SOUND_MUSIC);
        SoundSetMute(1);
    }
    for (int i = 0; i < KEY_BINDINGS; ++i)
        keys[static_cast<size_t>(i)] = static_cast<uint32_t>(KeyField(i).key);
}
