#include "app/section_load.h"

#include "app/frame_images.h"
#include "app/input.h"
#include "app/log.h"
#include "app/scenes.h"
#include "game/pond.h"
#include "gfx/error.h"
#include "menu/section_menu.h"
#include "support/program_fixture.h"

namespace
{
using SectionLoadTest = ProgramFixture;
}

TEST_F(SectionLoadTest, LoadsOneStepAFrameOnABlackScreenThenAsksForTheMenu)
{
    scenery = SceneryState{}; // nothing of the pond is loaded yet
    pictures.folder.Write("Log.txt", "an earlier run\n");
    ClearLog();
    requestedSection = &sectionLoad;
    ASSERT_TRUE(sectionLoad.SectionBegin());
    std::string log = "CSectionLoad::SectionBegin\n";
    for (const char* step : { "CSectionMenu::DataLoad 0", "CSectionMenu::DataLoad 1", "CSectionMenu::DataLoad 2",
                              "CSectionMenu::DataLoad 3", "CPond::DataLoad 0", "CPond::DataLoad 1", "CPond::DataLoad 2",
                              "CStatusBar::DataLoad 0", "CStatusBar::DataLoad 1", "CStatusBar::DataLoad 2" }) {
        backBuffer.Fill(0x1234);
        ASSERT_TRUE(sectionLoad.SectionProcess());
        EXPECT_EQ(backBuffer.Row(479)[639], 0);
        EXPECT_EQ(requestedSection, &sectionLoad) << step;
        EXPECT_EQ(Log(), log += std::string(step) + "\n");
    }
    input.mouseLeftDown = true;
    input.lastKeyDown = VK_RETURN;
    ASSERT_TRUE(sectionLoad.SectionProcess());
    EXPECT_EQ(requestedSection, &sectionMenu);
    EXPECT_FALSE(input.mouseLeftDown) << "a click while loading is not the menu's";
    EXPECT_EQ(input.lastKeyDown, 0);
    EXPECT_EQ(lastError, ENGINE_OPEN_PACK_FILE) << "kept, though every picture was found";
    lastError = ENGINE_NO_ERROR;
}
