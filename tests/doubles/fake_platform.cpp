#include "doubles/fake_platform.h"

#include <algorithm>

FakePlatform fake;

void FakePlatform::Reset()
{
    const std::string path = programPath;
    *this = FakePlatform{};
    programPath = path;
}

bool FakePlatform::Enter(const std::string& call)
{
    calls.push_back(call);
    const auto failure = failures.find(call);
    if (failure == failures.end() || failure->second == 0)
        return false;
    if (failure->second > 0)
        --failure->second;
    return true;
}

int FakePlatform::Calls(const std::string& call) const
{
    return static_cast<int>(std::count(calls.begin(), calls.end(), call));
}

LRESULT FakePlatform::Send(UINT message, WPARAM wParam, LPARAM lParam)
{
    return procedure ? procedure(FAKE_WINDOW, message, wParam, lParam) : 0;
}
