#include "app/log.h"

#include <cstdio>

namespace
{
constexpr char LOG_FILE[] = "Log.txt";

/// Before that the current folder is the user's, in which a file of that name may be anything.
bool started = false;
}

void WriteLog(const char* text)
{
    if (!started || !text)
        return;
    if (std::FILE* file = std::fopen(LOG_FILE, "a")) {
        std::fprintf(file, "%s\n", text);
        std::fclose(file);
    }
}

void ClearLog()
{
    started = true;
    if (std::FILE* file = std::fopen(LOG_FILE, "w"))
        std::fclose(file);
}
