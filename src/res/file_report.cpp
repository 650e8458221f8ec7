#include "res/file_report.h"

#include "platform/kernel.h"

#include <cstdio>

void ReportFile(const char* path, const char* problem)
{
    char line[256];
    std::snprintf(line, sizeof line, "%s: %s\n", path, problem);
    OutputDebugStringA(line);
}
