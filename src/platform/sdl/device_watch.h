#pragma once

#include <functional>
#include <memory>

/// Looks after an audio device once a second, on a thread of its own: opening and closing one takes longer than a frame
/// may.
class DeviceWatch
{
public:
    DeviceWatch();
    ~DeviceWatch();

    void Start(std::function<void()> look);
    /// Waits for a look that is under way. Starting again is not provided for.
    void Stop();

private:
    struct Thread;
    std::unique_ptr<Thread> thread; ///< null while there is none
};
