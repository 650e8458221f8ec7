#pragma once

#include "actors/status_bar.h"

#include <span>

/// Where a panel is made; some slide from there.
enum class PanelPlace { CORNER, SCREEN_CENTRE, POND_CENTRE };

/// A button over one that is part of the panel's picture.
struct PanelButton {
    int id;
    MenuBox box;
};

/// All about a panel, or about the help pages.
struct CStatusBar::PanelRow {
    std::span<CMenu> (*panels)(CStatusBar& bar);
    StatusImage picture; ///< the first page's; the others' follow
    PanelPlace place;
    void (CStatusBar::*process)(); ///< each frame in which it takes input
    std::span<const PanelButton> buttons;
};
