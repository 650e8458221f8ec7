#pragma once

/// Gives up the reference to an object of DirectDraw or DirectSound, if there is one, and forgets it.
template <class Object>
void ReleaseAndForget(Object*& object)
{
    if (object)
        object->Release();
    object = nullptr;
}
