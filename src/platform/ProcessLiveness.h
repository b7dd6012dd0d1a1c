#pragma once

namespace vorlane {

// The running process's id.
int currentProcessId();

// When the process `pid` started, in clock ticks after the system booted (the 22nd field of
// /proc/PID/stat); -1 when it is not running or the system does not tell.
long long processStartTime(int pid);

// Whether the process `pid` that started at `startTime` (processStartTime) still runs. A pid
// now held by a process that started at another time belongs to another process, and a process
// that has ended but not been reaped (a zombie) runs no more. With a startTime of -1 only the
// pid is checked.
bool processRunning(int pid, long long startTime);

} // namespace vorlane
