#pragma once

#include "app/section.h"

/// Loads the settings and the pack, then one step a frame the data of menu, pond and status bar; the screen is
/// black meanwhile. Then the menu takes over.
class CSectionLoad : public CSection
{
public:
    bool SectionBegin() override;
    bool SectionEnd() override;
    bool SectionProcess() override;
};

extern CSectionLoad sectionLoad;
extern bool menuLoaded; ///< set by the last loading step of their owners
extern bool pondLoaded;
extern bool statusBarLoaded;
