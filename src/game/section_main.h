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
};

extern CSectionMain sectionMain;
