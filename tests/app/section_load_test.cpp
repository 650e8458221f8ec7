#include "app/section_load.h"

#include "app/globals.h"
#include "app/log.h"
#include "game/pond.h"
#include "gfx/error.h"
#include "menu/section_menu.h"
#include "support/game_fixture.h"
#include "support/test_pictures.h"

namespace
{
/// The loading scene begun in a folder with every picture loose and no pack.
class SectionLoadTest : public GameFixture
{
protected:
    void SetUp() override
    {
        GameFixture::SetUp();
        scenery = SceneryState{}; // nothing of the pond is loaded yet
        requestedSection = &sectionLoad;
        ClearLog();
        ASSERT_TRUE(sectionLoad.SectionBegin());
    }

    TestPictures pictures;
};
}

TEST_F(SectionLoadTest, LoadsOneStepAFrameOnABlackScreenThenAsksForTheMenu)
{
    constexpr char expectedLog[] = "CSectionLoad::SectionBegin\n"
                                   "CSectionMenu::DataLoad 0\n"
                                   "CSectionMenu::DataLoad 1\n"
                                   "CSectionMenu::DataLoad 2\n"
                                   "CSectionMenu::DataLoad 3\n"
                                   "CPond::DataLoad 0\n"
                                   "CPond::DataLoad 1\n"
                                   "CPond::DataLoad 2\n"
                                   "CStatusBar::DataLoad 0\n"
                                   "CStatusBar::DataLoad 1\n"
                                   "CStatusBar::DataLoad 2\n";
    for (int frame = 1; frame <= 10; ++frame) {
        backBuffer.Fill(0x1234);
        ASSERT_TRUE(sectionLoad.SectionProcess());
        EXPECT_EQ(backBuffer.Row(479)[639], 0);
        EXPECT_EQ(requestedSection, &sectionLoad) << frame;
    }
    EXPECT_EQ(pictures.folder.ReadText("Log.txt"), expectedLog);

    input.mouseLeftDown = true;
    input.lastKeyDown = 13;
    ASSERT_TRUE(sectionLoad.SectionProcess());
    EXPECT_EQ(requestedSection, &sectionMenu);
    EXPECT_FALSE(input.mouseLeftDown) << "a click while loading is not the menu's";
    EXPECT_EQ(input.lastKeyDown, 0);
    EXPECT_EQ(lastError, ENGINE_OPEN_PACK_FILE) << "kept, though every picture was found";
}

TEST(Log, IsEmptiedAtTheStartAndGrowsLineByLine)
{
    TempFolder folder;
    folder.Write("Log.txt", "an earlier run\n");
    ClearLog();
    WriteLog("one");
    WriteLog(nullptr);
    WriteLog("two");
    EXPECT_EQ(folder.ReadText("Log.txt"), "one\ntwo\n");
}
