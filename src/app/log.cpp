#include "app/log.h"

#include "platform/kernel.h"
#include "platform/log_file.h"

#include <cstdio>

namespace
{
/// Null before the start: the current folder is then the user's, in which a file of that name may be anything.
const char* logFile = nullptr;

bool reported = false;

/// One line instead of all that will be missing: the game goes on without its log.
void ReportOnce()
{
    if (reported)
        return;
    reported = true;
    char line[MAX_PATH + 64];
    std::snprintf(line, sizeof line, "%s: Can not write the log\n", logFile);
    OutputDebugStringA(line);
}

/// `end` follows the text. A full disk shows when the file is closed.
void Write(const char* mode, const char* text, const char* end)
{
    std::FILE* file = std::fopen(logFile, mode);
    if (file)
        std::fprintf(file, "%s%s", text, end);
    if (!file || std::fclose(file) != 0)
        ReportOnce();
}
}

void WriteLog(const char* text)
{
    if (logFile && text)
        Write("a", text, "\n");
}

void ClearLog()
{
    logFile = LogFile();
    Write("w", "", "");
}
