#pragma once

#include "platform/directdraw.h"
#include "platform/directsound.h"

#include <cstdint>
#include <initializer_list>
#include <string>
#include <vector>

/// Stands for DirectDraw and DirectSound in unit_tests: each of their steps is recorded and can be made to fail, which
/// those of the platform layer cannot.
struct DirectXDouble {
    /// Lets the next `times` calls of that function or method fail with that result.
    void Fail(const std::string& call, int times = 1000, HRESULT result = DDERR_GENERIC);
    /// The calls since the last question, with the numbers that matter: "SetCooperativeLevel 8, Play 3 1, Stop 3"
    /// (sound buffers count from 0 in order of creation).
    std::string TakeCalls();

    int objects = 0;                   ///< alive
    std::vector<std::string*> buffers; ///< the bytes of those alive, in order of creation, the primary one excluded
    bool surfacesLost = false;
    uint32_t greenMask = 0x07E0;  ///< of the surfaces
    std::vector<uint16_t> screen; ///< pixels of the last frame that was shown

    // For the double itself
    HRESULT Step(const std::string& call, std::initializer_list<DWORD> numbers = {});
    std::string calls;
    std::string failing;
    int failures = 0;
    HRESULT failure = DDERR_GENERIC;
};
extern DirectXDouble directX;
