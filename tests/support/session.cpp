#include "support/session.h"

#include "app/frame_images.h"
#include "app/game.h"
#include "app/game_window.h"
#include "app/input.h"
#include "app/log.h"
#include "app/random.h"
#include "app/scenes.h"
#include "app/section_load.h"
#include "game/geometry.h"
#include "game/section_main.h"
#include "game/water.h"
#include "gfx/display.h"
#include "gfx/error.h"
#include "menu/section_menu.h"
#include "res/pack_file.h"
#include "sound/sound.h"
#include "support/sounds_heard.h"
#include "support/test_pictures.h"
#include "support/test_system.h"

#include <cctype>
#include <filesystem>
#include <fstream>
#include <memory>
#include <sstream>
#include <stdexcept>
#include <utility>

namespace
{
/// What an action makes a message of; its numbers are a place of the mouse.
struct MessageRow {
    const char* verb;
    UINT message;
    WPARAM wParam;
};
constexpr MessageRow messages[] = {
    { "focus", WM_SETFOCUS, 0 },
    { "blur", WM_KILLFOCUS, 0 },
    { "altEnter", WM_SYSKEYUP, VK_RETURN },
    { "altF", WM_SYSKEYUP, 'F' },
    { "maximise", WM_SYSCOMMAND, SC_MAXIMIZE },
    { "titleDoubleClick", WM_NCLBUTTONDBLCLK, 0 },
    { "close", WM_CLOSE, 0 },
    { "move", WM_MOUSEMOVE, 0 },
    { "press", WM_LBUTTONDOWN, 0 },
    { "release", WM_LBUTTONUP, 0 },
    { "pressRight", WM_RBUTTONDOWN, 0 },
    { "releaseRight", WM_RBUTTONUP, 0 },
    { "click", WM_LBUTTONDOWN, 0 },
};

/// Made once for all sessions: pictures are many files.
const TempFolder& ProgramFolder()
{
    static const TestPictures pictures;
    return pictures.folder;
}

/// As at the program's start.
template <typename Object, typename... Arguments>
void Rebuild(Object& object, Arguments... arguments)
{
    std::destroy_at(&object);
    std::construct_at(&object, arguments...);
}
}

Session::Session(int players, uint32_t seed) : folderBefore(std::filesystem::current_path().string())
{
    const TempFolder& folder = ProgramFolder();
    ResetProgram();
    UseTestSystem(folder);
    folder.Write("Dat/Image.xpf", std::string("FPX_\0\0\0\0", 8)); // every picture is a loose file
    if (!CreateGameWindow(nullptr)) {
        if (requestedSection != nullptr)
            throw std::logic_error("a start that failed has left its window");
        Close();
        throw std::runtime_error("the program cannot start");
    }
    std::filesystem::current_path(folder.Path()); // for the program has gone to its own
    ClearLog();
    backBuffer.Fill(0x1234); // whatever it shows is drawn
    SoundSetMute(0);
    soundsHeard = {};
    input = InputState{};
    SeedRandom(seed);
    if (players == Recording::FROM_START)
        return;
    while (requestedSection != &sectionMenu)
        Frame();
    blinkCounter = 0;
    sectionMenu.twoPlayers = static_cast<uint32_t>(players);
    requestedSection = &sectionMain;
    SeedRandom(seed);
}

Session::~Session()
{
    Close();
    LeaveTestSystem();
    std::filesystem::current_path(folderBefore);
}

/// As at the program's start, whatever ran in this process before.
void Session::ResetProgram()
{
    Rebuild(sectionMenu);
    Rebuild(sectionMain);
    Rebuild(sectionLoad);
    requestedSection = &sectionLoad;
    currentSection = nullptr;
    menuLoaded = pondLoaded = statusBarLoaded = false;
    captureScreen = false;
    isWindowed = true;
    lastError = 0;
    scenery = SceneryState{};
    water = WaterState{};
    blinkCounter = 0;
}

bool Session::IsRunning() const
{
    return isOpen && requestedSection != nullptr;
}

void Session::Send(unsigned message, uintptr_t wParam, intptr_t lParam)
{
    if (IsRunning() && game.WndProc(gameWindow, message, wParam, lParam) != 0)
        throw std::logic_error("a message that is handled is answered by 0");
}

/// key CODE, type TEXT (one character), move|press|release|click X Y, set FIELD NUMBER, or a row of `messages`.
void Session::Do(const Action& action)
{
    std::istringstream arguments(action.arguments);
    std::string name;
    int first = 0;
    int second = 0;
    if (action.verb == "set" && arguments >> name >> first)
        return Field(name).Set(first);
    if (action.verb == "type") {
        const int character = action.arguments[0];
        Send(WM_KEYDOWN, static_cast<WPARAM>(std::toupper(character)));
        return Send(WM_CHAR, static_cast<WPARAM>(character));
    }
    arguments >> first >> second;
    if (action.verb == "key" || action.verb == "keyUp")
        Send(action.verb == "key" ? WM_KEYDOWN : WM_KEYUP, static_cast<WPARAM>(first));
    for (const MessageRow& row : messages)
        if (action.verb == row.verb)
            Send(row.message, row.wParam, MAKELPARAM(first, second));
    if (action.verb == "key" || action.verb == "click")
        releases.push_back({ 0, action.verb == "key" ? "keyUp" : "release", action.arguments });
}

void Session::Frame()
{
    nextFrameTime = 0; // due
    game.FrameTick();
    if (!IsRunning())
        input = InputState{}; // what a window is told while it goes differs between systems
    for (const Action& release : std::exchange(releases, {}))
        Do(release);
}

void Session::Close()
{
    if (!isOpen)
        return;
    if (requestedSection != nullptr)
        DestroyWindow(gameWindow);
    if (RunMessageLoop() != 0)
        throw std::logic_error("the program ends with another code than 0");
    isOpen = false;
    input = InputState{};                                         // as in Frame
    Rebuild(game, "Tervalis", SCREEN_WIDTH, SCREEN_HEIGHT, true); // saves the settings
    instanceMutex = nullptr;
    packTable[0].Close(); // or its file could not be removed on every system
}

StateFields Session::Fields() const
{
    StateFields fields = ProgramState();
    for (size_t id = 0; id < soundsHeard.plays.size(); ++id)
        fields.emplace(At("plays", static_cast<int>(id)), soundsHeard.plays[id]);
    fields.merge(StoredSettings());
    std::ifstream log(ProgramFolder().Path() + "/Log.txt");
    std::string line;
    for (int number = 0; std::getline(log, line); ++number)
        fields.emplace(At("log", number), line);
    return fields;
}

StateField Session::Field(const std::string& name)
{
    if (!known.contains(name))
        known = Fields();
    if (!known.contains(name))
        throw std::runtime_error("there is no field " + name);
    return known.at(name);
}
