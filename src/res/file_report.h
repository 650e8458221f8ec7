#pragma once

/// Tells whoever watches the program's output what was wrong with which file, and in which folder it was looked for:
/// the message box names none.
void ReportFile(const char* path, const char* problem);
