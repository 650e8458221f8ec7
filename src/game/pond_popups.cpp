#include "game/pond.h"

#include <algorithm>
#include <functional>
#include <iterator>

namespace
{
constexpr int POPUP_OPACITY = 255; ///< at the start
constexpr int POPUP_FADE = 10;     ///< a frame
constexpr int POPUP_RISE = 2;      ///< pixels a frame
}

void CPond::ShowPopup(int x, int y, int kind)
{
    Popup* slot = std::find_if_not(std::begin(popups), std::end(popups), std::mem_fn(&Popup::active));
    if (slot != std::end(popups))
        *slot = { .active = true, .x = x, .y = y, .kind = kind, .opacity = POPUP_OPACITY };
}

void CPond::RaisePopups()
{
    for (Popup& popup : popups) {
        if (!popup.active)
            continue;
        popup.opacity -= POPUP_FADE;
        popup.y -= POPUP_RISE;
        popup.active = popup.opacity >= 0;
    }
}
