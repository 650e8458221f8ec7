#include "app/log.h"

#include <cstdio>

namespace
{
constexpr char LOG_FILE[] = "Log.txt";
}

void WriteLog(const char* text)
{
    std::FILE* file = std::fopen(LOG_FILE, "a");
    if (!file)
        return;
    if (text)
        std::fprintf(file, "%s\n", text);
    std::fclose(file);
}

void ClearLog()
{
    if (std::FILE* file = std::fopen(LOG_FILE, "w"))
        std::fclose(file);
}
