#include "platform/sdl/signals.h"

#include <csignal>
#include <initializer_list>

SignalHandler SetSignalHandler(int signal, SignalHandler handler)
{
    const SignalHandler before = std::signal(signal, handler);
    if (before == SIG_IGN)
        std::signal(signal, SIG_IGN);
    return before;
}

void IgnoreEndingSignals()
{
    for (const int signal : { SIGTERM, SIGINT, SIGHUP })
        std::signal(signal, SIG_IGN);
}

void EndOnHangUp()
{
    // SDL handles SIGTERM itself, and lets nobody add to the signals that it makes its quit event of.
    SetSignalHandler(SIGHUP, [](int) { std::raise(SIGTERM); });
}
