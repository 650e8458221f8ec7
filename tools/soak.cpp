// Lets the bot play game after game of one and of two players, and watches the memory that the program takes.
//
//     soak FRAMES      fails when it has grown after the first hundred thousand frames

#include "bot.h"

#include "app/scenes.h"
#include "game/section_main.h"
#include "menu/section_menu.h"
#include "support/session.h"

#include <cstdio>
#include <cstdlib>
#include <malloc.h>
#include <unistd.h>

namespace
{
constexpr long WARM_UP = 100'000;    ///< frames
constexpr long MOST_GROWTH = 256;    ///< KB: pages that the allocator holds rather than gives back
constexpr int LONGEST_GAME = 20'000; ///< frames

long ResidentKilobytes()
{
    long pages = 0;
    if (std::FILE* file = std::fopen("/proc/self/statm", "r")) {
        if (std::fscanf(file, "%*d %ld", &pages) != 1)
            pages = 0;
        std::fclose(file);
    }
    return pages * sysconf(_SC_PAGESIZE) / 1024;
}

/// One game; the frames it took.
int PlayGame(Session& session, int number)
{
    sectionMenu.twoPlayers = static_cast<uint32_t>(number % 2);
    RequestGame();
    Bot bot(sectionMain.pond, { .firesAtGold = number % 3 == 0, .recklessFrom = LONGEST_GAME - 2'000 });
    int frame = 0;
    for (; frame < LONGEST_GAME && (frame == 0 || currentSection == &sectionMain); ++frame) {
        if (const int key = frame > 0 ? bot.NextKey(frame) : 0)
            session.Do({ frame, "key", std::to_string(key) });
        session.Frame();
        if (sectionMain.pond.gameOver)
            break;
    }
    RequestMenu();
    session.Frame();
    return frame;
}
}

int main(int argc, char** argv)
{
    const long frames = argc > 1 ? std::atol(argv[1]) : 1'000'000;
    Session session(0, 1);
    long before = 0;
    int game = 0;
    for (long played = 0, shown = 0; played < frames; ++game) {
        played += PlayGame(session, game);
        if (played / WARM_UP == shown)
            continue;
        shown = played / WARM_UP;
        malloc_trim(0);
        const long now = ResidentKilobytes();
        std::printf("%ld frames, %d games: %ld KB\n", played, game + 1, now);
        std::fflush(stdout);
        if (before == 0)
            before = now;
        if (now > before + MOST_GROWTH)
            return 1;
    }
    return 0;
}
