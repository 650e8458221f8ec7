#include "res/file_report.h"

#include "platform/kernel.h"

#include <cstdio>

void ReportFile(const char* path, const char* problem)
{
    char folder[MAX_PATH] = "?";
    GetCurrentDirectoryA(sizeof folder, folder);
    char line[MAX_PATH + 256];
    std::snprintf(line, sizeof line, "%s: %s (in %s)\n", path, problem, folder);
    OutputDebugStringA(line);
}
