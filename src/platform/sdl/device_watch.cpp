#include "platform/sdl/device_watch.h"

#include <chrono>
#include <condition_variable>
#include <mutex>
#include <thread>

struct DeviceWatch::Thread {
    explicit Thread(std::function<void()> lookAtDevice) : look(std::move(lookAtDevice)) {}

    void Run(const std::stop_token& stop)
    {
        constexpr auto BETWEEN_LOOKS = std::chrono::seconds(1);
        std::unique_lock lock(mutex);
        while (!stop.stop_requested()) {
            wake.wait_for(lock, stop, BETWEEN_LOOKS, [] { return false; });
            if (!stop.stop_requested())
                look();
        }
    }

    std::function<void()> look;
    std::mutex mutex;
    std::condition_variable_any wake;
    std::jthread thread{ [this](const std::stop_token& stop) { Run(stop); } };
};

DeviceWatch::DeviceWatch() = default;
DeviceWatch::~DeviceWatch() = default;

void DeviceWatch::Start(std::function<void()> look)
{
    thread = std::make_unique<Thread>(std::move(look));
}

void DeviceWatch::Stop()
{
    thread.reset();
}
