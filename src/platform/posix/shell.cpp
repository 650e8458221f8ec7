#include "platform/shell.h"

#include "platform/posix/out_of_memory.h"
#include "platform/posix/paths.h"

#include <cerrno>
#include <cstdlib>
#include <fcntl.h>
#include <memory>
#include <string>
#include <sys/wait.h>
#include <unistd.h>

namespace
{

constexpr char OPENER[] = "xdg-open";

HINSTANCE Result(int code)
{
    return reinterpret_cast<HINSTANCE>(static_cast<intptr_t>(code));
}

constexpr int SHELL_STARTED = 33;
constexpr int SHELL_FAILED = 0;
constexpr int SHELL_NO_FILE = 2;

bool IsAddress(const std::string& file)
{
    return file.find("://") != std::string::npos;
}

/// Empty when there is no such file.
std::string FullPath(LPCSTR file)
{
    const std::unique_ptr<char, decltype(&free)> path(realpath(ResolvePath(file).c_str(), nullptr), free);
    return path ? path.get() : "";
}

/// Runs in the child, which may only make calls that are safe after a fork. Its own child belongs to nobody once it
/// has gone, so that it neither waits for the browser nor leaves a zombie. A byte in the pipe means a failed start.
[[noreturn]] void StartAndLeave(char* const arguments[], int failurePipe)
{
    setsid();
    const pid_t opener = fork();
    if (opener == 0)
        execvp(arguments[0], arguments);
    const char failed = 1;
    if (opener <= 0 && write(failurePipe, &failed, 1) != 1)
        _exit(1);
    _exit(0);
}

/// Waits for a pipe's other ends to be closed, or for a byte: false.
bool IsClosedUnused(int pipeEnd)
{
    char byte = 0;
    ssize_t count;
    do {
        count = read(pipeEnd, &byte, 1);
    } while (count < 0 && errno == EINTR);
    return count == 0;
}

/// Starts the desktop's opener without waiting for it; its argument reaches it as it is.
bool StartOpener(std::string argument)
{
    int ends[2]; // closed by a successful exec, so that reading from it does not wait for the opener's end
    if (pipe2(ends, O_CLOEXEC) != 0)
        return false;
    std::string opener = OPENER;
    char* const arguments[] = { opener.data(), argument.data(), nullptr };
    const pid_t child = fork();
    if (child == 0)
        StartAndLeave(arguments, ends[1]);
    close(ends[1]);
    bool started = child > 0;
    if (started) {
        while (waitpid(child, nullptr, 0) < 0 && errno == EINTR) {
        }
        started = IsClosedUnused(ends[0]);
    }
    close(ends[0]);
    return started;
}

}

HINSTANCE ShellExecuteA(HWND, LPCSTR, LPCSTR file, LPCSTR, LPCSTR, int)
{
    if (file == nullptr)
        return Result(SHELL_NO_FILE);
    return OrOutOfMemory(Result(SHELL_FAILED), [file] {
        const std::string target = IsAddress(file) ? file : FullPath(file);
        if (target.empty())
            return Result(SHELL_NO_FILE);
        return Result(StartOpener(target) ? SHELL_STARTED : SHELL_FAILED);
    });
}
