#include "platform/sdl/told_frame.h"

#include <iterator>
#include <utility>

namespace
{
/// A list without memory of its own; what does not fit is left out.
template <class Element, int ROOM>
struct Told {
    void Add(const Element& element)
    {
        if (count < ROOM)
            elements[count++] = element;
    }
    std::span<const Element> All() const { return { elements, static_cast<size_t>(count) }; }

    Element elements[ROOM] = {};
    int count = 0;
};

struct Frame {
    Told<RECT, 32> clickables;
    Told<Steering, 2> players;
};

Frame lastFrame;
Frame frameInTheMaking;
}

void TellClickable(const RECT& area)
{
    frameInTheMaking.clickables.Add(area);
}

void TellSteering(const SteeringKeys& keys, bool isMoving)
{
    frameInTheMaking.players.Add({ keys, isMoving });
}

std::span<const RECT> Clickables()
{
    return lastFrame.clickables.All();
}

std::span<const Steering> Players()
{
    return lastFrame.players.All();
}

int KeyOf(const SteeringKeys& keys, Way way)
{
    const int codes[] = { keys.up, keys.down, keys.left, keys.right };
    return codes[static_cast<int>(way)];
}

bool EndToldFrame()
{
    if (frameInTheMaking.clickables.count == 0 && frameInTheMaking.players.count == 0)
        return false;
    lastFrame = std::exchange(frameInTheMaking, {});
    return true;
}
