#pragma once

/// Appends one line to "Log.txt" in the current folder; it is on disk when the call returns. A log that cannot be
/// opened or has not been started is skipped, a null text writes nothing.
void WriteLog(const char* text);

/// Starts the log, empty; not before the current folder is the program's own.
void ClearLog();
