#include "platform/ProcessLiveness.h"

#include <cerrno>
#include <fstream>
#include <iterator>
#include <sstream>
#include <string>

#include <signal.h>
#include <unistd.h>

namespace vorlane {

namespace {

struct ProcessStat
{
    char state = '?';
    long long startTime = -1;
};

// The state and start time from /proc/PID/stat; false when it cannot be read. The second
// field, the program's name in parentheses, may hold blanks and parentheses itself, so the
// fields are counted from the last ")".
bool readStat(int pid, ProcessStat &stat)
{
    std::ifstream file("/proc/" + std::to_string(pid) + "/stat");
    if (!file)
        return false;
    const std::string text{std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
    const std::size_t nameEnd = text.rfind(')');
    if (nameEnd == std::string::npos)
        return false;
    std::istringstream fields(text.substr(nameEnd + 1));
    // Field 3 is the state; field 22 the start time, 19 fields after it.
    std::string field;
    if (!(fields >> stat.state))
        return false;
    for (int number = 4; number <= 22; ++number)
        if (!(fields >> field))
            return false;
    try {
        stat.startTime = std::stoll(field);
    } catch (...) {
        return false;
    }
    return true;
}

} // namespace

int currentProcessId()
{
    return static_cast<int>(::getpid());
}

long long processStartTime(int pid)
{
    ProcessStat stat;
    return readStat(pid, stat) ? stat.startTime : -1;
}

bool processRunning(int pid, long long startTime)
{
    if (pid <= 0)
        return false;
    // A process of another user answers EPERM: it exists all the same.
    if (::kill(static_cast<pid_t>(pid), 0) != 0 && errno != EPERM)
        return false;
    ProcessStat stat;
    if (!readStat(pid, stat))
        return true; // the system does not tell more: the pid is taken
    if (stat.state == 'Z' || stat.state == 'X')
        return false;
    return startTime < 0 || stat.startTime == startTime;
}

} // namespace vorlane
