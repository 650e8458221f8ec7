#pragma once

/// Tells whoever watches the program's output what was wrong with which file: the message box names none.
void ReportFile(const char* path, const char* problem);
