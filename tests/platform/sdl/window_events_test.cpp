#include "platform/sdl/keyboard.h"
#include "platform/sdl/window_fixture.h"

#include <fstream>
#include <sstream>

using WindowEvents = WindowFixture;

/// However the events fall between the polls of a frame.
TEST_F(WindowEvents, ReachTheGameAsMessages)
{
    std::ifstream file(EVENTS_FILE);
    ASSERT_TRUE(file.is_open());
    for (std::string why, in, out; std::getline(file, why);) {
        if (why.empty() || why[0] == '#')
            continue;
        ASSERT_TRUE(std::getline(file, in) && std::getline(file, out)) << why;
        for (const int polls : { 0, 1, 3 }) {
            TearDown();
            SetUp();
            std::string got = "  ";
            std::istringstream words(in);
            for (std::string word; words >> word;) {
                for (int poll = 0; word[0] != '&' && poll < polls; ++poll)
                    RunMessages();
                if (word == "|")
                    got += RunFrames() + " | ";
                else
                    Push(word.substr(word[0] == '&' ? 1 : 0));
            }
            EXPECT_EQ(got + RunFrames(), out) << why << ", " << polls << " polls";
        }
    }
}

/// SDL's driver without a screen has only the keyboard of the United States.
TEST(VirtualKeys, GoByThePlaceOnLayoutsWithoutLatinLetters)
{
    EXPECT_EQ(VirtualKey({ SDL_SCANCODE_A, 0x0444, 0, 0 }, false), 'A') << "Russian";
    EXPECT_EQ(VirtualKey({ SDL_SCANCODE_W, SDLK_QUOTE, 0, 0 }, false), 'W') << "Hebrew: a mark in a letter's place";
}
