#include "game/section_main.h"

#include "app/input.h"
#include "app/scenes.h"
#include "menu/menu_fixture.h"

#include <SDL.h>

namespace
{
/// The game scene with its pictures, begun after the menu was loaded.
class GameScene : public MenuFixture
{
protected:
    void SetUp() override
    {
        MenuFixture::SetUp();
        scenery = SceneryState{};
        for (bool done = false; !done;)
            ASSERT_TRUE(scene.pond.DataLoad(done));
        for (bool done = false; !done;)
            ASSERT_TRUE(scene.pond.statusBar.DataLoad(done));
        ASSERT_TRUE(scene.SectionBegin());
    }
    /// The cursor is shown after that many frames.
    bool ShowsCursorAfter(int frames)
    {
        for (int i = 0; i < frames; ++i)
            scene.SectionProcess();
        return SDL_ShowCursor(SDL_QUERY) == SDL_ENABLE;
    }

    CSectionMain scene;
};

TEST_F(GameScene, HidesARestingCursorUnlessAPanelIsOpen)
{
    scene.pond.snake[0].isPaused = true; // frames without water are quick
    ++input.mouseX;
    EXPECT_TRUE(ShowsCursorAfter(125));
    EXPECT_FALSE(ShowsCursorAfter(1));
    scene.pond.statusBar.panelOpen = true;
    EXPECT_TRUE(ShowsCursorAfter(1));
    scene.pond.statusBar.panelOpen = false;
    EXPECT_FALSE(ShowsCursorAfter(1));
    ++input.mouseY;
    EXPECT_TRUE(ShowsCursorAfter(1));
}
}
