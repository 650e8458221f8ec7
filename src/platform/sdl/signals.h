#pragma once

using SignalHandler = void (*)(int);

/// Gives a signal another handler, unless it is ignored: whoever started the program so wants it ignored.
/// The handler before.
SignalHandler SetSignalHandler(int signal, SignalHandler handler);

/// From here on the program ends in any case: no signal that asks for it cuts short what is still to be stored.
void IgnoreEndingSignals();

/// The end of the terminal that the program runs in ends it as SIGTERM does.
void EndOnHangUp();
