#pragma once

/// Appends one line to the log; it is on disk when the call returns. A log that has not been started and a null text
/// are skipped. Where the log cannot be written, one line on the error output says so.
void WriteLog(const char* text);

/// Starts the log, empty; not before the current folder is the program's own.
void ClearLog();
