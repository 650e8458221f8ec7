#pragma once

#ifdef _WIN32
/// The path of the log: in the program's folder, which is the current one.
inline const char* LogFile()
{
    return "Log.txt";
}
#else
/// The path of the log: in the current folder, unless SetCurrentDirectoryA has found that the program's own is no place
/// for it. An installed program's log lies with what the user's other programs note about their runs.
const char* LogFile();
#endif
