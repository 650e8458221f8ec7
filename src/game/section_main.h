#pragma once

#include "app/section.h"
#include "game/pond.h"

/// The scene in which the game is played: a thin shell around the pond.
class CSectionMain : public CSection
{
public:
    bool SectionBegin() override;
    bool SectionEnd() override;
    bool SectionProcess() override;

    CPond pond;

    /// Where the mouse was last seen, and for how many frames it has rested there.
    int32_t lastMouseX = -1;
    int32_t lastMouseY = -1;
    int32_t mouseIdleFrames = 0;

private:
    void CountMouseRest();
    void ShowOrHideCursor();
};

extern CSectionMain sectionMain;
