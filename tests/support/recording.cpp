#include "support/recording.h"

#include <fstream>
#include <sstream>
#include <stdexcept>

// The text form, a line each:
//   about Two snakes die in one frame
//   seed 17
//   players 1                     not when it begins with the program's start
//   frames 250
//   at 61 key 37
//   at 90 set snake[0].score 495
//   shows snake[0].isDying = 1, snake[1].isDying = 1
//   stretch 100 1c0f.. 87aa.. 00f1..
//    snake[0].length 6            what has changed since the stretch before

namespace
{
std::string Rest(std::istream& line)
{
    std::string rest;
    std::getline(line >> std::ws, rest);
    return rest;
}

void ReadLine(const std::string& text, Recording& recording)
{
    std::istringstream line(text);
    std::string word;
    line >> word;
    if (text.starts_with(' '))
        recording.stretches.back().changes[word] = Rest(line);
    else if (word == "about")
        recording.about = Rest(line);
    else if (word == "seed")
        line >> recording.seed;
    else if (word == "players")
        line >> recording.players;
    else if (word == "frames")
        line >> recording.frames;
    else if (word == "at") {
        Action& action = recording.actions.emplace_back();
        line >> action.frame >> action.verb;
        action.arguments = Rest(line);
    } else if (word == "shows")
        recording.shows.push_back(Rest(line));
    else if (word == "stretch") {
        Stretch& stretch = recording.stretches.emplace_back();
        line >> stretch.frame >> std::hex >> stretch.state >> stretch.picture >> stretch.sounds;
    } else
        throw std::runtime_error("not a line of a recording: " + text);
}
}

Recording ReadRecording(const std::string& path)
{
    std::ifstream file(path);
    Recording recording;
    for (std::string line; std::getline(file, line);)
        ReadLine(line, recording);
    if (recording.frames == 0)
        throw std::runtime_error(path + ": no recording");
    return recording;
}

void WriteRecording(const Recording& recording, const std::string& path)
{
    std::ofstream file(path, std::ios::binary);
    file << "about " << recording.about << "\nseed " << recording.seed;
    if (recording.players != Recording::FROM_START)
        file << "\nplayers " << recording.players;
    file << "\nframes " << recording.frames;
    for (const Action& action : recording.actions)
        file << "\nat " << action.frame << ' ' << action.verb << ' ' << action.arguments;
    for (const std::string& condition : recording.shows)
        file << "\nshows " << condition;
    for (const Stretch& stretch : recording.stretches)
        file << Text(stretch);
    if (!(file << '\n').flush())
        throw std::runtime_error(path + ": cannot be written");
}

std::string Text(const Stretch& stretch)
{
    std::ostringstream text;
    text << "\nstretch " << stretch.frame << std::hex << ' ' << stretch.state << ' ' << stretch.picture << ' '
         << stretch.sounds;
    for (const auto& [name, value] : stretch.changes)
        text << "\n " << name << ' ' << value;
    return text.str();
}
