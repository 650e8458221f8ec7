#include "platform/sdl/device_watch.h"

/// The browser itself goes on with another device when one has gone.
struct DeviceWatch::Thread {
};

DeviceWatch::DeviceWatch() = default;
DeviceWatch::~DeviceWatch() = default;
void DeviceWatch::Start(std::function<void()>) {}
void DeviceWatch::Stop() {}
