#include "platform/log_file.h"
#include "platform/posix/kernel_object.h"
#include "platform/posix/out_of_memory.h"
#include "platform/posix/paths.h"
#include "platform/posix/safe_file.h"
#include "platform/posix/user_folders.h"

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <string>
#include <unistd.h>
#include <vector>

namespace
{
char logFile[MAX_PATH] = "Log.txt"; // still there when the last object of the program logs its end

bool HasData(const std::string& folder)
{
    return access((folder + "/Dat").c_str(), X_OK) == 0;
}

/// Where the program's data may lie, best first: beside it, and where CMake has installed them, as seen from the
/// program (which may have been moved along with them) and as a path of its own.
std::vector<std::string> DataFolders(const std::string& own)
{
    const std::filesystem::path moved = std::filesystem::path(own) / DATA_FROM_PROGRAM;
    return { own, moved.lexically_normal().string(), INSTALLED_DATA };
}

/// The program's own folder when no other has the data: the game's own search then ends as it does without them.
std::string DataFolder(const std::string& own)
{
    const std::vector<std::string> folders = DataFolders(own);
    const auto found = std::find_if(folders.begin(), folders.end(), HasData);
    if (found != folders.end())
        return *found;
    std::string line = "Tervalis: Dat/Image.xpf is missing; looked for it in";
    for (const std::string& folder : folders)
        line += " " + folder;
    std::fprintf(stderr, "%s\n", line.c_str());
    return own;
}

/// A program that is unpacked or built, but not installed, keeps its log beside itself if it can: in the current
/// folder.
void ChooseLogFile(const std::string& own)
{
    std::string folder;
    if (!HasData(own) || access(own.c_str(), W_OK) != 0) {
        const std::string state = StateFolder("Tervalis");
        folder = (state.empty() ? own : state) + "/";
        MakeFolders(folder);
    }
    std::snprintf(logFile, sizeof logFile, "%sLog.txt", folder.c_str());
}
}

const char* LogFile()
{
    return logFile;
}

BOOL SetCurrentDirectoryA(LPCSTR path)
{
    return OrOutOfMemory(FALSE, [path] {
        const std::string own = ResolvePath(path);
        if (chdir(DataFolder(own).c_str()) != 0) {
            SetLastError(ERROR_FILE_NOT_FOUND);
            return FALSE;
        }
        ChooseLogFile(own);
        return TRUE;
    });
}

DWORD GetCurrentDirectoryA(DWORD size, LPSTR path)
{
    return getcwd(path, size) ? static_cast<DWORD>(std::char_traits<char>::length(path)) : 0;
}
