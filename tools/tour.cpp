// Runs the program's own scenes off-screen, as fast as they go, from a script, and writes chosen frames as PNG.
//
//     tour SCRIPT FOLDER
//
// A script line is a frame number and what happens before that frame is processed, or "shot", which writes it:
//     10 key left          a key press: a name below, one letter, or a virtual-key code
//     12 click 200 170     a press of the left mouse button at that place; "move" only moves the mouse
//     20 seed 7            seeds the random generator
//     25 game file.txt     a recorded game's seed and keys, from its first frame; the path is the script's
//     30 char x            a typed character
//     40 shot name         writes FOLDER/name.png after the frame
//     50 end               the program's end
// Lines need not be in order; '#' starts a comment.

#include "app/frame_images.h"
#include "app/game.h"
#include "app/game_window.h"
#include "app/input.h"
#include "app/random.h"
#include "platform/window.h"

#include <png.h>

#include <algorithm>
#include <cctype>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <map>
#include <sstream>
#include <string>
#include <vector>

#include <unistd.h>

namespace
{
struct Command {
    std::string verb;
    std::vector<std::string> arguments;
};
using Script = std::multimap<int, Command>;

const std::map<std::string, int> keyNames = {
    { "left", VK_LEFT },    { "up", VK_UP },      { "right", VK_RIGHT }, { "down", VK_DOWN }, { "space", VK_SPACE },
    { "enter", VK_RETURN }, { "esc", VK_ESCAPE }, { "f1", VK_F1 },       { "back", VK_BACK },
};

int KeyCode(const std::string& text)
{
    const auto named = keyNames.find(text);
    if (named != keyNames.end())
        return named->second;
    if (text.size() == 1)
        return std::toupper(static_cast<unsigned char>(text[0]));
    return std::atoi(text.c_str());
}

int Number(const Command& command, size_t index)
{
    return index < command.arguments.size() ? std::atoi(command.arguments[index].c_str()) : 0;
}

std::string Text(const Command& command)
{
    return command.arguments.empty() ? std::string() : command.arguments[0];
}

/// Adds a recorded game's seed and keys, so that its first frame is that one. False when it cannot be read.
bool AddRecordedGame(Script& script, int firstFrame, const std::filesystem::path& path)
{
    std::ifstream file(path);
    for (std::string word; file >> word;) {
        int frame = 0;
        int key = 0;
        std::string seed;
        if (word == "seed" && file >> seed)
            script.emplace(firstFrame, Command{ "seed", { seed } });
        else if (std::sscanf(word.c_str(), "%d:%d", &frame, &key) == 2)
            script.emplace(firstFrame + frame, Command{ "key", { std::to_string(key) } });
    }
    return file.eof();
}

/// False when it, or a recorded game that it names, cannot be read.
bool ReadScript(const std::filesystem::path& path, Script& script)
{
    std::ifstream file(path);
    for (std::string line; std::getline(file, line);) {
        std::istringstream words(line.substr(0, line.find('#')));
        int frame = 0;
        Command command;
        if (!(words >> frame >> command.verb))
            continue;
        for (std::string word; words >> word;)
            command.arguments.push_back(word);
        if (command.verb != "game")
            script.emplace(frame, command);
        else if (!AddRecordedGame(script, frame, path.parent_path() / Text(command)))
            return false;
    }
    return file.eof();
}

bool WritePng(const CImage& image, const std::string& path)
{
    std::vector<uint8_t> rgb;
    rgb.reserve(static_cast<size_t>(image.width) * static_cast<size_t>(image.height) * 3);
    for (int y = 0; y < image.height; ++y) {
        for (int x = 0; x < image.width; ++x) {
            const int pixel = image.Row(y)[x];
            rgb.push_back(static_cast<uint8_t>((pixel >> 11) * 255 / 31));
            rgb.push_back(static_cast<uint8_t>((pixel >> 5 & 63) * 255 / 63));
            rgb.push_back(static_cast<uint8_t>((pixel & 31) * 255 / 31));
        }
    }
    png_image png = {};
    png.version = PNG_IMAGE_VERSION;
    png.width = static_cast<png_uint_32>(image.width);
    png.height = static_cast<png_uint_32>(image.height);
    png.format = PNG_FORMAT_RGB;
    return png_image_write_to_file(&png, path.c_str(), 0, rgb.data(), 0, nullptr) != 0;
}

void Act(const Command& command)
{
    if (command.verb == "key")
        input.lastKeyDown = KeyCode(Text(command));
    else if (command.verb == "char")
        input.lastChar = Text(command).c_str()[0];
    else if (command.verb == "seed")
        SeedRandom(static_cast<uint32_t>(Number(command, 0)));
    if (command.verb == "click" || command.verb == "move") {
        input.mouseX = Number(command, 0);
        input.mouseY = Number(command, 1);
        input.mouseLeftDown = command.verb == "click";
    }
}

/// Handles waiting messages; false once the program has ended.
bool DispatchMessages()
{
    MSG message = {};
    while (PeekMessageA(&message, nullptr, 0, 0, PM_NOREMOVE)) {
        if (!GetMessageA(&message, nullptr, 0, 0))
            return false;
        DispatchMessageA(&message);
    }
    return true;
}

/// That of the first "end", else of the last command.
int LastFrame(const Script& script)
{
    const auto isEnd = [](const auto& entry) { return entry.second.verb == "end"; };
    const auto end = std::find_if(script.begin(), script.end(), isEnd);
    if (end != script.end())
        return end->first;
    return script.empty() ? 0 : script.rbegin()->first;
}

/// Runs one frame without waiting for its time. False at the end of program or script.
bool RunFrame(int frame, const Script& script, const std::string& folder)
{
    if (!DispatchMessages())
        return false;
    input.hasFocus = true;
    const auto [first, last] = script.equal_range(frame);
    for (auto command = first; command != last; ++command)
        Act(command->second);
    nextFrameTime = 0;
    game.FrameTick();
    for (auto command = first; command != last; ++command) {
        const std::string path = folder + "/" + Text(command->second) + ".png";
        if (command->second.verb == "shot" && !WritePng(backBuffer, path))
            std::cerr << "Cannot write " << path << '\n';
        if (command->second.verb == "end")
            DestroyWindow(gameWindow);
    }
    return true;
}
}

int main(int argc, char** argv)
{
    if (argc != 3) {
        std::cerr << "usage: tour SCRIPT FOLDER\n";
        return 2;
    }
    Script script;
    if (!ReadScript(argv[1], script)) {
        std::cerr << "Cannot read " << argv[1] << '\n';
        return 1;
    }
    std::filesystem::create_directories(argv[2]);
    const std::string folder = std::filesystem::absolute(argv[2]).string(); // the program changes its folder

    setenv("SDL_VIDEODRIVER", "dummy", 0);
    setenv("SDL_AUDIODRIVER", "dummy", 0);
    setenv("XDG_CONFIG_HOME", "/dev/null", 1); // neither read nor change the player's settings
    std::snprintf(game.name, sizeof(game.name), "Tervalis tour %d", getpid()); // may run beside the game and others
    if (!CreateGameWindow(nullptr))
        return 1;
    const int lastFrame = LastFrame(script);
    int frame = 0;
    while (frame <= lastFrame && RunFrame(frame, script, folder))
        ++frame;
    return frame > lastFrame ? 0 : 1;
}
